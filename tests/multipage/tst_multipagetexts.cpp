// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagefixture.h"
#include "support/stricttest.h"
#include "support/translationrecorder.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>

#include <algorithm>

namespace {

QString marked(const char* text, const char* comment)
{
    return TranslationRecorder::marked(QStringLiteral("MultiPagePrintWidget"),
                                       QString::fromLatin1(text), QString::fromLatin1(comment));
}

QList<TranslationKey> sorted(QList<TranslationKey> keys)
{
    std::sort(keys.begin(), keys.end(),
              [](const TranslationKey& a, const TranslationKey& b) { return a.text < b.text; });
    return keys;
}

} // namespace

/** What the user reads, and under which key it is translated. */
class tst_MultiPageTexts : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void english_data();
    void english();
    void buttonTexts_data();
    void buttonTexts();
    void pageListTexts();
    void orientationToolTip();
    void translatedButtons_data();
    void translatedButtons();
    void translatedLabels();
    void translatedPageList();
    void everyKeyIsAskedForOnce();
    void printerNamesAreNotTranslated();
    void windowTitleIsTranslated();
};

void tst_MultiPageTexts::english_data()
{
    QTest::addColumn<bool>("shown");
    for (const char* text : {"PRINT SETTINGS", "Printer:", "Page Range:", "Copies:"})
        QTest::newRow(text) << true;
    addRow("Records to Print:", false);
}

void tst_MultiPageTexts::english()
{
    const MultiPageFixture panel;
    QTEST(labelWithText(panel, QLatin1String(QTest::currentDataTag())) != nullptr, "shown");
}

void tst_MultiPageTexts::buttonTexts_data()
{
    QTest::addColumn<QString>("text");
    addRow("currentPageRadio", "Current Page");
    addRow("allPagesRadio", "All Pages");
    addRow("selectionRadio", "Selection:  ");
    addRow("orientationCheck", "Print 180 Orientation");
    addRow("formFillCheck", "Print Only Form Fill Text");
    addRow("fitToPageCheck", "Fit To Page ");
    addRow("PrintButton", "       Print       ");
    addRow("PreferencesButton", QString());
    addRow("minusButton", QString());
    addRow("plusButton", QString());
}

void tst_MultiPageTexts::buttonTexts()
{
    const MultiPageFixture panel;
    QTEST(panel.part<QAbstractButton>(QTest::currentDataTag())->text(), "text");
}

void tst_MultiPageTexts::pageListTexts()
{
    const MultiPageFixture panel;
    const auto* edit = panel.pageList();
    QCOMPARE(edit->placeholderText(), QStringLiteral("   Example:  1,4-5,11-20,33"));
    QCOMPARE(edit->toolTip(),
             QStringLiteral("Enter a list of record numbers and/or ranges, separated by comma.\n"
                            "Example:  1,4-5,11-20,33"));
}

void tst_MultiPageTexts::orientationToolTip()
{
    const MultiPageFixture panel;
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
    QStringList tips;
    for (const QWidget* child : children) {
        if (!child->toolTip().isEmpty())
            tips.append(child->objectName());
    }
    QCOMPARE(tips,
             QStringList({QStringLiteral("orientationCheck"), QStringLiteral("pageListEdit")}));
    QCOMPARE(panel.part<QAbstractButton>("orientationCheck")->toolTip(),
             QStringLiteral("Switch Print Orientation"));
}

void tst_MultiPageTexts::translatedButtons_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* text, const char* comment) {
        QTest::newRow(name) << marked(text, comment);
    };
    row("currentPageRadio", "Current Page", "Current page radio button text.");
    row("allPagesRadio", "All Pages", "All pages radio button text.");
    row("selectionRadio", "Selection:  ", "Select page range radio button text.");
    row("orientationCheck", "Print 180 Orientation", "");
    row("formFillCheck", "Print Only Form Fill Text", "");
    row("fitToPageCheck", "Fit To Page ", "");
    row("PrintButton", "       Print       ", "Button for initiating a print.");
}

void tst_MultiPageTexts::translatedButtons()
{
    const TranslationRecorder recorder(QStringLiteral("MultiPagePrintWidget"));
    const MultiPageFixture panel;
    QTEST(panel.part<QAbstractButton>(QTest::currentDataTag())->text(), "text");
}

void tst_MultiPageTexts::translatedLabels()
{
    const TranslationRecorder recorder(QStringLiteral("MultiPagePrintWidget"));
    const MultiPageFixture panel;
    QVERIFY(labelWithText(panel, marked("PRINT SETTINGS", "Title for print settings.")));
    QVERIFY(labelWithText(panel, marked("Printer:", "Label showing printer name.")));
    QVERIFY(labelWithText(panel, marked("Page Range:", "Page range label text.")));
    QVERIFY(labelWithText(panel,
                          marked("Copies:", "Label next to the display of the number of copies.")));
}

void tst_MultiPageTexts::translatedPageList()
{
    const TranslationRecorder recorder(QStringLiteral("MultiPagePrintWidget"));
    const MultiPageFixture panel;
    const auto* edit = panel.pageList();
    const QString example =
        marked("Example:", "An example of a possible entry") + QStringLiteral("  1,4-5,11-20,33");
    QCOMPARE(edit->placeholderText(), QStringLiteral("   ") + example);
    QCOMPARE(edit->toolTip(),
             marked("Enter a list of record numbers and/or ranges, separated by comma.",
                    "Tool tip text for record list entry.") +
                 QLatin1Char('\n') + example);
}

void tst_MultiPageTexts::everyKeyIsAskedForOnce()
{
    const TranslationRecorder recorder(QStringLiteral("MultiPagePrintWidget"));
    const MultiPageFixture panel;
    QList<TranslationKey> expected;
    const auto key = [&expected](const char* text, const char* comment) {
        expected.append({QStringLiteral("MultiPagePrintWidget"), QString::fromLatin1(text),
                         QString::fromLatin1(comment)});
    };
    key("PRINT SETTINGS", "Title for print settings.");
    key("Printer:", "Label showing printer name.");
    key("Print 180 Orientation", "");
    key("Page Range:", "Page range label text.");
    key("Current Page", "Current page radio button text.");
    key("All Pages", "All pages radio button text.");
    key("Selection:  ", "Select page range radio button text.");
    key("Enter a list of record numbers and/or ranges, separated by comma.",
        "Tool tip text for record list entry.");
    key("Example:", "An example of a possible entry");
    key("List of Pages", "Name of the page list entry for screen readers.");
    key("Copies:", "Label next to the display of the number of copies.");
    key("Print Only Form Fill Text", "");
    key("Fit To Page ", "");
    key("       Print       ", "Button for initiating a print.");
    QVERIFY(sorted(recorder.keys()) == sorted(expected));
}

void tst_MultiPageTexts::printerNamesAreNotTranslated()
{
    MultiPageFixture panel;
    const TranslationRecorder recorder(QStringLiteral("MultiPagePrintWidget"));
    panel.updateListOfPrinters({}, 0);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("No printer"));
    panel.updateListOfPrinters({QStringLiteral("Printer:")}, 0);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("Printer:"));
    QVERIFY(recorder.keys().isEmpty());
}

void tst_MultiPageTexts::windowTitleIsTranslated()
{
    const TranslationRecorder recorder(QStringLiteral("MultiPagePrintDialog"));
    const MultiPagePrintDialog dialog(nullptr, nullptr, Qt::WindowFlags());
    QCOMPARE(recorder.keys(), QList<TranslationKey>({{QStringLiteral("MultiPagePrintDialog"),
                                                      QStringLiteral("Preview and Print"),
                                                      QStringLiteral("Window title")}}));
    QCOMPARE(dialog.windowTitle(),
             TranslationRecorder::marked(QStringLiteral("MultiPagePrintDialog"),
                                         QStringLiteral("Preview and Print"),
                                         QStringLiteral("Window title")));
}

QTEST_MAIN(tst_MultiPageTexts)
#include "tst_multipagetexts.moc"
