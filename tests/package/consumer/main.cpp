// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Uses the installed library as a host does: public headers only, answers checked, exit code tells.
#include <printpanels-hostkit/jxcombobox.h>
#include <printpanels/printpanels_version.h>
#include <printpanels/printwidget.h>
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

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    auto* widget = new PrintWidget(false, nullptr);
    PrintWidgetInterface* panel = widget;
    panel->setModule(JxModuleInfo::GHS);
    panel->updateListOfPrinters({"First", "Second"}, 1);
    widget->setRangeValues(2, 9, true);
    panel->enableAllButtons();

    int start = 0;
    int end = 0;
    QObject::connect(panel, &PrintWidgetInterface::widgetPrintSignal, panel,
                     [&](int first, int last, const QString&) {
                         start = first;
                         end = last;
                     });
    widget->findChild<QPushButton*>("PrintButton")->click();

    check(start == 3 && end == -1, "Print asks for the current record");
    check(panel->getSelectedPrinter() == "Second", "the selected printer is the one given");
    check(widget->findChild<JxComboBox*>("PrinterListCombo") != nullptr,
          "the kit's class is found");
    check(RecordList::expand(u"1,4-5", 4) == QList<RecordList::Range>({{1, 1}, {4, 4}}),
          "a list is expanded");
    check(SharedConstants::supplyColorCodes.size() == 13, "the palette has 13 colours");
    check(QFile::exists(":/printicons/printericons/printer_settings.png"), "the icons are there");
    check(PRINTPANELS_VERSION_MAJOR == 0, "the version header is installed");
    delete widget;
    return failures == 0 ? 0 : 1;
}
