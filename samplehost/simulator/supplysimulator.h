// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SUPPLYSIMULATOR_H
#define SAMPLEHOST_SUPPLYSIMULATOR_H

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QPushButton;

class PrintWidget;

namespace SampleHost {

class LaminatorSimulator;

/**
 * Simulates a label printer that reports the loaded supply. Every change is reported to all
 * connected panels; what the user changes in one panel is shown here and in the others.
 */
class SupplySimulator : public QWidget
{
    Q_OBJECT

public:
    /** What the printer reports. */
    enum class Report {
        Nothing, ///< The printer does not report its supply.
        OneRibbon,
        TwoRibbons
    };

    /** A printer that reports nothing. */
    explicit SupplySimulator(QWidget* parent = nullptr);

    /** Reports to a panel from now on. The panel may be destroyed before the simulator. */
    void connectPanel(PrintWidget& panel);

    /** What is reported now. */
    Report report() const;
    /** Changes what is reported, as if the user had selected it. */
    void setReport(Report report);

    /** The codes that are reported: ribbon 1, ribbon 2 if there are two, supply. */
    QStringList colors() const;
    /** The width that is reported, in the chosen unit. */
    double width() const;
    /** Whether the width is in millimetres. */
    bool isMetric() const;

private:
    void createWidgets();
    QComboBox* addColorCombo(QFormLayout* form, const QString& label, const QString& name,
                             const QString& clearName, int colorIndex);
    QCheckBox* addCheck(QFormLayout* form, const QString& name, const QString& text);
    void addWidthRow(QFormLayout* form);
    void addLaminatorRow(QFormLayout* form);
    void connectLaminator();
    void showSupplyType(const PrintWidget& panel);
    void reportToAll(const PrintWidget* except = nullptr);
    void reportTo(PrintWidget& panel) const;
    void updatePalettes();
    void setPalettes(PrintWidget& panel) const;
    void changeUnit();
    void applyColors(const QStringList& reported, const PrintWidget* from);
    void applyWidth(double width, const PrintWidget* from);

    QList<QPointer<PrintWidget>> m_panels;
    QComboBox* m_reportCombo = nullptr;
    QComboBox* m_ribbon1Combo = nullptr;
    QComboBox* m_ribbon2Combo = nullptr;
    QComboBox* m_supplyCombo = nullptr;
    QDoubleSpinBox* m_widthBox = nullptr;
    QComboBox* m_unitCombo = nullptr;
    QCheckBox* m_ladderCheck = nullptr;
    QCheckBox* m_paletteCheck = nullptr;
    QLabel* m_useLabel = nullptr;
    QPushButton* m_laminatorButton = nullptr;
    LaminatorSimulator* m_laminator = nullptr;
};

} // namespace SampleHost

#endif
