// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_MULTIPAGEPRINTWIDGET_H
#define PRINTPANELS_MULTIPAGEPRINTWIDGET_H

#include <printpanels/printpanels_export.h>
#include <printpanels/printwidgetinterface.h>

#include <memory>

namespace PrintPanels {
class MultiPagePrintWidgetPrivate;
}

/**
 * The print settings panel for documents of several pages, made to stand in a
 * MultiPagePrintDialog.
 *
 * Top to bottom: printer with the 180-degree orientation, pages to print, copies, and the options
 * with the Print button. It never prints: see PrintWidgetInterface for the requests that it emits.
 * It keeps the first page that the user's choice stands for and tells the host when that page
 * changes, so that the host can show it.
 *
 * The panel is 270 pixels wide. Print starts disabled. Page numbers are 1-based, except in
 * updateCurrentRangeIndex().
 */
class PRINTPANELS_EXPORT MultiPagePrintWidget : public PrintWidgetInterface
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MultiPagePrintWidget)

public:
    /**
     * Creates the panel.
     * @param fitToPage whether "Fit To Page" starts checked
     * @param interfaceFlag kept for the interface; it has no effect on this panel
     * @param parent owner, or null
     */
    MultiPagePrintWidget(bool fitToPage, bool interfaceFlag, QWidget* parent);
    /** Destroys the panel and its children. Emits nothing. */
    ~MultiPagePrintWidget() override;

    /// @name Module and buttons
    /// @{
    /** Does nothing: the panel is the same for every module. */
    void setModule(const JxModuleInfo::JxModuleTypes& module) override;
    /** Disables Print. */
    void disablePrintButtons() override;
    /** Disables Print; the printer settings stay within reach. */
    void disableAllButtons() override;
    /** Enables Print. */
    void enablePrintButtons() override;
    /** Enables Print. */
    void enableAllButtons() override;
    /// @}

    /// @name Printer
    /// @{
    /**
     * Replaces the printers and selects one by 0-based index, without telling the host. An empty
     * list shows the one item "No printer", selected; an index out of range selects nothing.
     */
    void updateListOfPrinters(const QStringList& printers, int currentIndex) override;
    /** The current item's text: a printer's name, or "No printer". Empty if nothing is selected. */
    QString getSelectedPrinter() const override;
    /**
     * Selects the first printer of exactly this name, case included, without telling the host. An
     * unknown name selects nothing.
     */
    void setSelectedPrinter(const QString& name) override;
    /// @}

    /// @name Pages
    /// @{
    /**
     * Sets what is known of the document, and emits startPageChangedSignal() even if the start page
     * stays the same.
     * @param currentPage 1-based page that the preview shows
     * @param pageCount number of pages; 99999 until it is set
     * @param pageRangeEnabled whether the user may choose pages. Disabling leaves the choice as it
     *        is, and requests still follow it
     */
    void setPageInfo(int currentPage, int pageCount, bool pageRangeEnabled);
    /// @}

    /// @name Copies
    /// @{
    /** Sets the number of copies as it is, without clamping. */
    void setNumberOfCopies(int copies) override;
    /** The number of copies that is shown; 1 if the text is not a number or below 1. */
    int getNumberOfCopies() override;
    /// @}

    /// @name Options
    /// @{
    /** Shows or hides "Print Only Form Fill Text" and checks it or not, without telling the host.
     */
    void setFormFillOption(bool visible, bool checked);
    /** Shows or hides "Print 180 Orientation". */
    void set180OrientationVisible(bool visible);
    /// @}

Q_SIGNALS:
    /** The user changed "Print Only Form Fill Text": Qt::Unchecked or Qt::Checked (0 or 2). */
    void printFormFillChangedSignal(int formFillChecked);
    /** The user changed "Fit To Page": 0 or 2, as above. */
    void fitToPageChangedSignal(int fitToPageChecked);
    /**
     * The choice starts at another page, 1-based; -1 if a typed list names no page that exists.
     * Also emitted by every forced update, where it may repeat the page just reported.
     */
    void startPageChangedSignal(int startPage);
    /** The user changed "Print 180 Orientation": 0 or 2, as above. */
    void orientationChangedSignal(int orientationFlipChecked);

public Q_SLOTS:
    /** Sets the 0-based index of the page that the preview shows. */
    void updateCurrentRangeIndex(int sequenceCurrent) override;
    /** Checks "Print 180 Orientation" or not, without telling the host. */
    void set180OrientationCheck(bool orientation180);
    /**
     * Emits widgetPrintSignal() for the choice: the pages from start to end; the typed list, with
     * start and end 0; or, if no list is typed, the current page. The current page is a range of
     * one page, never a start with the end -1.
     */
    void printSlot();
    /**
     * Emits currentPrinterSelectionChanged() with the printer at a 0-based index; with an empty
     * name if the index is out of range.
     *
     * The selector reaches that signal in two ways, by its change of index and by the user's pick:
     * picking another printer is reported twice with the same name, picking the current one again
     * once. Hosts have to accept a repeated name.
     */
    void currentPrinterSelectionChangedSlot(int index);
    /** Enables the page list for "Selection" only, then does what checkRangeUpdate() does. */
    void recordsRadioChangedSlot(bool forceUpdate = false);
    /**
     * Determines the pages of the choice again and emits startPageChangedSignal() if the start page
     * changed, or in any case if @p forceUpdate. A forced update of a typed list whose start page
     * changed reports that page twice: the list does so itself.
     */
    void checkRangeUpdate(bool forceUpdate);
    /**
     * Determines the pages of the typed list, whichever choice is checked. Emits
     * startPageChangedSignal() and returns true if the start page changed.
     */
    bool listRangeParse();
    /** Subtracts one copy, down to 1. A text that is not a number stays. */
    void decreaseCopyCount();
    /** Adds one copy, up to 999. A text that is not a number counts as 0. */
    void increaseCopyCount();

protected:
    /** Emits focusLost() after the base class has handled the event. */
    void focusOutEvent(QFocusEvent* event) override;
    /** Emits printWidgetShowSignal() after the base class has handled the event. */
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<PrintPanels::MultiPagePrintWidgetPrivate> const d;
};

#endif
