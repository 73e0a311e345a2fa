// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <containertitlebar.h>

#include "plaintooltip.h"
#include "titlebarparts.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolTip>

namespace {

/** The title keeps its margin at the start of the line, wherever that is. */
QMargins margins(bool rightToLeft)
{
    constexpr int start = 10;
    constexpr int end = 3;
    return rightToLeft ? QMargins(end, 2, start, 2) : QMargins(start, 2, end, 2);
}

} // namespace

ContainerTitleBar::ContainerTitleBar(QWidget* parent, const QString& title,
                                     const QString& closeToolTip, int titlePixelSize)
    : QWidget(parent),
      m_label(new HostKit::TitleBarLabel(title, this)),
      m_closeButton(new HostKit::TitleBarButton(this))
{
    if (titlePixelSize > 0) {
        QFont titleFont = font();
        titleFont.setPixelSize(titlePixelSize);
        setFont(titleFont);
    }
    m_closeButton->setToolTip(closeToolTip);
    //: Name of a title bar's close button, read out by screen readers.
    m_closeButton->setAccessibleName(tr("Close"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(margins(isRightToLeft()));
    layout->addWidget(m_label, 1);
    layout->addWidget(m_closeButton);

    connect(m_closeButton, &QAbstractButton::clicked, this, &ContainerTitleBar::closeButtonClicked);
}

ContainerTitleBar::~ContainerTitleBar() = default;

QString ContainerTitleBar::title() const
{
    return m_label->text();
}

void ContainerTitleBar::setTitle(const QString& title)
{
    m_label->setText(title);
}

bool ContainerTitleBar::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        layout()->setContentsMargins(margins(isRightToLeft()));
    if (event->type() == QEvent::FontChange)
        m_label->setTitleFont(font());
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && m_label->isElided()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           HostKit::plainToolTip(title()), this);
        return true;
    }
    return QWidget::event(event);
}

void ContainerTitleBar::hideEvent(QHideEvent* event)
{
    m_grip.reset();
    QWidget::hideEvent(event);
}

void ContainerTitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_grip = window()->pos() - event->globalPosition().toPoint();
    event->accept();
}

void ContainerTitleBar::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        m_grip.reset();
    if (!m_grip) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    event->accept();
    const QPoint corner = event->globalPosition().toPoint() + *m_grip;
    if (corner != window()->pos())
        Q_EMIT signalMove(corner.x(), corner.y());
}

void ContainerTitleBar::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_grip.reset();
    QWidget::mouseReleaseEvent(event);
}

void ContainerTitleBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, QColor(0x5a, 0x59, 0x59));
    gradient.setColorAt(1, QColor(0x06, 0x06, 0x06));
    painter.fillRect(rect(), gradient);
    painter.fillRect(QRect(0, height() - 1, width(), 1), QColor(0xfd, 0x78, 0x00));
}
