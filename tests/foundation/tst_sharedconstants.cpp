// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"
#include "support/translationrecorder.h"

#include <printpanels/sharedconstants.h>

#include <jxmoduleinfo.h>

#include <QtCore/QLibrary>
#include <QtCore/QMetaEnum>

#include <type_traits>

namespace {

using namespace SharedConstants;

/** Every translated constant's text and comment, in the order in which they are built. */
struct TranslatedRow
{
    const char* text;
    const char* comment;
};

const TranslatedRow translatedRows[] = {
    {" pt", "Abbreviation for Points"},
    {" in", "Abbreviation for Inches"},
    {"\"", "Abbreviation for Inches"},
    {" mm", "Abbreviation for Millimeters"},
    {"OSHA",
     "OSHA Authority Abbreviaton. OSHA stands for: Occupational Safety and Health Adminstration."},
    {"EU", "EU Authority Abbreviaton"},
    {"CUSTOM", "CUSTOM Authority"},
    {"US/OSHA HazCom 2012", "Option for selecting label type. OSHA stands for: Occupational Safety "
                            "and Health Adminstration."},
    {"UN/GHS Rev. 7",
     "Option for selecting label type. Stands for: United Nations/Globally Harmonized System."},
    {"Custom", "Option for selecting label type. The user selects to create a custom GHS label."},
    {"Switch Print Orientation", "The text on the tooltip to switch print orientation."},
};

QStringList englishTexts()
{
    QStringList texts;
    for (const TranslatedRow& row : translatedRows)
        texts.append(QString::fromUtf8(row.text));
    return texts;
}

QStringList ownTexts()
{
    return {pointsSuffix,  inchesSuffix,    inchMarkSuffix,    millimetersSuffix,
            oshaAuthority, euAuthority,     customAuthority,   oshaLabelType,
            unLabelType,   customLabelType, orientationToolTip};
}

/** The texts of the probe library's copy of the constants; loads the library if it is not loaded
 * yet. */
QStringList probeTexts()
{
    static QLibrary probe(QStringLiteral(PROBE_LIBRARY));
    using Function = void (*)(QStringList*);
    const auto function = reinterpret_cast<Function>(probe.resolve("translatedConstants"));
    QStringList texts;
    if (function)
        function(&texts);
    return texts;
}

} // namespace

class tst_SharedConstants : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    // First, because the library can be loaded once only.
    void aTranslatorInstalledBeforeLoadingIsAskedForEveryText();
    void aTranslatorInstalledLaterChangesNothing();
    void textsWithoutATranslatorAreEnglish();

    void plainColours();
    void everyConstantIsImmutable();
    void paletteHasThirteenAlignedEntries();
    void palette_data();
    void palette();
    void theLastPaletteEntryIsClearNotTransparent();
    void namedColours_data();
    void namedColours();
    void moduleNamesInOrder();
    void moduleNamesAreIndexedByTheHostsEnumeration();
    void theTwoInchFormsAreDistinct();
    void suffixesFollowANumberDirectly();
};

void tst_SharedConstants::aTranslatorInstalledBeforeLoadingIsAskedForEveryText()
{
    const QString context = QStringLiteral("QObject");
    const TranslationRecorder recorder(context);
    const QStringList texts = probeTexts();

    QList<TranslationKey> expectedKeys;
    QStringList expectedTexts;
    for (const TranslatedRow& row : translatedRows) {
        const QString text = QString::fromUtf8(row.text);
        const QString comment = QString::fromUtf8(row.comment);
        expectedKeys.append({context, text, comment});
        expectedTexts.append(TranslationRecorder::marked(context, text, comment));
    }
    QCOMPARE(recorder.keys().size(), expectedKeys.size());
    for (qsizetype i = 0; i < expectedKeys.size(); ++i) {
        QCOMPARE(recorder.keys().at(i).context, expectedKeys.at(i).context);
        QCOMPARE(recorder.keys().at(i).text, expectedKeys.at(i).text);
        QCOMPARE(recorder.keys().at(i).comment, expectedKeys.at(i).comment);
    }
    QCOMPARE(texts, expectedTexts);
}

void tst_SharedConstants::aTranslatorInstalledLaterChangesNothing()
{
    const QStringList before = probeTexts();
    const TranslationRecorder late(QStringLiteral("QObject"));
    QCOMPARE(QObject::tr(" mm", "Abbreviation for Millimeters"),
             TranslationRecorder::marked(QStringLiteral("QObject"), QStringLiteral(" mm"),
                                         QStringLiteral("Abbreviation for Millimeters")));
    QCOMPARE(probeTexts(), before);
    QCOMPARE(ownTexts(), englishTexts());
    QCOMPARE(late.keys().size(), 1);
}

void tst_SharedConstants::textsWithoutATranslatorAreEnglish()
{
    QCOMPARE(ownTexts(), englishTexts());
}

void tst_SharedConstants::plainColours()
{
    QCOMPARE(transparentName, QStringLiteral("transparent"));
    QCOMPARE(offWhiteColor, QColor(255, 255, 254));
    QCOMPARE(offWhiteColor.alpha(), 255);
    QCOMPARE(transparentColor, QColor(0, 0, 0, 0));
    QCOMPARE(transparentColor, QColor(Qt::transparent));
    QCOMPARE(whiteColor, QColor(255, 255, 255));
    QCOMPARE(blackColor, QColor(0, 0, 0));
    QCOMPARE(blackColor.alpha(), 255);
    QCOMPARE(whiteRgb, 0xFFFFFFFFu);
}

void tst_SharedConstants::everyConstantIsImmutable()
{
    static_assert(std::is_same_v<decltype(whiteRgb), const QRgb>);
    static_assert(std::is_same_v<decltype(transparentName), const QString>);
    static_assert(std::is_same_v<decltype(offWhiteColor), const QColor>);
    static_assert(std::is_same_v<decltype(transparentColor), const QColor>);
    static_assert(std::is_same_v<decltype(whiteColor), const QColor>);
    static_assert(std::is_same_v<decltype(blackColor), const QColor>);
    static_assert(std::is_same_v<decltype(supplyColorCodes), const QStringList>);
    static_assert(std::is_same_v<decltype(supplyColors), const QList<QColor>>);
    static_assert(std::is_same_v<decltype(supplyColorNames), const QStringList>);
    static_assert(std::is_same_v<decltype(moduleTypeNames), const QStringList>);
    static_assert(std::is_same_v<decltype(inchMarkSuffix), const QString>);
    static_assert(std::is_same_v<decltype(orientationToolTip), const QString>);
}

void tst_SharedConstants::paletteHasThirteenAlignedEntries()
{
    QCOMPARE(supplyColorCodes.size(), 13);
    QCOMPARE(supplyColors.size(), 13);
    QCOMPARE(supplyColorNames.size(), 13);
}

void tst_SharedConstants::palette_data()
{
    addColumns<int, QString, QString, QColor>("index", "name", "code", "color");

    auto row = [index = 0](const char* name, const char* code, int rgb) mutable {
        QTest::newRow(name) << index++ << QString::fromLatin1(name) << QString::fromLatin1(code)
                            << QColor((rgb >> 16) & 0xff, (rgb >> 8) & 0xff, rgb & 0xff);
    };
    row("white", "#ffffff", 0xffffff);
    row("black", "#000000", 0x000000);
    row("red", "#dc0b0b", 0xdc0b0b);
    row("orange", "#f28000", 0xf28000);
    row("yellow", "#fedb00", 0xfedb00);
    row("green", "#248d4f", 0x248d4f);
    row("blue", "#0018a8", 0x0018a8);
    row("cyan", "#00FFFF", 0x00ffff);
    row("brown", "#473333", 0x473333);
    row("sky blue", "#41b6e6", 0x41b6e6);
    row("purple", "#7238ab", 0x7238ab);
    row("gray", "#a0a0a0", 0xa0a0a0);
    row("clear", "#fffffe", 0xfffffe);
}

void tst_SharedConstants::palette()
{
    QFETCH(const int, index);
    QTEST(supplyColorNames.value(index), "name");
    QTEST(supplyColorCodes.value(index), "code");
    QTEST(supplyColors.value(index), "color");
    QCOMPARE(QColor(supplyColorCodes.value(index)), supplyColors.value(index));
}

void tst_SharedConstants::theLastPaletteEntryIsClearNotTransparent()
{
    QCOMPARE(supplyColorNames.indexOf(QStringLiteral("clear")), 12);
    QCOMPARE(supplyColorCodes.indexOf(QStringLiteral("#fffffe")), 12);
    QCOMPARE(supplyColorNames.indexOf(QStringLiteral("transparent")), -1);
    QCOMPARE(supplyColorCodes.indexOf(QStringLiteral("transparent")), -1);
    QCOMPARE(supplyColorCodes.indexOf(QStringLiteral("#FFFFFE")), -1);
    QCOMPARE(supplyColorCodes.indexOf(QStringLiteral("#00ffff")), -1);
    QCOMPARE(supplyColorNames.indexOf(QStringLiteral("grey")), -1);
    QCOMPARE(supplyColors.indexOf(transparentColor), -1);
}

void tst_SharedConstants::namedColours_data()
{
    addColumns<QColor, QColor, int>("constant", "expected", "index");

    addRow("yellow", yellowColor, QColor(0xfe, 0xdb, 0x00), 4);
    addRow("sky blue", skyBlueColor, QColor(0x41, 0xb6, 0xe6), 9);
    addRow("red", redColor, QColor(0xdc, 0x0b, 0x0b), 2);
    addRow("green", greenColor, QColor(0x24, 0x8d, 0x4f), 5);
    addRow("orange", orangeColor, QColor(0xf2, 0x80, 0x00), 3);
}

void tst_SharedConstants::namedColours()
{
    QFETCH(const QColor, constant);
    QFETCH(const int, index);
    QTEST(constant, "expected");
    QCOMPARE(supplyColors.value(index), constant);
}

void tst_SharedConstants::moduleNamesInOrder()
{
    const QStringList expected = {QStringLiteral("Unspecified"),   QStringLiteral("JxLabelEditor"),
                                  QStringLiteral("GHS"),           QStringLiteral("ArcFlashMain"),
                                  QStringLiteral("PipeMarking"),   QStringLiteral("NFPAMain"),
                                  QStringLiteral("JxCatalog"),     QStringLiteral("QuickPrint"),
                                  QStringLiteral("PDFViewer"),     QStringLiteral("JavaScript"),
                                  QStringLiteral("GraphicsViewer")};
    QCOMPARE(moduleTypeNames, expected);
    QCOMPARE(moduleTypeNames.size(), 11);
}

void tst_SharedConstants::moduleNamesAreIndexedByTheHostsEnumeration()
{
    const QMetaEnum types = QMetaEnum::fromType<JxModuleInfo::JxModuleTypes>();
    QCOMPARE(types.keyCount(), 11);
    for (int i = 0; i < types.keyCount(); ++i) {
        QCOMPARE(types.value(i), i);
        QCOMPARE(moduleTypeNames.value(types.value(i)), QString::fromLatin1(types.key(i)));
    }
}

void tst_SharedConstants::theTwoInchFormsAreDistinct()
{
    QCOMPARE(inchesSuffix, QStringLiteral(" in"));
    QCOMPARE(inchMarkSuffix, QStringLiteral("\""));
    QCOMPARE(inchMarkSuffix.size(), 1);
    QVERIFY(inchesSuffix != inchMarkSuffix);
}

void tst_SharedConstants::suffixesFollowANumberDirectly()
{
    QCOMPARE(QString::number(12) + pointsSuffix, QStringLiteral("12 pt"));
    QCOMPARE(QString::number(12) + inchesSuffix, QStringLiteral("12 in"));
    QCOMPARE(QString::number(12) + inchMarkSuffix, QStringLiteral("12\""));
    QCOMPARE(QString::number(12) + millimetersSuffix, QStringLiteral("12 mm"));
}

QTEST_GUILESS_MAIN(tst_SharedConstants)
#include "tst_sharedconstants.moc"
