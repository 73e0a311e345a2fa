// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PRINTWIDGET_H
#define PRINTPANELS_PRINTWIDGET_H

#include <printpanels/printpanels_export.h>
#include <printpanels/printwidgetinterface.h>

#include <optional>
#include <utility>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QFrame;
class QGridLayout;
class QLabel;
class QRadioButton;
class QStackedWidget;
class QVBoxLayout;
class ColorMenu;
class DragScrollButton;
class ExpandingTabBar;
class JxComboBox;
class JxLineEdit;
class JxSpinBox;
class SuffixDoubleValidator;

namespace PrintPanels {
struct RibbonLook;
}

/**
 * The full print settings panel, for modules that design labels.
 * Top to bottom: the ammonia tag choice (pipe marking only), printer with location and status,
 * copies, loaded supply, records to print with the N-up choice, user background, test controls, and
 * the Print and Print Preview buttons. It never prints: see PrintWidgetInterface for the requests
 * it emits. The host owns the panel like any QWidget. Print and preview buttons start disabled.
 */
class PRINTPANELS_EXPORT PrintWidget : public PrintWidgetInterface
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PrintWidget)

public:
    /** Builds the panel. @p printToFile adds the print-to-file and error-test controls. */
    PrintWidget(bool printToFile, QWidget* parent);
    ~PrintWidget() override;

    // Construction, modules and buttons
    /** Pipe marking hides the records and builds the ammonia section; others change nothing. */
    void setModule(const JxModuleInfo::JxModuleTypes& module) override;
    // "Print" buttons are Print Preview and Print; "all" adds the preferences button.
    void disablePrintButtons() override;
    void disableAllButtons() override;
    void enablePrintButtons() override;
    void enableAllButtons() override;
    /** Shows or hides "Print User Background", which starts hidden. */
    void setShowUserBackground(bool show);
    /** Whether "Print User Background" is checked; works while it is hidden, too. */
    void setPrintUserBackground(bool print);
    bool getPrintUserBackground() const;

    // Printer
    /**
     * Adds a printer at the top or the end without telling the host. It becomes the current one
     * only when it is the first item afterwards.
     */
    void addPrinterToList(const QString& name, bool atTop) override;
    /**
     * Replaces the printers and selects one by 0-based index, without telling the host. An empty
     * list shows the one item "No printer", selected; an index out of range selects nothing.
     */
    void updateListOfPrinters(const QStringList& printers, int currentIndex) override;
    /** Selects a printer by name without telling the host; an unknown name changes no selection. */
    void setSelectedPrinter(const QString& name) override;
    /** The current item's text: a printer's name, or "No printer". */
    QString getSelectedPrinter() const override;

    // Copies and requests
    /** Shows the number of copies, clamped to 1 to 999. */
    void setNumberOfCopies(int copies) override;
    /** The number of copies, 1 to 999. */
    int getNumberOfCopies() override;
    /**
     * Fills a request from the records choice. The caller presets it with the current record, -1
     * and an empty list; what stands for the current record leaves it so.
     */
    void whatToPrint(int& sequenceStart, int& sequenceEnd, QString& customRecordsList) const;

    // Records
    /**
     * Tells the 0-based index of the current record and of the last one, and whether there are
     * records to choose from. Applies the N-up rules again.
     */
    void setRangeValues(int currentIndex, int lastIndex, bool enabled);
    /** Classifies the typed list into one record or several. */
    void listRangeParse();

    // N-up
    /** Shows the N-up choice, unless the records section is disabled. */
    void setNupSeqRepVisible(bool visible) override;
    /** A dynamic length forces replicating and disables the choice. */
    void setNupDynamicLength(bool on) override;
    /** True when the choice is visible on the screen and sequencing is checked. */
    bool getNupSeqRepOption() const override;

    // Ammonia tags
    /** Fills the names of the printable items. Calling it again changes nothing. */
    void createAmmoniaComboList();

    // Loaded supply
    /** Builds the contents of the section, once; showSupplyInfo() does so when it is first needed.
     */
    void createSupplyInfoLayout();
    /** See PrintWidgetInterface. An empty colour list means nothing loaded anywhere. */
    void showSupplyInfo(const QStringList& colors, bool twoRibbons, double width,
                        unsigned char metric, bool showTinyLadder) override;
    /** Hides the section and keeps what it holds. */
    void hideSupplyInfo() override;
    /** True between showSupplyInfo() and hideSupplyInfo(). */
    bool isSupplyInfoVisible() const override;
    /** Whether the ladder tube is checked; false before the first showSupplyInfo(). */
    bool isTinySupply() const override;

    // Supply and ribbon colours
    /**
     * Replaces the colours on offer: "#rrggbb" codes or "transparent". Before the section exists
     * the lists are kept and applied when it is built.
     */
    void setColorPalette(const QStringList& ribbonColors, const QStringList& supplyColors) override;
    /**
     * Inserts a tab and its menu at a 0-based index. Nothing happens without a menu or before the
     * section exists. The stack of menus becomes the owner of @p menu.
     */
    void addMenuToStack(int index, const QString& color, const QString& tabText,
                        const QString& toolTip, ColorMenu* menu);
    /** Shows a colour on the tab at a 0-based index and in its menu, without telling the host. */
    void updateColorSelection(int index, const QString& color, ColorMenu* menu);

    // Test controls
    /** Whether print-to-file is checked; false on a panel without the test controls. */
    bool getPrintToFileEnabled() const override;

Q_SIGNALS:
    /** The user chose what to print: 0 the label, or the tag's bit 1, 2, 4 or 8. */
    void ammoniaPrintTagChanged(int data);
    /** The user asks to see the host's error message of this number, 0 to 25. */
    void testPrintError(int errorNumber);

public Q_SLOTS:
    /** Tells the 0-based index of the current record. Leaves the N-up choice as it is. */
    void updateCurrentRangeIndex(int sequenceCurrent) override;
    /**
     * Offers the label and the tags of the bit mask (1 high pressure, 2 low pressure, 4 vapor,
     * 8 liquid; other bits are ignored), starting at the label without telling the host. Without a
     * tag the section is hidden.
     */
    void setVisibleAmmoniaTag(int tag);
    /** Shows the location as given, as plain text. */
    void updatePrinterLocation(const QString& location) override;
    /** Shows the composed status; remote outranks offline. */
    void updatePrinterStatus(bool offline, bool remote, bool unavailable) override;

private Q_SLOTS:
    void printSlot();
    void printPreviewSlot();
    void recordsRadioChangedSlot();
    void listRangeChanged();
    void checkRange();
    void currentPrinterSelectionChangedSlot(int printerIndex);
    void ammoniaPrintComboChanged(int index);
    void ribbon1ColorSelectionSlot(const QString& color);
    void ribbon2ColorSelectionSlot(const QString& color);
    void supplyColorSelectionSlot(const QString& color);
    void supplyWidthEditedSlot();
    void testErrorCodeSlot();

protected:
    /** Emits printWidgetShowSignal() after the base class has handled the event. */
    void showEvent(QShowEvent* event) override;

private:
    // ---- Construction, modules and buttons (printwidget.cpp) ----
    void createWidgetLayout();
    void createTitle();
    void createUserBackgroundCheck();
    void createBottomSeparator();
    const bool printToFile;
    QVBoxLayout* mainLayout = nullptr;
    QCheckBox* userBackgroundCheck = nullptr;
    QFrame* bottomSeparator = nullptr;

    // ---- Ammonia tags (printwidget_ammonia.cpp) ----
    void createAmmoniaFrame();
    void createAmmoniaLayout();
    void discardAmmoniaContents();
    QStringList ammoniaItemNames;
    QFrame* ammoniaWidget = nullptr;
    JxComboBox* ammoniaPrintCombo = nullptr;
    QWidget* ammoniaSeparator = nullptr;

    // ---- Printer (printwidget_printer.cpp) ----
    void createPrinterSelectorLayout();
    QGridLayout* createPrinterStatusLayout();
    const QString onlineText, offlineText, remoteText, unavailableText;
    QGridLayout* printerGrid = nullptr;
    JxComboBox* printerCombo = nullptr;
    DragScrollButton* preferencesButton = nullptr;
    QLabel* locationLabel = nullptr;
    QLabel* statusLabel = nullptr;

    // ---- Copies and requests (printwidget_copies.cpp) ----
    void createCopyCountLayout();
    void createPrintButtonsLayout();
    void emitRequest(void (PrintWidgetInterface::*request)(int, int, const QString&));
    JxSpinBox* copiesSpinBox = nullptr;
    DragScrollButton* printButton = nullptr;
    DragScrollButton* previewButton = nullptr;

    // ---- Records (printwidget_records.cpp) ----
    void createRecordsRangeLayout();
    void createRecordsRadios();
    void createRecordListEdit();
    void classifyRecords();
    int rangeStart = 1;
    int rangeEnd = 1;
    int numberOfRecords = 99999;
    int currentRecord = 1;
    QFrame* recordsFrame = nullptr;
    QRadioButton* currentRecordRadio = nullptr;
    QRadioButton* allRecordsRadio = nullptr;
    QRadioButton* recordListRadio = nullptr;
    QButtonGroup* recordsButtonGroup = nullptr;
    JxLineEdit* recordListEdit = nullptr;

    // ---- N-up (printwidget_nup.cpp) ----
    void createNupSeqRepFrame();
    void createNupRadios();
    void createNupPictures();
    void setNupFrameToolTip(const QString& toolTip);
    QStringList nupToolTips;
    QFrame* nupFrame = nullptr;
    QLabel* nupTitleLabel = nullptr;
    QRadioButton* replicatingRadio = nullptr;
    QRadioButton* sequencingRadio = nullptr;
    QLabel* replicatingIconLabel = nullptr;
    QLabel* sequencingIconLabel = nullptr;
    QButtonGroup* nupButtonGroup = nullptr;
    bool dynamicLengthOn = false;
    bool sequencingChosen = false;

    // ---- Loaded supply (printwidget_supply.cpp) ----
    void createSupplyInfoFrame();
    void createSupplyWidthRow(QBoxLayout* sectionLayout);
    void createColorTabs(QBoxLayout* sectionLayout);
    void connectSupplySection();
    void updateSecondRibbon(const QStringList& colors, bool twoRibbons);
    void removeSecondRibbon();
    QFrame* supplyInfoWidget = nullptr;
    bool supplyInfoVisible = false;
    bool supplyLayoutPending = false;
    QStackedWidget* colorStack = nullptr;
    ExpandingTabBar* colorTabBar = nullptr;
    QCheckBox* tinyLadderCheck = nullptr;
    bool hasSecondRibbon = false;
    int supplyTabIndex = 0;
    SuffixDoubleValidator* widthValidator = nullptr;
    QString widthSuffix;
    JxLineEdit* supplyWidthEdit = nullptr;
    QString lastWidthText;

    // ---- Supply and ribbon colours (printwidget_supplycolors.cpp) ----
    void createColorMenus();
    void addColorMenus();
    void applyPalettes(const QStringList& ribbonColors, const QStringList& supplyColors);
    void labelRibbonTab(int tabIndex, const PrintPanels::RibbonLook& look);
    void refreshRibbonTab(int tabIndex, const PrintPanels::RibbonLook& look, ColorMenu* menu);
    void selectRibbonColor(int tabIndex, const QString& color, QString& stored);
    void reportSupplyColors();
    ColorMenu* ribbon1Menu = nullptr;
    ColorMenu* ribbon2Menu = nullptr;
    ColorMenu* supplyMenu = nullptr;
    QString ribbon1Color;
    QString ribbon2Color;
    QString supplyColor;
    std::optional<std::pair<QStringList, QStringList>> keptPalettes; // ribbons, supply

    // ---- Test controls (printwidget_testcontrols.cpp) ----
    void createPrintToFileLayout();
    QBoxLayout* createErrorTestRow();
    QCheckBox* printToFileCheck = nullptr;
    JxSpinBox* errorNumberSpinBox = nullptr;
};

#endif
