// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/labeltypebar.h"

#include "samplehost/pages/flowlayout.h"
#include "samplehost/pages/nupcombo.h"
#include "samplehost/printing/hostsettings.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

namespace SampleHost {

LabelTypeBar::LabelTypeBar(HostSettings& settings, QWidget* parent)
    : QWidget(parent), m_settings(settings)
{
    createWidgets();
    connect(m_nupCombo, &NupCombo::layoutChosen, &m_settings, &HostSettings::setNup);
    connect(&m_settings, &HostSettings::changed, this, &LabelTypeBar::showSettings);
    showSettings();
}

void LabelTypeBar::createWidgets()
{
    auto* rows = new FlowLayout(12, 6, this);
    auto* sheet = new QWidget;
    auto* row = new QHBoxLayout(sheet);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    auto* sheetLabel = new QLabel(tr("Sheet:"));
    row->addWidget(sheetLabel);
    m_nupCombo = new NupCombo;
    sheetLabel->setBuddy(m_nupCombo);
    m_nupCombo->setObjectName(QStringLiteral("nupCombo"));
    m_nupCombo->setToolTip(tr("How many labels are printed on one sheet"));
    row->addWidget(m_nupCombo);
    rows->addWidget(sheet);
    m_dynamicCheck = addCheck(
        QStringLiteral("dynamicLengthCheck"), tr("Dynamic length"),
        tr("Labels of this type vary in length, so a sheet can only repeat one label"), false);
    m_boundCheck = addCheck(QStringLiteral("boundCheck"), tr("Data source"),
                            tr("The label takes its contents from the records"), true);
    m_backgroundCheck = addCheck(QStringLiteral("backgroundCheck"), tr("Background layer"),
                                 tr("The user has put a background under the label"), false);
}

QCheckBox* LabelTypeBar::addCheck(const QString& name, const QString& text, const QString& toolTip,
                                  bool checked)
{
    auto* check = new QCheckBox(text);
    check->setObjectName(name);
    check->setToolTip(toolTip);
    check->setChecked(checked);
    connect(check, &QCheckBox::toggled, this, &LabelTypeBar::changed);
    layout()->addWidget(check);
    return check;
}

void LabelTypeBar::showSettings()
{
    m_nupCombo->setLayoutChoice(m_settings.nup());
}

bool LabelTypeBar::isDynamicLength() const
{
    return m_dynamicCheck->isChecked();
}

bool LabelTypeBar::isBound() const
{
    return m_boundCheck->isChecked();
}

void LabelTypeBar::setBound(bool bound)
{
    m_boundCheck->setChecked(bound);
}

bool LabelTypeBar::hasUserBackground() const
{
    return m_backgroundCheck->isChecked();
}

} // namespace SampleHost
