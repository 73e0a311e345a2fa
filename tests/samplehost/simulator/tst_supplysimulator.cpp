// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/simulator/supplypalettes.h"
#include "samplehost/simulator/supplysimulator.h"
#include "support/stricttest.h"

#include <printpanels-hostkit/colormenu.h>
#include <printpanels/printwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabBar>

#include <algorithm>

using namespace SampleHost;
using Report = SupplySimulator::Report;

class TestSupplySimulator : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void nothingHidesTheSection();
    void ribbonsBecomeTabs();
    void lastColourIsBlankOrClear();
    void widthAndUnitArrive();
    void unitKeepsTheTape();
    void ladderTubeArrives();
    void palettesArrive();
    void correctionsComeBack();
    void otherPanelsFollowACorrection();
    void aPanelMayGoFirst();
    void coloursThatNobodyOffersAreKept();

private:
    template <typename Widget>
    Widget* control(const char* name) const
    {
        return m_supply->findChild<Widget*>(QString::fromLatin1(name));
    }
    static QTabBar* tabs(const PrintWidget& panel) { return panel.findChild<QTabBar*>(); }
    static QString widthText(const PrintWidget& panel);
    static ColorMenu* ribbonMenu(const PrintWidget& panel);
    static int entries(const PrintWidget& panel);

    std::unique_ptr<PrintWidget> m_panel;
    std::unique_ptr<SupplySimulator> m_supply;
};

void TestSupplySimulator::init()
{
    StrictTest::init();
    m_panel = std::make_unique<PrintWidget>(false, nullptr);
    m_supply = std::make_unique<SupplySimulator>();
    m_supply->connectPanel(*m_panel);
    m_panel->show();
    m_supply->show();
}

void TestSupplySimulator::cleanup()
{
    m_supply.reset();
    m_panel.reset();
}

QString TestSupplySimulator::widthText(const PrintWidget& panel)
{
    return panel.findChild<QLineEdit*>(QStringLiteral("supplyWidthEdit"))->text();
}

ColorMenu* TestSupplySimulator::ribbonMenu(const PrintWidget& panel)
{
    return panel.findChild<ColorMenu*>(QStringLiteral("ribbon1Menu"));
}

int TestSupplySimulator::entries(const PrintWidget& panel)
{
    const QList<QAbstractButton*> buttons = ribbonMenu(panel)->findChildren<QAbstractButton*>();
    // Entries are named after their codes; those of a palette that was replaced are not.
    return int(std::count_if(buttons.begin(), buttons.end(), [](const QObject* button) {
        return !button->objectName().isEmpty();
    }));
}

void TestSupplySimulator::nothingHidesTheSection()
{
    QCOMPARE(m_supply->report(), Report::Nothing);
    QVERIFY(!m_panel->isSupplyInfoVisible());
    m_supply->setReport(Report::OneRibbon);
    QVERIFY(m_panel->isSupplyInfoVisible());
    m_supply->setReport(Report::Nothing);
    QVERIFY(!m_panel->isSupplyInfoVisible());
}

void TestSupplySimulator::ribbonsBecomeTabs()
{
    QTest::keyClick(control<QComboBox>("supplyReportCombo"), Qt::Key_Down);
    QCOMPARE(m_supply->report(), Report::OneRibbon);
    QCOMPARE(m_supply->colors(),
             (QStringList{QStringLiteral("#000000"), QStringLiteral("#fedb00")}));
    QCOMPARE(tabs(*m_panel)->count(), 2);
    QTest::keyClick(control<QComboBox>("supplyReportCombo"), Qt::Key_Down);
    QCOMPARE(m_supply->report(), Report::TwoRibbons);
    QCOMPARE(m_supply->colors(), (QStringList{QStringLiteral("#000000"), QStringLiteral("#dc0b0b"),
                                              QStringLiteral("#fedb00")}));
    QCOMPARE(tabs(*m_panel)->count(), 3);
    QCOMPARE(tabs(*m_panel)->tabToolTip(1), QStringLiteral("Ribbon2"));
}

void TestSupplySimulator::lastColourIsBlankOrClear()
{
    m_supply->setReport(Report::TwoRibbons);
    QTest::keyClick(control<QComboBox>("ribbon2Combo"), Qt::Key_End);
    QCOMPARE(control<QComboBox>("ribbon2Combo")->currentText(), QStringLiteral("blank"));
    QCOMPARE(m_supply->colors().at(1), QStringLiteral("#fffffe"));
    QCOMPARE(tabs(*m_panel)->tabToolTip(1), QStringLiteral("Blank Ribbon2"));
    QTest::keyClick(control<QComboBox>("supplyCombo"), Qt::Key_End);
    QCOMPARE(control<QComboBox>("supplyCombo")->currentText(), QStringLiteral("clear"));
    QCOMPARE(m_supply->colors().at(2), QStringLiteral("#fffffe"));
}

void TestSupplySimulator::widthAndUnitArrive()
{
    m_supply->setReport(Report::OneRibbon);
    QCOMPARE(widthText(*m_panel), QStringLiteral("4.00"));
    control<QDoubleSpinBox>("widthBox")->setValue(2.25);
    QCOMPARE(widthText(*m_panel), QStringLiteral("2.25"));
}

void TestSupplySimulator::unitKeepsTheTape()
{
    m_supply->setReport(Report::OneRibbon);
    QVERIFY(!m_supply->isMetric());
    QTest::keyClick(control<QComboBox>("unitCombo"), Qt::Key_Down);
    QVERIFY(m_supply->isMetric());
    QCOMPARE(m_supply->width(), 101.6);
    QCOMPARE(widthText(*m_panel), QStringLiteral("101.60"));
    QTest::keyClick(control<QComboBox>("unitCombo"), Qt::Key_Up);
    QCOMPARE(m_supply->width(), 4.0);
}

void TestSupplySimulator::ladderTubeArrives()
{
    m_supply->setReport(Report::OneRibbon);
    auto* tube = m_panel->findChild<QCheckBox*>(QStringLiteral("tinyLadderCheck"));
    QVERIFY(!tube->isVisible());
    control<QCheckBox>("ladderCheck")->click();
    QVERIFY(tube->isVisible());
}

void TestSupplySimulator::palettesArrive()
{
    m_supply->setReport(Report::TwoRibbons);
    QCOMPARE(entries(*m_panel), 10);
    control<QCheckBox>("paletteCheck")->click();
    QCOMPARE(entries(*m_panel), 4);
    control<QCheckBox>("paletteCheck")->click();
    QCOMPARE(entries(*m_panel), 10);

    // A panel that comes later gets the colours that are in force.
    control<QCheckBox>("paletteCheck")->click();
    PrintWidget late(false, nullptr);
    m_supply->connectPanel(late);
    QVERIFY(late.isSupplyInfoVisible());
    QCOMPARE(entries(late), 4);
}

void TestSupplySimulator::correctionsComeBack()
{
    m_supply->setReport(Report::TwoRibbons);
    QSignalSpy colors(m_panel.get(), &PrintWidget::supplyColorsChangedSignal);
    auto* green = ribbonMenu(*m_panel)->findChild<QAbstractButton*>(QStringLiteral("#248d4f"));
    QVERIFY(green != nullptr);
    QTest::mouseClick(green, Qt::LeftButton);
    QCOMPARE(colors.size(), qsizetype(1));
    QCOMPARE(colors.at(0).at(0).toStringList().at(0), QStringLiteral("#248d4f"));
    QCOMPARE(m_supply->colors().at(0), QStringLiteral("#248d4f"));

    auto* width = m_panel->findChild<QLineEdit*>(QStringLiteral("supplyWidthEdit"));
    width->selectAll();
    QTest::keyClicks(width, QStringLiteral("1.5"));
    QTest::keyClick(width, Qt::Key_Return);
    QCOMPARE(m_supply->width(), 1.5);
}

void TestSupplySimulator::otherPanelsFollowACorrection()
{
    PrintWidget other(false, nullptr);
    m_supply->connectPanel(other);
    m_supply->setReport(Report::OneRibbon);
    auto* width = m_panel->findChild<QLineEdit*>(QStringLiteral("supplyWidthEdit"));
    width->selectAll();
    QTest::keyClicks(width, QStringLiteral("3"));
    QTest::keyClick(width, Qt::Key_Return);
    QCOMPARE(widthText(other), QStringLiteral("3.00"));
    // What the user typed stays as it was typed.
    QCOMPARE(widthText(*m_panel), QStringLiteral("3"));
}

void TestSupplySimulator::aPanelMayGoFirst()
{
    m_panel.reset();
    m_supply->setReport(Report::TwoRibbons);
    control<QCheckBox>("paletteCheck")->click();
    QCOMPARE(m_supply->colors().size(), qsizetype(3));
}

void TestSupplySimulator::coloursThatNobodyOffersAreKept()
{
    m_supply->setReport(Report::OneRibbon);
    Q_EMIT m_panel->supplyColorsChangedSignal(
        {QStringLiteral("#123456"), QString(), QStringLiteral("#fffffe")});
    QCOMPARE(m_supply->colors(),
             (QStringList{QStringLiteral("#123456"), QStringLiteral("#fffffe")}));
    Q_EMIT m_panel->supplyColorsChangedSignal({});
    QCOMPARE(m_supply->colors().at(0), QStringLiteral("#123456"));
}

QTEST_MAIN(TestSupplySimulator)

#include "tst_supplysimulator.moc"
