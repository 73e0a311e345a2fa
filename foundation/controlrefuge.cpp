// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/controlrefuge.h"

#include <QtCore/QThread>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace PrintPanels {

namespace {

constexpr int outermostLoop = 1;
constexpr int patience = 100; // milliseconds

bool inNestedLoop()
{
    return QThread::currentThread()->loopLevel() > outermostLoop;
}

/** Keeps what is put into it until nobody can be in the middle of a signal any more. */
class Refuge : public QWidget
{
public:
    void leave()
    {
        // A nested event loop may run inside the very signal that the controls have to survive,
        // as when a handler shows a message box; a deletion posted here would be done in there.
        if (inNestedLoop())
            startTimer(patience);
        else
            deleteLater();
    }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        QWidget::timerEvent(event);
        if (!inNestedLoop())
            deleteLater();
    }
};

// No control tells anything once its panel is going: neither the panel nor a host, which would
// otherwise hear of the focus that moves.
void silence(QWidget* control)
{
    control->blockSignals(true);
    const QList<QWidget*> inner = control->findChildren<QWidget*>();
    for (QWidget* widget : inner)
        widget->blockSignals(true);
}

} // namespace

QList<QPointer<QWidget>> controlsOf(const QWidget* panel)
{
    QList<QPointer<QWidget>> controls;
    const QList<QWidget*> children =
        panel->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children)
        controls.append(child);
    return controls;
}

void leaveSilently(QWidget* panel, const QObject* sender, const QList<QPointer<QWidget>>& controls)
{
    panel->blockSignals(true);
    if (sender == nullptr)
        return;
    auto* refuge = new Refuge;
    // A control that is just opening its list holds on to its style, and the style that comes of a
    // style sheet ends with the last widget that has it.
    refuge->setStyle(panel->style());
    for (const QPointer<QWidget>& control : controls) {
        if (control)
            silence(control);
    }
    QWidget* focused = QApplication::focusWidget();
    for (const QPointer<QWidget>& control : controls) {
        if (!control)
            continue;
        // Otherwise the focus would wander through all controls as they leave one by one.
        if (control == focused || control->isAncestorOf(focused))
            focused->clearFocus();
        control->setParent(refuge);
    }
    refuge->leave();
}

} // namespace PrintPanels
