// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/focusring.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QApplication>

namespace PrintPanels {

namespace {

/** Width of either line. The dark one lies outside the control, the light one on its edge. */
constexpr int lineWidth = 2;
constexpr double cornerRadius = 6.0;
constexpr QColor darkColor(0x06, 0x06, 0x06);
constexpr QColor lightColor(0xff, 0xff, 0xff);

const FocusRing* ringOf(const QWidget* panel)
{
    return panel->findChild<const FocusRing*>(QString(), Qt::FindDirectChildrenOnly);
}

/** The ring of the innermost panel around @p control, in the same window. */
const FocusRing* ringAround(const QWidget* control)
{
    const FocusRing* ring = nullptr;
    while (!ring && !control->isWindow() && control->parentWidget() != nullptr) {
        control = control->parentWidget();
        ring = ringOf(control);
    }
    return ring;
}

/** Whether @p widget shows a part of what is larger than itself. */
bool isViewport(const QWidget* widget)
{
    const auto* area = qobject_cast<const QAbstractScrollArea*>(widget->parentWidget());
    return area != nullptr && area->viewport() == widget;
}

} // namespace

FocusRing::FocusRing(QWidget* panel) : QWidget(panel)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focused) { follow(focused); });
}

void FocusRing::follow(QWidget* focused)
{
    const bool isOurs = focused && !ringOf(focused) && ringAround(focused) == this;
    m_control = isOurs ? focused : nullptr;
    watchControl();
    place();
}

void FocusRing::watchControl()
{
    for (const QPointer<QObject>& watched : std::as_const(m_watched)) {
        if (watched)
            watched->removeEventFilter(this);
    }
    m_watched.clear();
    if (!m_control)
        return;
    for (QWidget* widget = m_control; widget != nullptr; widget = widget->parentWidget()) {
        widget->installEventFilter(this);
        m_watched.append(widget);
        if (widget == parentWidget())
            break;
    }
}

// Inside the panel as a whole: at its edge the ring lies on the control instead of being cut off.
void FocusRing::place()
{
    const QWidget* panel = parentWidget();
    if (!m_control || !m_control->isVisibleTo(panel)) {
        hide();
        return;
    }
    const auto onPanel = [panel](const QWidget* widget) {
        return QRect(widget->mapTo(panel, QPoint()), widget->size());
    };
    constexpr QMargins outside(lineWidth, lineWidth, lineWidth, lineWidth);
    const QRect frame = onPanel(m_control).marginsAdded(outside) & panel->rect();
    QRect shown = frame;
    for (const QWidget* widget = m_control; widget != panel; widget = widget->parentWidget()) {
        if (isViewport(widget))
            shown &= onPanel(widget);
    }
    m_frame = frame.translated(-shown.topLeft());
    setGeometry(shown);
    setVisible(!shown.isEmpty());
    raise();
    update();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ParentChange:
        follow(m_control);
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        place();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto drawLine = [&](double inset, const QColor& color) {
        const QRectF line = QRectF(m_frame).adjusted(inset, inset, -inset, -inset);
        painter.setPen(QPen(color, lineWidth));
        painter.drawRoundedRect(line, cornerRadius - inset, cornerRadius - inset);
    };
    drawLine(lineWidth / 2.0, darkColor);
    drawLine(lineWidth * 1.5, lightColor);
}

} // namespace PrintPanels
