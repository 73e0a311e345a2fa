// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_MULTIPAGEPRINTWIDGET_H
#define PRINTPANELS_MULTIPAGEPRINTWIDGET_H

#include <printpanels/printpanels_export.h>
#include <printpanels/printwidgetinterface.h>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QFrame;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

class JxComboBox;
class JxLineEdit;

/**
 * The print settings panel for documents of several pages, made to stand in a
 * MultiPagePrintDialog.
 *
 * Top to bottom: printer with the 180-degree orientation, pages to print, copies, and the options
 * with the Print button. It never prints: see PrintWidgetInterface for the requests that it emits.
 * It keeps the first page that the user's choice stands for and tells the host when that page
 * changes, so that the host can show it.
 *
 * The panel is 270 pixels wide. Whoever places it in a layout owns it; the panel owns all it shows.
 * The Print button starts disabled. Pages are 1-based, but for updateCurrentRangeIndex().
 *
 * To delete the panel in a handler of one of its signals, use deleteLater(), also when an operation
 * of the host's emits it.
 */
class PRINTPANELS_EXPORT MultiPagePrintWidget : public PrintWidgetInterface
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MultiPagePrintWidget)

public:
    /**
     * Builds the panel.
     * @param fitToPage whether "Fit To Page" starts checked
     * @param interfaceFlag kept for the interface; this panel gives it no meaning
     * @param parent owner, or null
     */
    MultiPagePrintWidget(bool fitToPage, bool interfaceFlag, QWidget* parent);
    ~MultiPagePrintWidget() override;

    // Construction, modules and buttons
    /** Does nothing: the panel is the same for every module. */
    void setModule(const JxModuleInfo::JxModuleTypes& module) override;
    // Both pairs mean the Print button; the printer settings stay reachable.
    void disablePrintButtons() override;
    void disableAllButtons() override;
    void enablePrintButtons() override;
    void enableAllButtons() override;

    // Printer
    /**
     * Replaces the printers and selects one by 0-based index, without telling the host. An empty
     * list shows the one item "No printer", selected; an index out of range selects nothing.
     */
    void updateListOfPrinters(const QStringList& printers, int currentIndex) override;
    /** The current item's text: a printer's name, "No printer", or nothing. */
    QString getSelectedPrinter() const override;
    /**
     * Selects the first printer of exactly this name, case included, without telling the host. An
     * unknown name selects nothing.
     */
    void setSelectedPrinter(const QString& name) override;

    // Pages
    /**
     * Tells the panel about the document and reports the start page with startPageChangedSignal(),
     * even if it stays the same.
     * @param currentPage 1-based page that the preview shows
     * @param pageCount number of pages; until it is known the panel reckons with 99999
     * @param pageRangeEnabled whether the user may choose pages
     */
    void setPageInfo(int currentPage, int pageCount, bool pageRangeEnabled);

    // Copies
    /** Shows a number of copies as it is, without clamping. */
    void setNumberOfCopies(int copies) override;
    /** The number of copies that is shown; 1 where that is no number or below 1. */
    int getNumberOfCopies() override;

    // Options
    /** Shows or hides "Print Only Form Fill Text" and checks it, without telling the host. */
    void setFormFillOption(bool visible, bool checked);
    /** Shows or hides "Print 180 Orientation". */
    void set180OrientationVisible(bool visible);

Q_SIGNALS:
    /** The user changed "Print Only Form Fill Text": Qt::Unchecked or Qt::Checked (0 or 2). */
    void printFormFillChangedSignal(int formFillChecked);
    /** The user changed "Fit To Page": 0 or 2, like above. */
    void fitToPageChangedSignal(int fitToPageChecked);
    /**
     * The choice starts at another page, 1-based; -1 when a typed list names no page that exists.
     * Also emitted by every forced update, where it may repeat the page just reported.
     */
    void startPageChangedSignal(int startPage);
    /** The user changed "Print 180 Orientation": 0 or 2, like above. */
    void orientationChangedSignal(int orientationFlipChecked);

public Q_SLOTS:
    /** Tells the 0-based index of the page that the preview shows. */
    void updateCurrentRangeIndex(int sequenceCurrent) override;
    /** Checks "Print 180 Orientation" or not, without telling the host. */
    void set180OrientationCheck(bool orientation180);
    /**
     * Emits widgetPrintSignal() for the choice: the pages from start to end, the typed list with
     * start and end 0, or the current page when no list is typed. The current page is asked for as
     * a range of one page, never with the end -1.
     */
    void printSlot();
    /**
     * Reports the printer at a 0-based index with currentPrinterSelectionChanged(); an index out of
     * range reports an empty name.
     *
     * The combo box reaches that signal in two ways, by its change of index and by the user's pick:
     * picking another printer is reported twice with the same name, picking the current one again
     * once. Hosts therefore have to take a repeated name.
     */
    void currentPrinterSelectionChangedSlot(int index);
    /** Enables the page list for "Selection" only, then does what checkRangeUpdate() does. */
    void recordsRadioChangedSlot(bool forceUpdate = false);
    /**
     * Works out the pages of the choice anew and emits startPageChangedSignal() if the start page
     * changed, or in any case if @p forceUpdate. A forced update of a typed list whose start page
     * changed reports that page twice: the list does so itself.
     */
    void checkRangeUpdate(bool forceUpdate);
    /**
     * Works out the pages of the typed list, whichever choice is made. Emits
     * startPageChangedSignal() and answers true if the start page changed.
     */
    bool listRangeParse();
    /** One copy less, but not below 1. A text that is no number stays. */
    void decreaseCopyCount();
    /** One copy more, but not above 999. A text that is no number counts as 0. */
    void increaseCopyCount();

protected:
    /** Emits focusLost() after the base class has handled the event. */
    void focusOutEvent(QFocusEvent* event) override;
    /** Emits printWidgetShowSignal() after the base class has handled the event. */
    void showEvent(QShowEvent* event) override;

private:
    // ---- Construction, modules and buttons (multipageprintwidget.cpp) ----
    void createWidgetLayout(bool fitToPage);
    void createTitle();
    void addSpacer();
    // Kept for the interface, read by nobody.
    [[maybe_unused]] const bool interfaceFlag;
    QVBoxLayout* mainLayout = nullptr;

    // ---- Pages (multipageprintwidget_pages.cpp) ----
    void createPageRangeFrame();
    void createPageRadios();
    void createPageListEdit();
    bool applyPageChoice();
    int startPage = 1;
    int endPage = 1;
    int pageCount = 99999;
    int currentPage = 1;
    QFrame* pageRangeFrame = nullptr;
    QRadioButton* currentPageRadio = nullptr;
    QRadioButton* allPagesRadio = nullptr;
    QRadioButton* selectionRadio = nullptr;
    QButtonGroup* pageRangeButtonGroup = nullptr;
    JxLineEdit* pageListEdit = nullptr;

    // ---- Options (multipageprintwidget_options.cpp) ----
    void createOrientationCheck();
    void createOptionsLayout(bool fitToPage);
    QCheckBox* formFillCheck = nullptr;
    QCheckBox* fitToPageCheck = nullptr;
    QCheckBox* orientationCheck = nullptr;
    QPushButton* printButton = nullptr;

    // ---- Printer (multipageprintwidget_printer.cpp) ----
    void createPrinterLayout();
    void fillPrinterCombo(const QStringList& printers, int currentIndex);
    JxComboBox* printerCombo = nullptr;
    QPushButton* printerSettingsButton = nullptr;

    // ---- Copies (multipageprintwidget_copies.cpp) ----
    void createCopiesFrame();
    QBoxLayout* createCopiesRow();
    JxLineEdit* copiesEdit = nullptr;
    QPushButton* plusButton = nullptr;
    QPushButton* minusButton = nullptr;
};

#endif
