// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

/** What the layout of the public classes promises to programs that were built against them. */
class tst_PublicClasses : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void aClassAddsOnePointerToItsBase_data();
    void aClassAddsOnePointerToItsBase();
    void theInterfaceAddsNothingToQWidget();
};

void tst_PublicClasses::aClassAddsOnePointerToItsBase_data()
{
    addColumns<std::size_t, std::size_t>("size", "baseSize");
    addRow("PrintWidget", sizeof(PrintWidget), sizeof(PrintWidgetInterface));
    addRow("QuickPrintWidget", sizeof(QuickPrintWidget), sizeof(PrintWidgetInterface));
    addRow("MultiPagePrintWidget", sizeof(MultiPagePrintWidget), sizeof(PrintWidgetInterface));
    addRow("PrintPreviewDialog", sizeof(PrintPreviewDialog), sizeof(QWidget));
    addRow("MultiPagePrintDialog", sizeof(MultiPagePrintDialog), sizeof(QDialog));
}

void tst_PublicClasses::aClassAddsOnePointerToItsBase()
{
    QFETCH(std::size_t, size);
    QFETCH(std::size_t, baseSize);
    QCOMPARE(size, baseSize + sizeof(void*));
}

void tst_PublicClasses::theInterfaceAddsNothingToQWidget()
{
    QCOMPARE(sizeof(PrintWidgetInterface), sizeof(QWidget));
}

QTEST_MAIN(tst_PublicClasses)
#include "tst_publicclasses.moc"
