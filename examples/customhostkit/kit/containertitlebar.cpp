// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "containertitlebar.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

ContainerTitleBar::ContainerTitleBar(QWidget* parent, const QString& title, const QString&, int)
    : QWidget(parent), m_label(new QLabel(title))
{
    auto* closeButton = new QToolButton;
    closeButton->setObjectName(QStringLiteral("titleBarCloseButton"));
    closeButton->setText(QString(QChar(0xd7))); // a multiplication sign
    closeButton->setAutoRaise(true);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_label, 1);
    layout->addWidget(closeButton);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(closeButton, &QToolButton::clicked, this, &ContainerTitleBar::closeButtonClicked);
}

void ContainerTitleBar::setTitle(const QString& title)
{
    m_label->setText(title);
}

// Below a style sheet, as in the windows of the panels, a label does not inherit the bar's font.
void ContainerTitleBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        m_label->setFont(font());
    QWidget::changeEvent(event);
}

void ContainerTitleBar::mousePressEvent(QMouseEvent* event)
{
    m_grip = window()->pos() - event->globalPosition().toPoint();
}

void ContainerTitleBar::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint corner = event->globalPosition().toPoint() + m_grip;
    Q_EMIT signalMove(corner.x(), corner.y());
}
