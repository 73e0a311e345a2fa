// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/stylesheets.h"
#include "support/expectedsheet.h"
#include "support/stricttest.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>

namespace {

using Role = QString (*)();

struct RoleRow
{
    const char* name;
    Role role;
    int characters;
    bool endsWithLineFeed;
};

const RoleRow roles[] = {
    {"panel", StyleSheets::panel, 2537, true},
    {"printSettingsPanel", StyleSheets::printSettingsPanel, 2998, true},
    {"primaryPushButton", StyleSheets::primaryPushButton, 507, true},
    {"tallPushButton", StyleSheets::tallPushButton, 507, true},
    {"printerSettingsButton", StyleSheets::printerSettingsButton, 618, false},
    {"checkBoxIndicator", StyleSheets::checkBoxIndicator, 466, true},
    {"radioButtonIndicator", StyleSheets::radioButtonIndicator, 508, true},
    {"plusStepButton", StyleSheets::plusStepButton, 222, true},
    {"minusStepButton", StyleSheets::minusStepButton, 225, true},
    {"replicatingLabel", StyleSheets::replicatingLabel, 204, false},
    {"sequencingLabel", StyleSheets::sequencingLabel, 202, false},
    {"zoomInButton", StyleSheets::zoomInButton, 207, false},
    {"zoomOutButton", StyleSheets::zoomOutButton, 209, false},
    {"fitButton", StyleSheets::fitButton, 333, false},
    {"portraitButton", StyleSheets::portraitButton, 233, false},
    {"landscapeButton", StyleSheets::landscapeButton, 235, false},
    {"previewFrame", StyleSheets::previewFrame, 53, false},
    {"multiPageDialogFrame", StyleSheets::multiPageDialogFrame, 80, false},
    {"previewDialogFrame", StyleSheets::previewDialogFrame, 75, false},
};

/** The combo box, scroll bar and spin box block, cut out of the panel's sheet by its length. */
QString comboBoxBlock()
{
    return StyleSheets::panel().mid(507, 1522);
}

QString tabBarBlock()
{
    return StyleSheets::printSettingsPanel().mid(2496);
}

/** The colour in the middle of a button without a text. */
QColor faceColor(QPushButton& button)
{
    const QImage image = button.grab().toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

} // namespace

class tst_StyleSheets : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
    void everyExpectedTextBelongsToARole();
    void panelIsComposedOfThreeBlocks();
    void printSettingsPanelIsComboCheckRadioAndTabBlocks();
    void printerSettingsButtonIsPushButtonBlockAndIconRule();
    void tallButtonDiffersOnlyInItsHeight();
    void radioBlockKeepsTheJoinedLine();
    void disabledPushButtonColours_data();
    void disabledPushButtonColours();
    void fitButtonHasNoDisabledStateAndItsOwnRadius();
    void disabledButtonLooksGreyEnabledDarkPressedOrange();
    void controlsKeepTheirSizesWithoutTheHostsImages();
    void qtReadsEverySheet_data();
    void qtReadsEverySheet();
};

void tst_StyleSheets::text_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const RoleRow& role : roles)
        QTest::newRow(role.name) << row++;
}

void tst_StyleSheets::text()
{
    QFETCH(const int, row);
    const RoleRow& role = roles[row];
    const QString sheet = role.role();
    QCOMPARE(sheet.size(), role.characters);
    QCOMPARE(sheet.endsWith(QLatin1Char('\n')), role.endsWithLineFeed);
    QVERIFY(!sheet.contains(QLatin1Char('\r')));
    QCOMPARE(sheet, expectedSheet(role.name));
}

void tst_StyleSheets::everyExpectedTextBelongsToARole()
{
    QStringList names;
    for (const RoleRow& role : roles)
        names.append(QLatin1String(role.name) + QLatin1String(".qss"));
    names.sort();
    QCOMPARE(QDir(QStringLiteral(EXPECTED_SHEETS)).entryList(QDir::Files, QDir::Name), names);
}

void tst_StyleSheets::panelIsComposedOfThreeBlocks()
{
    QCOMPARE(comboBoxBlock().size(), 1522);
    QVERIFY(
        comboBoxBlock().startsWith(QStringLiteral("QComboBox { border: 1px solid #c6c6c6; }\n")));
    QVERIFY(comboBoxBlock().endsWith(
        QStringLiteral("QSpinBox { min-height: 35px; border: 1px solid #c6c6c6; }\n")));
    QCOMPARE(StyleSheets::panel(), StyleSheets::primaryPushButton() + comboBoxBlock() +
                                       StyleSheets::radioButtonIndicator());
}

void tst_StyleSheets::printSettingsPanelIsComboCheckRadioAndTabBlocks()
{
    QCOMPARE(tabBarBlock().size(), 502);
    QVERIFY(tabBarBlock().startsWith(QStringLiteral("QTabBar {  } \n")));
    QCOMPARE(StyleSheets::printSettingsPanel().first(2496),
             comboBoxBlock() + StyleSheets::checkBoxIndicator() +
                 StyleSheets::radioButtonIndicator());
}

void tst_StyleSheets::printerSettingsButtonIsPushButtonBlockAndIconRule()
{
    QCOMPARE(StyleSheets::printerSettingsButton(),
             StyleSheets::primaryPushButton() +
                 QStringLiteral("QPushButton { border: 1px solid #fd7800; qproperty-icon: "
                                "url(:/printicons/printericons/printer_settings.png); }"));
}

void tst_StyleSheets::tallButtonDiffersOnlyInItsHeight()
{
    QString tall = StyleSheets::primaryPushButton();
    QCOMPARE(tall.count(QStringLiteral("min-height: 35px")), 1);
    tall.replace(QStringLiteral("min-height: 35px"), QStringLiteral("min-height: 40px"));
    QCOMPARE(StyleSheets::tallPushButton(), tall);
}

void tst_StyleSheets::radioBlockKeepsTheJoinedLine()
{
    const QString sheet = StyleSheets::radioButtonIndicator();
    QCOMPARE(sheet.count(QLatin1Char('\n')), 4);
    QVERIFY(sheet.contains(QStringLiteral("radio-button_unchecked.png); }"
                                          "QRadioButton::indicator::checked::disabled {")));
}

void tst_StyleSheets::disabledPushButtonColours_data()
{
    QTest::addColumn<QString>("sheet");
    addRow("panel", StyleSheets::panel());
    addRow("primary", StyleSheets::primaryPushButton());
    addRow("tall", StyleSheets::tallPushButton());
    addRow("printer settings", StyleSheets::printerSettingsButton());
}

void tst_StyleSheets::disabledPushButtonColours()
{
    QFETCH(const QString, sheet);
    const qsizetype rule = sheet.indexOf(QStringLiteral("QPushButton:disabled {"));
    QVERIFY(rule >= 0);
    const QString body = sheet.sliced(rule, sheet.indexOf(QLatin1Char('}'), rule) - rule);
    QVERIFY(body.contains(QStringLiteral("stop: 0 #d3d3d3, stop: 1 #a8a8a8")));
    QVERIFY(body.contains(QStringLiteral("color: #848484;")));
}

void tst_StyleSheets::fitButtonHasNoDisabledStateAndItsOwnRadius()
{
    QVERIFY(!StyleSheets::fitButton().contains(QStringLiteral("disabled")));
    QVERIFY(StyleSheets::fitButton().contains(QStringLiteral("border-radius: 5px;")));
    QVERIFY(StyleSheets::primaryPushButton().contains(QStringLiteral("border-radius: 6px;")));
}

void tst_StyleSheets::disabledButtonLooksGreyEnabledDarkPressedOrange()
{
    QPushButton button;
    button.setStyleSheet(StyleSheets::primaryPushButton());
    button.resize(120, 40);
    QVERIFY(faceColor(button).lightness() < 80);
    button.setDown(true);
    QCOMPARE(faceColor(button), QColor(0xfd, 0x78, 0x00));
    button.setDown(false);
    button.setEnabled(false);
    const QColor grey = faceColor(button);
    QCOMPARE(grey.saturation(), 0);
    QVERIFY(grey.red() >= 0xa8 && grey.red() <= 0xd3);
    QCOMPARE(button.palette().color(QPalette::Disabled, QPalette::ButtonText),
             QColor(0x84, 0x84, 0x84));
}

void tst_StyleSheets::controlsKeepTheirSizesWithoutTheHostsImages()
{
    QVERIFY(!QFile::exists(QStringLiteral(":/module_icons/ModuleIcons/checkbox_selected.png")));
    QWidget panel;
    panel.setStyleSheet(StyleSheets::printSettingsPanel());
    auto* check = new QCheckBox(&panel);
    auto* radio = new QRadioButton(&panel);
    auto* combo = new QComboBox(&panel);
    auto* spin = new QSpinBox(&panel);
    QVERIFY(!panel.grab().isNull());

    QStyleOptionButton option;
    option.initFrom(check);
    QCOMPARE(check->style()->pixelMetric(QStyle::PM_IndicatorWidth, &option, check), 41);
    QCOMPARE(check->style()->pixelMetric(QStyle::PM_IndicatorHeight, &option, check), 37);
    option.initFrom(radio);
    QCOMPARE(radio->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, &option, radio), 24);
    QCOMPARE(radio->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, &option, radio), 24);
    QVERIFY(combo->sizeHint().height() >= 35);
    QVERIFY(spin->sizeHint().height() >= 35);
}

void tst_StyleSheets::qtReadsEverySheet_data()
{
    QTest::addColumn<int>("row");
    int row = 0;
    for (const RoleRow& role : roles)
        QTest::newRow(role.name) << row++;
}

// A sheet that Qt cannot parse is reported by a warning when the widget is polished.
void tst_StyleSheets::qtReadsEverySheet()
{
    QFETCH(const int, row);
    QWidget parent;
    parent.setStyleSheet(roles[row].role());
    parent.ensurePolished();
    QVERIFY(!parent.styleSheet().isEmpty());
}

QTEST_MAIN(tst_StyleSheets)
#include "tst_stylesheets.moc"
