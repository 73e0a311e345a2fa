// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <applicationfont.h>
#include <jxmoduleinfo.h>
#include <whitespace.h>

#include <QtCore/QMetaEnum>
#include <QtGui/QFontMetrics>
#include <QtGui/QImageReader>
#include <QtWidgets/QApplication>

// What a host's editor-common library and its resources bring.
class TestEditorCommon : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void fontsAreOfTheApplicationsFamily();
    void smallFontsAreSmaller();
    void widgetFontsFitARow();
    void fontsFollowTheApplicationsFont();
    void whiteSpace_data();
    void whiteSpace();
    void moduleTypes_data();
    void moduleTypes();
    void moduleTypesAreComplete();
    void imagesAreThere_data();
    void imagesAreThere();
};

void TestEditorCommon::fontsAreOfTheApplicationsFamily()
{
    const QString family = QApplication::font().family();
    for (const bool prominent : {true, false}) {
        QCOMPARE(ApplicationFont::getWidgetFont(prominent).family(), family);
        QCOMPARE(ApplicationFont::getWidgetFontSmall(prominent).family(), family);
    }
}

void TestEditorCommon::smallFontsAreSmaller()
{
    QCOMPARE(ApplicationFont::getWidgetFont(true).pixelSize(), 15);
    QCOMPARE(ApplicationFont::getWidgetFont(false).pixelSize(), 14);
    QCOMPARE(ApplicationFont::getWidgetFontSmall(true).pixelSize(), 13);
    QCOMPARE(ApplicationFont::getWidgetFontSmall(false).pixelSize(), 12);
}

void TestEditorCommon::widgetFontsFitARow()
{
    QVERIFY(QFontMetrics(ApplicationFont::getWidgetFont(true)).height() <= 30);
}

void TestEditorCommon::fontsFollowTheApplicationsFont()
{
    const QFont before = QApplication::font();
    QFont italic = before;
    italic.setItalic(true);
    QApplication::setFont(italic);
    const bool followed = ApplicationFont::getWidgetFont(true).italic();
    QApplication::setFont(before);
    QVERIFY(followed);
}

void TestEditorCommon::whiteSpace_data()
{
    addColumns<QString, bool>("text", "white");
    addRow("null", QString(), true);
    addRow("empty", "", true);
    addRow("blank", " ", true);
    addRow("blanks, tabs and line ends", " \t\r\n\v\f ", true);
    addRow("no-break space", QString(QChar(0xa0)), true);
    addRow("ideographic space", QString(QChar(0x3000)), true);
    addRow("number", "1", false);
    addRow("number among blanks", "  1  ", false);
    addRow("zero-width space", QString(QChar(0x200b)), false);
    addRow("null character", QString(QChar(0)), false);
    addRow("many blanks", QString(1 << 20, QLatin1Char(' ')), true);
}

void TestEditorCommon::whiteSpace()
{
    QFETCH(QString, text);
    QFETCH(bool, white);
    QCOMPARE(WhiteSpace::isWhiteSpace(text), white);
}

void TestEditorCommon::moduleTypes_data()
{
    addColumns<int, int>("type", "value");
    addRow("Unspecified", int(JxModuleInfo::Unspecified), 0);
    addRow("JxLabelEditor", int(JxModuleInfo::JxLabelEditor), 1);
    addRow("GHS", int(JxModuleInfo::GHS), 2);
    addRow("ArcFlashMain", int(JxModuleInfo::ArcFlashMain), 3);
    addRow("PipeMarking", int(JxModuleInfo::PipeMarking), 4);
    addRow("NFPAMain", int(JxModuleInfo::NFPAMain), 5);
    addRow("JxCatalog", int(JxModuleInfo::JxCatalog), 6);
    addRow("QuickPrint", int(JxModuleInfo::QuickPrint), 7);
    addRow("PDFViewer", int(JxModuleInfo::PDFViewer), 8);
    addRow("JavaScript", int(JxModuleInfo::JavaScript), 9);
    addRow("GraphicsViewer", int(JxModuleInfo::GraphicsViewer), 10);
}

void TestEditorCommon::moduleTypes()
{
    QFETCH(int, type);
    QFETCH(int, value);
    QCOMPARE(type, value);
    const auto info = QMetaEnum::fromType<JxModuleInfo::JxModuleTypes>();
    QCOMPARE(info.valueToKey(value), QTest::currentDataTag());
}

void TestEditorCommon::moduleTypesAreComplete()
{
    QCOMPARE(QMetaEnum::fromType<JxModuleInfo::JxModuleTypes>().keyCount(), 11);
}

void TestEditorCommon::imagesAreThere_data()
{
    addColumns<QString, QSize>("file", "size");
    const auto row = [](const char* file, int width, int height) {
        QTest::newRow(file) << QString::fromLatin1(file) << QSize(width, height);
    };
    for (const char* name : {"combobox-down-arrow", "combobox-down-arrow-disabled", "edit-arrow-up",
                             "edit-arrow-down", "edit-arrow-left", "edit-arrow-right"}) {
        row(qPrintable(
                QStringLiteral(":/module_icons/ModuleIcons/%1.png").arg(QLatin1String(name))),
            16, 16);
    }
    for (const char* name : {"checkbox_selected", "checkbox_unselected",
                             "checkbox_checked_disabled", "checkbox_unchecked_disabled"}) {
        row(qPrintable(
                QStringLiteral(":/module_icons/ModuleIcons/%1.png").arg(QLatin1String(name))),
            41, 37);
    }
    for (const char* name : {"radio-button_checked", "radio-button_unchecked",
                             "radio-button_checked-disabled", "radio-button_unchecked-disabled"}) {
        row(qPrintable(
                QStringLiteral(":/module_icons/ModuleIcons/%1.png").arg(QLatin1String(name))),
            24, 24);
    }
    for (const char* name :
         {"plus", "plus-pressed", "plus-disabled", "minus", "minus-pressed", "minus-disabled"})
        row(qPrintable(QStringLiteral(":/Size/SizeIcons/%1.png").arg(QLatin1String(name))), 35, 35);
    for (const char* name : {"ribbon", "blank-ribbon", "supply"})
        row(qPrintable(QStringLiteral(":/hostkit/%1.png").arg(QLatin1String(name))), 25, 25);
    row(":/hostkit/close.png", 24, 24);
    row(":/hostkit/close-pressed.png", 24, 24);
}

void TestEditorCommon::imagesAreThere()
{
    QFETCH(QString, file);
    QFETCH(QSize, size);
    const QImage image = QImageReader(file).read();
    QCOMPARE(image.size(), size);
    QVERIFY(image.hasAlphaChannel());
}

QTEST_MAIN(TestEditorCommon)
#include "tst_editorcommon.moc"
