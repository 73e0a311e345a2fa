// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/recordnavigator.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace SampleHost {

namespace {

constexpr int iconSide = 16;

} // namespace

RecordNavigator::RecordNavigator(Items items, QWidget* parent) : QWidget(parent)
{
    createWidgets(items);
    connect(m_firstButton, &QToolButton::clicked, this, [this] { setCurrentIndex(0); });
    connect(m_previousButton, &QToolButton::clicked, this,
            [this] { setCurrentIndex(m_index - 1); });
    connect(m_nextButton, &QToolButton::clicked, this, [this] { setCurrentIndex(m_index + 1); });
    connect(m_lastButton, &QToolButton::clicked, this, [this] { setCurrentIndex(m_count - 1); });
    connect(m_numberBox, &QSpinBox::valueChanged, this,
            [this](int number) { setCurrentIndex(number - 1); });
    showPosition();
}

void RecordNavigator::createWidgets(Items items)
{
    const bool pages = items == Items::Pages;
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addStretch(1);
    m_firstButton = addButton(QStringLiteral("firstRecordButton"), QStyle::SP_MediaSkipBackward,
                              pages ? tr("First page") : tr("First record"));
    m_previousButton =
        addButton(QStringLiteral("previousRecordButton"), QStyle::SP_MediaSeekBackward,
                  pages ? tr("Previous page") : tr("Previous record"));
    m_numberBox = new QSpinBox;
    m_numberBox->setObjectName(QStringLiteral("recordNumberBox"));
    m_numberBox->setAccessibleName(pages ? tr("Page") : tr("Record"));
    m_numberBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_numberBox->setAlignment(Qt::AlignCenter);
    m_numberBox->setFixedSize(64, 32);
    m_numberBox->setKeyboardTracking(false);
    row->addWidget(m_numberBox);
    m_countLabel = new QLabel;
    m_countLabel->setObjectName(QStringLiteral("recordCountLabel"));
    row->addWidget(m_countLabel);
    m_nextButton = addButton(QStringLiteral("nextRecordButton"), QStyle::SP_MediaSeekForward,
                             pages ? tr("Next page") : tr("Next record"));
    m_lastButton = addButton(QStringLiteral("lastRecordButton"), QStyle::SP_MediaSkipForward,
                             pages ? tr("Last page") : tr("Last record"));
    row->addStretch(1);
}

QToolButton* RecordNavigator::addButton(const QString& name, QStyle::StandardPixmap icon,
                                        const QString& toolTip)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setIcon(style()->standardIcon(icon));
    button->setIconSize(QSize(iconSide, iconSide));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setAutoRepeat(true);
    button->setFixedSize(36, 32);
    layout()->addWidget(button);
    return button;
}

void RecordNavigator::setCount(int count)
{
    m_count = std::max(0, count);
    setCurrentIndex(m_index);
    showPosition();
}

void RecordNavigator::setCurrentIndex(int index)
{
    const int nearest = std::clamp(index, 0, std::max(0, m_count - 1));
    if (nearest != m_index) {
        m_index = nearest;
        showPosition();
        Q_EMIT currentIndexChanged(m_index);
    }
}

void RecordNavigator::showPosition()
{
    const QSignalBlocker blocker(m_numberBox);
    const bool any = m_count > 0;
    setEnabled(any);
    m_numberBox->setRange(any ? 1 : 0, m_count);
    m_numberBox->setValue(any ? m_index + 1 : 0);
    m_countLabel->setText(tr("of %1").arg(m_count));
    m_firstButton->setEnabled(m_index > 0);
    m_previousButton->setEnabled(m_index > 0);
    m_nextButton->setEnabled(m_index + 1 < m_count);
    m_lastButton->setEnabled(m_index + 1 < m_count);
}

} // namespace SampleHost
