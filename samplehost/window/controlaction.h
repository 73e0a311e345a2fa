// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CONTROLACTION_H
#define SAMPLEHOST_CONTROLACTION_H

#include <QtCore/QPointer>
#include <QtGui/QAction>

class QWidget;

namespace SampleHost {

/** Scrolls the areas that a widget stands in until it is visible. */
void reveal(QWidget& widget);

/**
 * Operates a control in place of the mouse, because the control takes no focus: clicks a button or
 * opens the list of a combo box. The action is enabled while the control is visible and enabled,
 * and its shortcut works in the window of the control.
 */
class ControlAction : public QAction
{
    Q_OBJECT

public:
    /** An action without a control, which is disabled. */
    explicit ControlAction(const QString& text, QObject* parent = nullptr);

    /** Operates another control from now on; null for none. */
    void setControl(QWidget* control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void operate();
    void joinWindow();
    void updateEnabled();

    QPointer<QWidget> m_control;
    QPointer<QWidget> m_window;
};

} // namespace SampleHost

#endif
