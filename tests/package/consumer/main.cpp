// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Uses the installed library as a host does: public headers only, answers checked, exit code tells.
#include <printpanels-hostkit/jxcombobox.h>
#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpanels_version.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>
#include <printpanels/recordlist.h>
#include <printpanels/sharedconstants.h>

#include <QtCore/QFile>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

#include <cstdio>

namespace {

int failures = 0;

void check(bool holds, const char* what)
{
    if (holds)
        return;
    ++failures;
    std::fprintf(stderr, "does not hold: %s\n", what);
}

void checkPrintWidget()
{
    PrintWidget widget(false, nullptr);
    PrintWidgetInterface* panel = &widget;
    panel->setModule(JxModuleInfo::GHS);
    panel->updateListOfPrinters({"First", "Second"}, 1);
    widget.setRangeValues(2, 9, true);
    panel->enableAllButtons();

    int start = 0;
    int end = 0;
    QObject::connect(panel, &PrintWidgetInterface::widgetPrintSignal, panel,
                     [&](int first, int last, const QString&) {
                         start = first;
                         end = last;
                     });
    widget.findChild<QPushButton*>("PrintButton")->click();

    check(start == 3 && end == -1, "Print asks for the current record");
    check(panel->getSelectedPrinter() == "Second", "the selected printer is the one given");
    check(widget.findChild<JxComboBox*>("PrinterListCombo") != nullptr, "the kit's class is found");
}

void checkOtherPanels()
{
    QuickPrintWidget quick(true, nullptr);
    quick.setNumberOfCopies(5);
    check(quick.getNumberOfCopies() == 5, "the quick print panel keeps its copies");

    auto* pages = new MultiPagePrintWidget(false, false, nullptr);
    const MultiPagePrintDialog dialog(pages, nullptr, Qt::Dialog);
    pages->setNumberOfCopies(6);
    check(pages->getNumberOfCopies() == 6, "the multi-page panel keeps its copies");

    PrintPreviewDialog popup(nullptr, Qt::FramelessWindowHint, QImage(), QSizeF(4, 2), QSizeF(4, 2),
                             true, true, false, 3, 8, QString());
    int end = 0;
    QObject::connect(&popup, &PrintPreviewDialog::previewPrintSignal, &popup,
                     [&](int, int last, const QString&) { end = last; });
    popup.print();
    check(end == 8, "the preview popup asks for its range");
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    checkPrintWidget();
    checkOtherPanels();
    check(RecordList::expand(u"1,4-5", 4) == QList<RecordList::Range>({{1, 1}, {4, 4}}),
          "a list is expanded");
    check(SharedConstants::supplyColorCodes.size() == 13, "the palette has 13 colours");
    check(QFile::exists(":/printicons/printericons/printer_settings.png"), "the icons are there");
    check(QFile::exists(":/module_icons/ModuleIcons/checkbox_selected.png"),
          "the kit's images are there");
    check(PRINTPANELS_VERSION_MAJOR == 0, "the version header is installed");
    return failures == 0 ? 0 : 1;
}
