// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/stricttest.h"
#include "support/translationrecorder.h"

#include <expandingtabbar.h>
#include <printpanels/printwidget.h>

#include <QtCore/QLocale>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

namespace {

struct TextRow
{
    const char* text;
    const char* comment;
};

/** Every text of the panel, with its translator comment. */
const TextRow texts[] = {
    {"Online", "Printer status"},
    {"Offline", "Printer status"},
    {"Remote", "Printer status"},
    {", Unavailable", "Printer status"},
    {"PRINT SETTINGS", "Title for print settings."},
    {"Print User Background", "Checkbox to print or not the user background layer"},
    {"Printer:", "Label showing printer name."},
    {"Location:", "Label next to the printer physical location."},
    {"Status:", "Label next to the printer status."},
    {"Copies:", "Label next to the display of the number of copies."},
    {" Print ", "Button for initiating a print."},
    {"Print Preview", "Button for showing a print preview."},
    {"Records to Print:", "Records range label text."},
    {"Current Record", "Current record radio button text."},
    {"All Records", "All records radio button text."},
    {"Range or List of Records:", "Custom record list radio button text."},
    {"Example:", "An example of a possible entry"},
    {"Enter a list of record numbers and/or ranges, separated by comma.",
     "Tool tip text for record list entry."},
    {"List of Records", "Name of the record list entry for screen readers."},
    {"N-up replicating: Select to print identical labels on a single page.",
     "N-up print checkbox tool tip text."},
    {"N-up sequencing: Select to print multiple labels from the sequence on a single page.",
     "N-up print checkbox tool tip text."},
    {"N-up replicating option is disabled when dynamic length option is on.",
     "N-up print checkbox tool tip text."},
    {"N-up replicating option is enabled only for multiple records.",
     "N-up print checkbox tool tip text."},
    {"N-up replicating or sequencing:", "N-up print options title."},
    {"Item To Print:", "Which item to print label text"},
    {"Label", "The option to print the label"},
    {"High Pressure Tag", "The option to print the high pressure tag"},
    {"Low Pressure Tag", "The option to print the low pressure tag"},
    {"Vapor State Tag", "The option to print the vapor state tag"},
    {"Liquid State Tag", "The option to print the liquid state tag"},
    {"Loaded Supply:", "Title for Supply Color Frame"},
    {"Tape Width:", "Label for Supply Tape Width."},
    {"Millimeters", "Unit of the tape width for screen readers."},
    {"Inches", "Unit of the tape width for screen readers."},
    {"0.2\" Ladder Shrink Tube", ""},
    {"Select loaded color.", "ToolTip for color selection."},
    {"Ribbon%1", "Label for the ribbon color."},
    {"Blank Ribbon%1", "Label for the ribbon color."},
    {"Supply", "Label for the supply color."},
    {"Print to file:\n\" guest / logs / printTest_iii . prn \"", "Option to print to a file."},
    {"Error number: ", "Label for testing the errors."},
    {"Show", "Button for testing the errors."},
};

const QString context = QStringLiteral("PrintWidget");

QString marked(const char* text, const char* comment)
{
    return TranslationRecorder::marked(context, QString::fromUtf8(text),
                                       QString::fromUtf8(comment));
}

QString keyText(const TranslationKey& key)
{
    return key.context + u'|' + key.text + u'|' + key.comment;
}

/** Everything that the panel ever shows is on it: both ribbons, one of them blank, tags, test
 * controls. */
void showEverything(PrintPanelFixture& panel)
{
    panel.setModule(JxModuleInfo::PipeMarking);
    panel.setVisibleAmmoniaTag(15);
    panel.showSupplyInfo(colors({"#dc0b0b", "#fffffe", "#ffffff"}), true, 12.0, 1, true);
    panel.showSupplyInfo(colors({"#dc0b0b", "#fffffe", "#ffffff"}), true, 4.0, 0, true);
    panel.setRangeValues(0, 0, true);
    panel.updatePrinterStatus(true, false, true);
}

} // namespace

class tst_PanelTexts : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsLookedUpWithItsKey_data();
    void everyTextIsLookedUpWithItsKey();
    void noTextIsLookedUpByAnotherKey();
    void labelsShowTheirTranslation_data();
    void labelsShowTheirTranslation();
    void propertiesShowTheirTranslation_data();
    void propertiesShowTheirTranslation();
    void itemNamesAreTranslated();
    void statusIsComposedOfTheTranslations();
    void listTextsAreComposedOfTheTranslations();
    void tabToolTipsAreTranslated();
    void nupToolTipsAreTranslated();
    void noPrinterIsNotTranslated();
    void statusTextsAreTranslatedOnce();
    void widthIsFormattedWithAPointInEveryLocale();
};

void tst_PanelTexts::everyTextIsLookedUpWithItsKey_data()
{
    addColumns<QString, QString>("text", "comment");
    for (const TextRow& row : texts)
        QTest::newRow(row.text) << QString::fromUtf8(row.text) << QString::fromUtf8(row.comment);
}

void tst_PanelTexts::everyTextIsLookedUpWithItsKey()
{
    QFETCH(const QString, text);
    QFETCH(const QString, comment);
    const TranslationRecorder recorder(context);
    PrintPanelFixture panel(true);
    showEverything(panel);
    QVERIFY(recorder.keys().contains(TranslationKey{context, text, comment}));
}

void tst_PanelTexts::noTextIsLookedUpByAnotherKey()
{
    QStringList expected;
    for (const TextRow& row : texts)
        expected.append(
            keyText({context, QString::fromUtf8(row.text), QString::fromUtf8(row.comment)}));
    const TranslationRecorder recorder(context);
    PrintPanelFixture panel(true);
    showEverything(panel);
    const QList<TranslationKey> keys = recorder.keys();
    for (const TranslationKey& key : keys)
        QVERIFY2(expected.contains(keyText(key)), qPrintable(keyText(key)));
}

void tst_PanelTexts::labelsShowTheirTranslation_data()
{
    QTest::addColumn<QString>("shown");
    const QList<QByteArray> labels = {"PRINT SETTINGS",
                                      "Printer:",
                                      "Location:",
                                      "Status:",
                                      "Copies:",
                                      "Records to Print:",
                                      "N-up replicating or sequencing:",
                                      "Item To Print:",
                                      "Loaded Supply:",
                                      "Tape Width:",
                                      "Error number: "};
    int found = 0;
    for (const TextRow& row : texts) {
        if (!labels.contains(row.text))
            continue;
        ++found;
        QTest::newRow(row.text) << marked(row.text, row.comment);
    }
    QCOMPARE(found, labels.size());
}

void tst_PanelTexts::labelsShowTheirTranslation()
{
    QFETCH(const QString, shown);
    const TranslationRecorder recorder(context);
    PrintPanelFixture panel(true);
    showEverything(panel);
    QVERIFY(labelWithText(panel, shown));
}

void tst_PanelTexts::propertiesShowTheirTranslation_data()
{
    addColumns<QByteArray, QByteArray, QString>("name", "property", "shown");
    const auto row = [](const char* name, const char* property, const char* text,
                        const char* comment) {
        QTest::addRow("%s.%s", name, property)
            << QByteArray(name) << QByteArray(property) << marked(text, comment);
    };
    row("PrintButton", "text", " Print ", "Button for initiating a print.");
    row("PreviewButton", "text", "Print Preview", "Button for showing a print preview.");
    row("userBackgroundCheck", "text", "Print User Background",
        "Checkbox to print or not the user background layer");
    row("currentRecordRadio", "text", "Current Record", "Current record radio button text.");
    row("allRecordsRadio", "text", "All Records", "All records radio button text.");
    row("recordListRadio", "text",
        "Range or List of Records:", "Custom record list radio button text.");
    row("tinyLadderCheck", "text", "0.2\" Ladder Shrink Tube", "");
    row("stackGroup", "toolTip", "Select loaded color.", "ToolTip for color selection.");
    row("printToFileCheck", "text", "Print to file:\n\" guest / logs / printTest_iii . prn \"",
        "Option to print to a file.");
    row("showErrorButton", "text", "Show", "Button for testing the errors.");
    row("replicatingRadio", "toolTip",
        "N-up replicating: Select to print identical labels on a single page.",
        "N-up print checkbox tool tip text.");
    row("replicatingIconLabel", "toolTip",
        "N-up replicating: Select to print identical labels on a single page.",
        "N-up print checkbox tool tip text.");
    row("sequencingRadio", "toolTip",
        "N-up sequencing: Select to print multiple labels from the sequence on a single page.",
        "N-up print checkbox tool tip text.");
}

void tst_PanelTexts::propertiesShowTheirTranslation()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, property);
    const TranslationRecorder recorder(context);
    PrintPanelFixture panel(true);
    showEverything(panel);
    QTEST(panel.part<QWidget>(name.constData())->property(property.constData()).toString(),
          "shown");
}

void tst_PanelTexts::itemNamesAreTranslated()
{
    const TranslationRecorder recorder(context);
    PrintPanelFixture panel;
    panel.setVisibleAmmoniaTag(15);
    const auto* combo = panel.part<QComboBox>("AmmoniaPrintCombo");
    QCOMPARE(combo->itemText(0), marked("Label", "The option to print the label"));
    QCOMPARE(combo->itemText(1),
             marked("High Pressure Tag", "The option to print the high pressure tag"));
    QCOMPARE(combo->itemText(2),
             marked("Low Pressure Tag", "The option to print the low pressure tag"));
    QCOMPARE(combo->itemText(3),
             marked("Vapor State Tag", "The option to print the vapor state tag"));
    QCOMPARE(combo->itemText(4),
             marked("Liquid State Tag", "The option to print the liquid state tag"));
}

void tst_PanelTexts::statusIsComposedOfTheTranslations()
{
    const TranslationRecorder recorder(context);
    PrintPanelFixture panel;
    const auto* label = panel.part<QLabel>("statusLabel");
    const QString unavailable = marked(", Unavailable", "Printer status");
    panel.updatePrinterStatus(false, false, true);
    QCOMPARE(label->text(), marked("Online", "Printer status") + unavailable);
    panel.updatePrinterStatus(true, false, true);
    QCOMPARE(label->text(), marked("Offline", "Printer status") + unavailable);
    panel.updatePrinterStatus(true, true, true);
    QCOMPARE(label->text(), marked("Remote", "Printer status") + unavailable);
}

void tst_PanelTexts::listTextsAreComposedOfTheTranslations()
{
    const TranslationRecorder recorder(context);
    const PrintPanelFixture panel;
    const QString example =
        marked("Example:", "An example of a possible entry") + QStringLiteral("  1,4-5,11-20,33");
    const auto* edit = panel.part<QWidget>("recordListEdit");
    QCOMPARE(edit->property("placeholderText").toString(), QStringLiteral("   ") + example);
    QCOMPARE(edit->toolTip(),
             marked("Enter a list of record numbers and/or ranges, separated by comma.",
                    "Tool tip text for record list entry.") +
                 QStringLiteral("\n") + example);
}

void tst_PanelTexts::tabToolTipsAreTranslated()
{
    const TranslationRecorder recorder(context);
    PrintPanelFixture panel;
    const char* const comment = "Label for the ribbon color.";
    const auto toolTip = [&panel](int index) { return panel.colorTabs()->tabToolTip(index); };
    panel.showSupplyInfo(colors({"#dc0b0b", "#fffffe", "#ffffff"}), true, 4.0, 0, true);
    QCOMPARE(toolTip(0), marked("Ribbon1", comment));
    QCOMPARE(toolTip(1), marked("Blank Ribbon2", comment));
    QCOMPARE(toolTip(2), marked("Supply", "Label for the supply color."));
    panel.showSupplyInfo(colors({"#fffffe", "#dc0b0b", "#ffffff"}), true, 4.0, 0, true);
    QCOMPARE(toolTip(0), marked("Blank Ribbon1", comment));
    QCOMPARE(toolTip(1), marked("Ribbon2", comment));
}

void tst_PanelTexts::nupToolTipsAreTranslated()
{
    const TranslationRecorder recorder(context);
    PrintPanelFixture panel;
    const auto* frame = panel.part<QWidget>("nupFrame");
    panel.setRangeValues(0, 0, true);
    QCOMPARE(frame->toolTip(),
             marked("N-up replicating option is enabled only for multiple records.",
                    "N-up print checkbox tool tip text."));
    panel.setNupDynamicLength(true);
    QCOMPARE(frame->toolTip(),
             marked("N-up replicating option is disabled when dynamic length option is on.",
                    "N-up print checkbox tool tip text."));
}

void tst_PanelTexts::noPrinterIsNotTranslated()
{
    const TranslationRecorder recorder(context);
    PrintPanelFixture panel;
    panel.updateListOfPrinters({}, 0);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("No printer"));
}

void tst_PanelTexts::statusTextsAreTranslatedOnce()
{
    PrintPanelFixture panel;
    const TranslationRecorder late(context);
    panel.updatePrinterStatus(true, false, true);
    QCOMPARE(panel.part<QLabel>("statusLabel")->text(), QStringLiteral("Offline, Unavailable"));
    QVERIFY(late.keys().isEmpty());
}

void tst_PanelTexts::widthIsFormattedWithAPointInEveryLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    PrintPanelFixture panel;
    panel.showSupplyInfo(colors({"#000000"}), false, 1234.5, 0, false);
    const QString text = panel.widthEdit()->property("text").toString();
    QLocale::setDefault(before);
    QCOMPARE(text, QStringLiteral("1234.50"));
}

QTEST_MAIN(tst_PanelTexts)
#include "tst_paneltexts.moc"
