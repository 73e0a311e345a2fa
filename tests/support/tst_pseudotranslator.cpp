// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/pseudotranslator.h"
#include "support/stricttest.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QFontMetricsF>
#include <QtGui/QGuiApplication>

class PseudoTranslatorTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreAccentedBracketedAndLonger_data();
    void textsAreAccentedBracketedAndLonger();
    void textsAreWiderByAsMuch_data();
    void textsAreWiderByAsMuch();
    void translatesAllButQtsOwnTexts();
};

void PseudoTranslatorTest::textsAreAccentedBracketedAndLonger_data()
{
    addColumns<QString, QString>("text", "expected");
    addRow("word", "Print", "[PřîñťPř]");
    addRow("one letter", "X", "[XX]");
    addRow("punctuation", "Copies:", "[Çöpîéš:Çöp]");
    addRow("blanks around", "  Fit ", "  [FîťFî] ");
    addRow("place markers", "Ribbon%1 of %L2", "[Řîbböñ%1 öf %L2Řîbböñ]");
    addRow("plural", "%n file(s)", "[%n fîļé(š)fîļé]");
    addRow("only a place marker", "%1", "[%1]");
    addRow("mnemonic", "&File", "[&FîļéFî]");
    addRow("two lines", "To file:\n\" a \"", "[Ťö fîļé:Ťö f\n\" å \"\" ]");
    addRow("blank", " ", " ");
    addRow("empty", "", "");
}

void PseudoTranslatorTest::textsAreAccentedBracketedAndLonger()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(PseudoTranslator::pseudo(text), expected);
}

void PseudoTranslatorTest::textsAreWiderByAsMuch_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"Close", "Print Only Form Fill Text", "PRINT SETTINGS", "Selection:"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void PseudoTranslatorTest::textsAreWiderByAsMuch()
{
    QFETCH(QString, text);
    const QFontMetricsF metrics((QFont()));
    const double ratio =
        metrics.horizontalAdvance(PseudoTranslator::pseudo(text)) / metrics.horizontalAdvance(text);
    QVERIFY2(ratio >= 1.4, qPrintable(QString::number(ratio)));
}

void PseudoTranslatorTest::translatesAllButQtsOwnTexts()
{
    const auto close = [](const char* context) {
        return QCoreApplication::translate(context, "Close");
    };
    PseudoTranslator pseudo;
    QVERIFY(QCoreApplication::installTranslator(&pseudo));
    QCOMPARE(close("PrintPreviewDialog"), QStringLiteral("[ÇļöšéÇļ]"));
    QCOMPARE(close("QuickPrintWidget"), QStringLiteral("[ÇļöšéÇļ]"));
    QCOMPARE(close("QObject"), QStringLiteral("[ÇļöšéÇļ]"));
    QCOMPARE(close("QDialogButtonBox"), QStringLiteral("Close"));
    QCOMPARE(close("QtPrintSupport"), QStringLiteral("Close"));
    QVERIFY(QCoreApplication::removeTranslator(&pseudo));
    QCOMPARE(close("PrintPreviewDialog"), QStringLiteral("Close"));
}

QTEST_MAIN(PseudoTranslatorTest)
#include "tst_pseudotranslator.moc"
