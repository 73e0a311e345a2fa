// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelstate.h"
#include "readypanel.h"

#include <QtWidgets/QComboBox>

namespace Gallery {

namespace {

QWidget* createFresh()
{
    return new PrintWidget(false, nullptr);
}

QWidget* createReady()
{
    return readyPanel();
}

QWidget* createButtonsDisabled()
{
    PrintWidget* panel = readyPanel();
    panel->disableAllButtons();
    return panel;
}

QWidget* createWithStatus(bool offline, bool remote, bool unavailable)
{
    PrintWidget* panel = readyPanel();
    panel->updatePrinterStatus(offline, remote, unavailable);
    return panel;
}

QWidget* createNoPrinter()
{
    PrintWidget* panel = readyPanel();
    panel->updateListOfPrinters({}, 0);
    panel->updatePrinterLocation(QString());
    panel->updatePrinterStatus(true, false, true);
    panel->disableAllButtons();
    return panel;
}

QWidget* createLongNames()
{
    PrintWidget* panel = readyPanel();
    panel->updateListOfPrinters(
        {QStringLiteral("Label printer on the second floor, next to the paint shop, on the left")},
        0);
    panel->updatePrinterLocation(
        QStringLiteral("Building 7, second floor, paint shop, behind the drying cabinets"));
    return panel;
}

void openPrinters(QWidget& panel)
{
    if (auto* combo = panel.findChild<QComboBox*>(QStringLiteral("PrinterListCombo")))
        combo->showPopup();
}

QWidget* createMostCopies()
{
    PrintWidget* panel = readyPanel();
    panel->setNumberOfCopies(999);
    return panel;
}

QWidget* createAllRecords()
{
    PrintWidget* panel = readyPanel();
    click(*panel, "allRecordsRadio");
    return panel;
}

QWidget* createListOfRecords()
{
    PrintWidget* panel = readyPanel();
    click(*panel, "recordListRadio");
    type(*panel, "recordListEdit", QStringLiteral("1,4-5,30-"));
    return panel;
}

QWidget* createEmptyList()
{
    PrintWidget* panel = readyPanel();
    click(*panel, "recordListRadio");
    return panel;
}

void tabToList(QWidget& panel)
{
    tabTo(panel, "recordListEdit");
}

void tabToPrint(QWidget& panel)
{
    tabTo(panel, "PrintButton");
}

QWidget* createRecordsDisabled()
{
    PrintWidget* panel = readyPanel();
    panel->setRangeValues(0, 0, false);
    return panel;
}

PrintWidget* createNup()
{
    PrintWidget* panel = readyPanel();
    panel->setNupSeqRepVisible(true);
    return panel;
}

QWidget* createNupOneRecord()
{
    return createNup();
}

QWidget* createNupReplicating()
{
    PrintWidget* panel = createNup();
    click(*panel, "allRecordsRadio");
    return panel;
}

QWidget* createNupSequencing()
{
    QWidget* panel = createNupReplicating();
    click(*panel, "sequencingRadio");
    return panel;
}

QWidget* createNupDynamicLength()
{
    PrintWidget* panel = createNup();
    click(*panel, "allRecordsRadio");
    panel->setNupDynamicLength(true);
    return panel;
}

QWidget* createUserBackground()
{
    PrintWidget* panel = readyPanel();
    panel->setShowUserBackground(true);
    panel->setPrintUserBackground(true);
    return panel;
}

QWidget* createTestControls()
{
    PrintWidget* panel = readyPanel(true);
    click(*panel, "printToFileCheck");
    return panel;
}

QWidget* createPipeMarking()
{
    PrintWidget* panel = readyPipePanel();
    panel->setVisibleAmmoniaTag(0);
    return panel;
}

QWidget* createAmmonia()
{
    PrintWidget* panel = readyPipePanel();
    panel->setVisibleAmmoniaTag(1 | 4);
    return panel;
}

void chooseTag(QWidget& panel)
{
    if (auto* combo = panel.findChild<QComboBox*>(QStringLiteral("AmmoniaPrintCombo")))
        combo->setCurrentIndex(2);
}

// A printer's name, a location and a typed list that are text, whatever they look like.
QWidget* createMarkup()
{
    PrintWidget* panel = readyPanel();
    panel->updateListOfPrinters({QStringLiteral("<b>Bold</b> & Sons")}, 0);
    panel->updatePrinterLocation(QStringLiteral("<i>Hall</i> &amp; yard"));
    return panel;
}

constexpr char panelClass[] = "PrintWidget";

} // namespace

QList<PanelState> printWidgetStates()
{
    return {
        {panelClass, "print-fresh", "Fresh",
         "As constructed: no printer is known yet, and Print and Print Preview are disabled.",
         createFresh},
        {panelClass, "print-ready", "Ready",
         "The host has set the printers, the printer's location and status and the number of "
         "records, and enabled all buttons.",
         createReady},
        {panelClass, "print-focus", "Keyboard focus", "The Tab key has reached Print.", createReady,
         tabToPrint},
        {panelClass, "print-buttons-disabled", "Buttons disabled",
         "disableAllButtons(): neither a request nor the preferences of the printer.",
         createButtonsDisabled},
        {panelClass, "print-offline", "Printer offline", "updatePrinterStatus(true, false, false).",
         [] { return createWithStatus(true, false, false); }},
        {panelClass, "print-remote", "Printer remote",
         "A remote printer: whether it is offline is not shown.",
         [] { return createWithStatus(true, true, false); }},
        {panelClass, "print-unavailable", "Printer unavailable",
         "Unavailable is added to the other status.",
         [] { return createWithStatus(true, false, true); }},
        {panelClass, "print-no-printer", "No printer",
         "An empty list of printers. The host has disabled all buttons.", createNoPrinter},
        {panelClass, "print-printers", "Printers to choose from", "The list of printers is open.",
         createReady, openPrinters},
        {panelClass, "print-long-names", "Long names",
         "What does not fit is elided; the tool tips show all of it.", createLongNames},
        {panelClass, "print-markup", "Names with markup",
         "Texts of the host are shown as they are.", createMarkup},
        {panelClass, "print-copies", "Most copies", "The number of copies is 1 to 999.",
         createMostCopies},
        {panelClass, "print-records-all", "All records", "The user chose all records.",
         createAllRecords},
        {panelClass, "print-records-list", "List of records", "The user typed a list.",
         createListOfRecords},
        {panelClass, "print-records-empty", "Empty list of records",
         "The list shows an example until the user types. Print asks for the current record.",
         createEmptyList},
        {panelClass, "print-records-focus", "Typing a list", "The list has the keyboard.",
         createListOfRecords, tabToList},
        {panelClass, "print-records-disabled", "Records disabled",
         "setRangeValues() with false: the label has no records to choose from.",
         createRecordsDisabled},
        {panelClass, "print-nup-one", "N-up with one record",
         "setNupSeqRepVisible(true). One record can only be replicated, so the choice is disabled.",
         createNupOneRecord},
        {panelClass, "print-nup-replicating", "N-up replicating",
         "Several records: the user may choose.", createNupReplicating},
        {panelClass, "print-nup-sequencing", "N-up sequencing",
         "The labels on a page show successive records.", createNupSequencing},
        {panelClass, "print-nup-dynamic", "N-up with a dynamic length",
         "setNupDynamicLength(true) rules out the choice.", createNupDynamicLength},
        {panelClass, "print-background", "User background",
         "setShowUserBackground(true) offers to print the user's background.",
         createUserBackground},
        {panelClass, "print-test-controls", "Test controls",
         "A panel constructed with true: printing to a file, and any of the host's error messages.",
         createTestControls},
        {panelClass, "print-pipe", "Pipe marking",
         "setModule(JxModuleInfo::PipeMarking): there are no records.", createPipeMarking},
        {panelClass, "print-ammonia", "Ammonia tags",
         "setVisibleAmmoniaTag() with two tags: the label or one of them.", createAmmonia},
        {panelClass, "print-ammonia-tag", "An ammonia tag", "The user chose a tag.", createAmmonia,
         chooseTag},
    };
}

} // namespace Gallery
