// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/simulator/supplysimulator.h"

#include "samplehost/simulator/laminatorsimulator.h"
#include "samplehost/simulator/supplypalettes.h"

#include <printpanels/printwidget.h>

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace SampleHost {

namespace {

constexpr double millimetersPerInch = 25.4;

void selectColor(QComboBox* combo, const QString& code)
{
    const QSignalBlocker blocker(combo);
    if (combo->findData(code) < 0) {
        combo->addItem(colorIcon(code), code, code);
    }
    combo->setCurrentIndex(combo->findData(code));
}

} // namespace

SupplySimulator::SupplySimulator(QWidget* parent) : QWidget(parent)
{
    createWidgets();
    for (QComboBox* combo : {m_reportCombo, m_ribbon1Combo, m_ribbon2Combo, m_supplyCombo}) {
        connect(combo, &QComboBox::currentIndexChanged, this, [this] { reportToAll(); });
    }
    connect(m_widthBox, &QDoubleSpinBox::valueChanged, this, [this] { reportToAll(); });
    connect(m_ladderCheck, &QCheckBox::toggled, this, [this] { reportToAll(); });
    connect(m_unitCombo, &QComboBox::currentIndexChanged, this, &SupplySimulator::changeUnit);
    connect(m_paletteCheck, &QCheckBox::toggled, this, &SupplySimulator::updatePalettes);
}

void SupplySimulator::createWidgets()
{
    auto* form = new QFormLayout(this);
    form->setContentsMargins(10, 10, 10, 10);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_reportCombo = new QComboBox;
    m_reportCombo->setObjectName(QStringLiteral("supplyReportCombo"));
    m_reportCombo->addItems({tr("Nothing"), tr("One ribbon"), tr("Two ribbons")});
    form->addRow(tr("Loaded:"), m_reportCombo);
    m_ribbon1Combo = addColorCombo(form, tr("Ribbon 1:"), QStringLiteral("ribbon1Combo"),
                                   tr("blank"), SupplyColor::black);
    m_ribbon2Combo = addColorCombo(form, tr("Ribbon 2:"), QStringLiteral("ribbon2Combo"),
                                   tr("blank"), SupplyColor::red);
    m_supplyCombo = addColorCombo(form, tr("Supply:"), QStringLiteral("supplyCombo"), tr("clear"),
                                  SupplyColor::yellow);
    addWidthRow(form);
    m_ladderCheck = addCheck(form, QStringLiteral("ladderCheck"), tr("Can hold 0.2\" ladder tube"));
    m_paletteCheck = addCheck(form, QStringLiteral("paletteCheck"), tr("Safety colours only"));
    m_useLabel = new QLabel(tr("Tape"));
    m_useLabel->setObjectName(QStringLiteral("useLabel"));
    form->addRow(tr("Used as:"), m_useLabel);
    addLaminatorRow(form);
}

QComboBox* SupplySimulator::addColorCombo(QFormLayout* form, const QString& label,
                                          const QString& name, const QString& clearName,
                                          int colorIndex)
{
    auto* combo = new QComboBox;
    combo->setObjectName(name);
    fillColorCombo(combo, clearName);
    combo->setCurrentIndex(colorIndex);
    form->addRow(label, combo);
    return combo;
}

QCheckBox* SupplySimulator::addCheck(QFormLayout* form, const QString& name, const QString& text)
{
    auto* check = new QCheckBox(text);
    check->setObjectName(name);
    form->addRow(check);
    return check;
}

void SupplySimulator::addWidthRow(QFormLayout* form)
{
    m_widthBox = new QDoubleSpinBox;
    m_widthBox->setObjectName(QStringLiteral("widthBox"));
    m_widthBox->setDecimals(3);
    m_widthBox->setRange(0.0, 999999.0);
    m_widthBox->setValue(4.0);
    m_widthBox->setKeyboardTracking(false);
    m_unitCombo = new QComboBox;
    m_unitCombo->setObjectName(QStringLiteral("unitCombo"));
    m_unitCombo->addItems({tr("in"), tr("mm")});
    auto* row = new QHBoxLayout;
    row->addWidget(m_widthBox, 1);
    row->addWidget(m_unitCombo);
    auto* label = new QLabel(tr("Width:"));
    label->setBuddy(m_widthBox);
    form->addRow(label, row);
    // Screen readers take the name of a combo box from its label only. This one needs none to see.
    auto* unitLabel = new QLabel(tr("Unit of the width"), this);
    unitLabel->hide();
    unitLabel->setBuddy(m_unitCombo);
}

void SupplySimulator::addLaminatorRow(QFormLayout* form)
{
    m_laminator = new LaminatorSimulator(this);
    m_laminatorButton = new QPushButton(tr("Fit Laminator"));
    m_laminatorButton->setObjectName(QStringLiteral("laminatorButton"));
    m_laminatorButton->setToolTip(tr("Adds the colour of the film to the panels"));
    form->addRow(m_laminatorButton);
    connect(m_laminatorButton, &QPushButton::clicked, this, &SupplySimulator::connectLaminator);
}

void SupplySimulator::connectLaminator()
{
    m_laminatorButton->setEnabled(false);
    for (const QPointer<PrintWidget>& panel : std::as_const(m_panels)) {
        if (panel) {
            m_laminator->connectPanel(*panel);
        }
    }
}

void SupplySimulator::showSupplyType(const PrintWidget& panel)
{
    m_useLabel->setText(panel.isTinySupply() ? tr("Ladder shrink tube") : tr("Tape"));
}

void SupplySimulator::connectPanel(PrintWidget& panel)
{
    m_panels.append(&panel);
    // Created up front, so that the first report is shown without a delay.
    panel.createSupplyInfoLayout();
    connect(&panel, &PrintWidget::tinyLadderSupplyChangedSignal, this,
            [this, &panel] { showSupplyType(panel); });
    connect(&panel, &PrintWidget::supplyColorsChangedSignal, this,
            [this, &panel](const QStringList& reported) { applyColors(reported, &panel); });
    connect(&panel, &PrintWidget::supplyWidthChangedSignal, this,
            [this, &panel](double newWidth) { applyWidth(newWidth, &panel); });
    reportTo(panel);
    if (m_paletteCheck->isChecked()) {
        setPalettes(panel);
    }
}

SupplySimulator::Report SupplySimulator::report() const
{
    return Report(m_reportCombo->currentIndex());
}

void SupplySimulator::setReport(Report report)
{
    m_reportCombo->setCurrentIndex(int(report));
}

QStringList SupplySimulator::colors() const
{
    QStringList codes{m_ribbon1Combo->currentData().toString()};
    if (report() == Report::TwoRibbons) {
        codes.append(m_ribbon2Combo->currentData().toString());
    }
    codes.append(m_supplyCombo->currentData().toString());
    return codes;
}

double SupplySimulator::width() const
{
    return m_widthBox->value();
}

bool SupplySimulator::isMetric() const
{
    return m_unitCombo->currentIndex() == 1;
}

void SupplySimulator::reportToAll(const PrintWidget* except)
{
    for (const QPointer<PrintWidget>& panel : std::as_const(m_panels)) {
        if (panel && panel != except) {
            reportTo(*panel);
        }
    }
}

void SupplySimulator::reportTo(PrintWidget& panel) const
{
    if (report() == Report::Nothing) {
        panel.hideSupplyInfo();
        return;
    }
    m_laminator->setTwoRibbons(report() == Report::TwoRibbons);
    const unsigned char metric = isMetric() ? 1 : 0;
    panel.showSupplyInfo(colors(), report() == Report::TwoRibbons, width(), metric,
                         m_ladderCheck->isChecked());
}

void SupplySimulator::updatePalettes()
{
    for (const QPointer<PrintWidget>& panel : std::as_const(m_panels)) {
        if (panel) {
            setPalettes(*panel);
        }
    }
}

void SupplySimulator::setPalettes(PrintWidget& panel) const
{
    const SupplyPalettes palettes =
        m_paletteCheck->isChecked() ? safetyPalettes() : standardPalettes();
    panel.setColorPalette(palettes.ribbons, palettes.supplies);
}

void SupplySimulator::changeUnit()
{
    {
        // The supply stays the same; only its width is expressed in another unit.
        const QSignalBlocker blocker(m_widthBox);
        const double factor = isMetric() ? millimetersPerInch : 1.0 / millimetersPerInch;
        m_widthBox->setValue(m_widthBox->value() * factor);
    }
    reportToAll();
}

void SupplySimulator::applyColors(const QStringList& reported, const PrintWidget* from)
{
    if (reported.size() != 3) {
        return;
    }
    selectColor(m_ribbon1Combo, reported.at(0));
    if (!reported.at(1).isEmpty()) {
        selectColor(m_ribbon2Combo, reported.at(1));
    }
    selectColor(m_supplyCombo, reported.at(2));
    reportToAll(from);
}

void SupplySimulator::applyWidth(double newWidth, const PrintWidget* from)
{
    {
        const QSignalBlocker blocker(m_widthBox);
        m_widthBox->setValue(newWidth);
    }
    reportToAll(from);
}

} // namespace SampleHost
