// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PRINTWIDGET_H
#define PRINTPANELS_PRINTWIDGET_H

#include <printpanels/printpanels_export.h>
#include <printpanels/printwidgetinterface.h>

#include <memory>

class ColorMenu;

namespace PrintPanels {
class PrintWidgetPrivate;
}

/**
 * The full print settings panel, for modules that design labels.
 *
 * Top to bottom: the ammonia tag choice (pipe marking only), printer with location and status,
 * copies, loaded supply, records to print with the N-up choice, user background, test controls, and
 * the Print and Print Preview buttons. It never prints: see PrintWidgetInterface for the requests
 * that it emits. Print and Print Preview start disabled.
 */
class PRINTPANELS_EXPORT PrintWidget : public PrintWidgetInterface
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PrintWidget)

public:
    /**
     * Creates the panel. @p printToFile adds the print-to-file and error-test controls; @p parent,
     * if not null, owns the panel.
     */
    PrintWidget(bool printToFile, QWidget* parent);
    /** Destroys the panel and its children. Emits nothing. */
    ~PrintWidget() override;

    /// @name Module and buttons
    /// @{
    /** Pipe marking hides the records and builds the ammonia section; others change nothing. */
    void setModule(const JxModuleInfo::JxModuleTypes& module) override;
    /** Disables Print Preview and Print. */
    void disablePrintButtons() override;
    /** Disables Print Preview, Print and the preferences button. */
    void disableAllButtons() override;
    /** Enables Print Preview and Print. */
    void enablePrintButtons() override;
    /** Enables Print Preview, Print and the preferences button. */
    void enableAllButtons() override;
    /** Shows or hides "Print User Background", which starts hidden. */
    void setShowUserBackground(bool show);
    /** Sets whether "Print User Background" is checked, also while it is hidden. */
    void setPrintUserBackground(bool print);
    /** Whether "Print User Background" is checked, also while it is hidden. */
    bool getPrintUserBackground() const;
    /// @}

    /// @name Printer
    /// @{
    /**
     * Adds a printer at the top or the end without telling the host. It becomes current only if it
     * is the first item then: "No printer" stays an item, and stays current, when a printer is
     * added behind it.
     */
    void addPrinterToList(const QString& name, bool atTop) override;
    /**
     * Replaces the printers and selects one by 0-based index, without telling the host. An empty
     * list shows the one item "No printer", selected; an index out of range selects nothing.
     */
    void updateListOfPrinters(const QStringList& printers, int currentIndex) override;
    /**
     * Selects a printer by name without telling the host. An unknown name leaves the selection as
     * it is, but the tool tip of the selector shows the name all the same.
     */
    void setSelectedPrinter(const QString& name) override;
    /** The current item's text: a printer's name, or "No printer". Empty if nothing is selected. */
    QString getSelectedPrinter() const override;
    /// @}

    /// @name Copies and requests
    /// @{
    /** Sets the number of copies, clamped to 1 to 999. */
    void setNumberOfCopies(int copies) override;
    /** The number of copies, 1 to 999. */
    int getNumberOfCopies() override;
    /**
     * Fills in a request from the records choice. The caller presets it with the current record, -1
     * and an empty list; where the choice stands for the current record it stays so. A records
     * section that is disabled still gives the choice that is checked in it.
     */
    void whatToPrint(int& sequenceStart, int& sequenceEnd, QString& customRecordsList) const;
    /// @}

    /// @name Records
    /// @{
    /**
     * Sets the 0-based indices of the current record and of the last one, and whether the user may
     * choose records. Disabling the section leaves the choice as it is, and requests still follow
     * it. Applies the N-up rules again.
     */
    void setRangeValues(int currentIndex, int lastIndex, bool enabled);
    /** Classifies the typed list as one record or several, whichever choice is checked. */
    void listRangeParse();
    /// @}

    /// @name N-up
    /// @{
    /** Shows the N-up choice unless the records section is disabled. */
    void setNupSeqRepVisible(bool visible) override;
    /** A dynamic length forces replicating and disables the choice. */
    void setNupDynamicLength(bool on) override;
    /** True if the choice is visible on the screen and sequencing is checked. */
    bool getNupSeqRepOption() const override;
    /// @}

    /// @name Ammonia tags
    /// @{
    /** Translates the names of the items again. The items on offer stay as they are. */
    void createAmmoniaComboList();
    /// @}

    /// @name Loaded supply
    /// @{
    /** Builds the section's contents, once; showSupplyInfo() calls it when it is needed. */
    void createSupplyInfoLayout();
    /** See PrintWidgetInterface. An empty colour list means that nothing is loaded anywhere. */
    void showSupplyInfo(const QStringList& colors, bool twoRibbons, double width,
                        unsigned char metric, bool showTinyLadder) override;
    /** Hides the section and keeps its contents. */
    void hideSupplyInfo() override;
    /** True between showSupplyInfo() and hideSupplyInfo(). */
    bool isSupplyInfoVisible() const override;
    /**
     * Whether the ladder tube is checked. False before the section is built; a ladder tube that is
     * hidden keeps its state.
     */
    bool isTinySupply() const override;
    /// @}

    /// @name Supply and ribbon colours
    /// @{
    /**
     * Replaces the colours on offer: "#rrggbb" codes or "transparent". Before the section is built
     * the lists are kept and applied when it is.
     */
    void setColorPalette(const QStringList& ribbonColors, const QStringList& supplyColors) override;
    /**
     * Inserts a tab and its menu at a 0-based index. Does nothing without a menu, or before the
     * section is built. The stack of menus becomes the owner of @p menu.
     */
    void addMenuToStack(int index, const QString& color, const QString& tabText,
                        const QString& toolTip, ColorMenu* menu);
    /**
     * Shows a colour on the tab at a 0-based index and in its menu, without telling the host. Does
     * nothing without a menu, or before the section is built.
     */
    void updateColorSelection(int index, const QString& color, ColorMenu* menu);
    /// @}

    /// @name Test controls
    /// @{
    /** Whether print-to-file is checked; false on a panel without the test controls. */
    bool getPrintToFileEnabled() const override;
    /// @}

    /** Emits printWidgetShowSignal() after the base class has handled the event. */
    void showEvent(QShowEvent* event) override;

Q_SIGNALS:
    /** The user chose what to print: 0 the label, or the tag's bit 1, 2, 4 or 8. */
    void ammoniaPrintTagChanged(int data);
    /** The user asks to see the host's error message of this number, 0 to 25. */
    void testPrintError(int errorNumber);

public Q_SLOTS:
    /** Sets the 0-based index of the current record. Leaves the N-up choice as it is. */
    void updateCurrentRangeIndex(int sequenceCurrent) override;
    /**
     * Offers the label and the tags of a bit mask (1 high pressure, 2 low pressure, 4 vapor,
     * 8 liquid; other bits are ignored) and selects the label, without telling the host. A mask
     * without any tag hides the section.
     */
    void setVisibleAmmoniaTag(int tag);
    /** Shows the printer's location as plain text. */
    void updatePrinterLocation(const QString& location) override;
    /** Shows the printer's status; remote outranks offline, and unavailable is added to either. */
    void updatePrinterStatus(bool offline, bool remote, bool unavailable) override;

private:
    Q_PRIVATE_SLOT(d, void printSlot())
    Q_PRIVATE_SLOT(d, void printPreviewSlot())
    Q_PRIVATE_SLOT(d, void recordsRadioChangedSlot())
    Q_PRIVATE_SLOT(d, void listRangeChanged())
    Q_PRIVATE_SLOT(d, void checkRange())
    Q_PRIVATE_SLOT(d, void currentPrinterSelectionChangedSlot(int printerIndex))
    Q_PRIVATE_SLOT(d, void ammoniaPrintComboChanged(int index))
    Q_PRIVATE_SLOT(d, void ribbon1ColorSelectionSlot(const QString& color))
    Q_PRIVATE_SLOT(d, void ribbon2ColorSelectionSlot(const QString& color))
    Q_PRIVATE_SLOT(d, void supplyColorSelectionSlot(const QString& color))
    Q_PRIVATE_SLOT(d, void supplyWidthEditedSlot())
    Q_PRIVATE_SLOT(d, void testErrorCodeSlot())

    std::unique_ptr<PrintPanels::PrintWidgetPrivate> const d;
};

#endif
