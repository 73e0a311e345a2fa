// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PRINTWIDGETINTERFACE_H
#define PRINTPANELS_PRINTWIDGETINTERFACE_H

#include <jxmoduleinfo.h>
#include <printpanels/printpanels_export.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QFrame;

/**
 * What a host sees of every print panel.
 *
 * A host creates a panel, calls setModule() once, fills the printers, enables the buttons, and from
 * then on pushes what it knows (printer status, loaded supply, current record). The panel answers
 * with signals only: it never prints. Operations that a panel does not offer do nothing and answer
 * 0, false or an empty string, so a host may call any operation on any panel.
 *
 * To delete a panel, or a parent of it, in a handler of one of the panel's signals, use
 * deleteLater(). A panel of this library emits nothing while it is destroyed.
 */
class PRINTPANELS_EXPORT PrintWidgetInterface : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PrintWidgetInterface)

public:
    /** Creates the base of a panel. The bool belongs to the derived panel; the base does not use
     * it. */
    PrintWidgetInterface(bool, QWidget* parent);
    ~PrintWidgetInterface() override;

    /** Tells the panel which of the host's modules embeds it. Meant to be called once. */
    virtual void setModule(const JxModuleInfo::JxModuleTypes& module) = 0;
    /** Disables what starts a print or a preview. */
    virtual void disablePrintButtons() = 0;
    /** Disables every button that reaches the host. */
    virtual void disableAllButtons() = 0;
    /** Enables what starts a print or a preview: a printer and a label are ready. */
    virtual void enablePrintButtons() = 0;
    /** Enables every button that reaches the host. */
    virtual void enableAllButtons() = 0;
    /** Shows the number of copies. Panels that clamp do so to 1 to 999. */
    virtual void setNumberOfCopies(int copies) = 0;
    /** The number of copies that the user asks for. */
    virtual int getNumberOfCopies() = 0;

    /** Shows or hides the choice between N-up replicating and sequencing. Default: does nothing. */
    virtual void setNupSeqRepVisible(bool visible);
    /** Tells whether the label has a dynamic length, which rules N-up out. Default: does nothing.
     */
    virtual void setNupDynamicLength(bool on);
    /** True when N-up sequencing is chosen, false when replicating or no N-up. Default: false. */
    virtual bool getNupSeqRepOption() const;

    /** Replaces the printers and selects one by its 0-based index. Default: does nothing. */
    virtual void updateListOfPrinters(const QStringList& printers, int currentIndex);
    /** Adds a printer at the top or at the end of the list. Default: does nothing. */
    virtual void addPrinterToList(const QString& name, bool atTop);
    /** Name of the selected printer. Default: empty. */
    virtual QString getSelectedPrinter() const;
    /** Selects a printer by name without telling the host. Default: does nothing. */
    virtual void setSelectedPrinter(const QString& name);

    /** True while loaded-supply information is shown. Default: false. */
    virtual bool isSupplyInfoVisible() const;
    /** True when the user asks to print to a file. Default: false. */
    virtual bool getPrintToFileEnabled() const;
    /** Hides the loaded-supply information. Default: does nothing. */
    virtual void hideSupplyInfo();
    /**
     * Shows what is loaded in the printer. Default: does nothing.
     * @param colors ribbon 1, then ribbon 2 if there are two, and the supply last, as "#rrggbb";
     *        "#fffffe" means nothing loaded in that place
     * @param twoRibbons whether the printer has a second ribbon
     * @param width tape width in the unit that @p metric names
     * @param metric millimetres if not zero, inches if zero
     * @param showTinyLadder whether the ladder tube can be chosen
     */
    virtual void showSupplyInfo(const QStringList& colors, bool twoRibbons, double width,
                                unsigned char metric, bool showTinyLadder);
    /** Replaces the colours that the ribbon and supply menus offer. Default: does nothing. */
    virtual void setColorPalette(const QStringList& ribbonColors, const QStringList& supplyColors);
    /** True when the user says that a tiny ladder tube is loaded. Default: false. */
    virtual bool isTinySupply() const;

    /** A new horizontal line in the panels' grey. No parent: the layout that takes it gives it one.
     */
    QFrame* createSeparatorBar();

Q_SIGNALS:
    /**
     * The user asks to print. A list that is not empty is a custom selection, and start and end are
     * 0; an end of -1 means the one record @p sequenceStart; otherwise the records from start to
     * end, 1-based and inclusive.
     */
    void widgetPrintSignal(int sequenceStart, int sequenceEnd, const QString& customRecordsList);
    /** The user asks to preview the same selection that widgetPrintSignal() would name. */
    void printPreviewSignal(int sequenceStart, int sequenceEnd, const QString& customRecordsList);
    /** The user clicked the preferences button of the printer. */
    void openPreferencesSignal();
    /** The user chose another printer. Not emitted for changes that the host makes. */
    void currentPrinterSelectionChanged(const QString& printerName);
    /** The user wants to go to the module that edits the label. */
    void openModuleSignal();
    /**
     * The panel, or its copies field, lost the keyboard focus. The focus may leave because another
     * window gets it, or because the host hides the panel.
     */
    void focusLost();
    /** The panel was shown; emitted after each show event. */
    void printWidgetShowSignal();
    /** The user corrected the width of the loaded supply, in the unit that is shown. */
    void supplyWidthChangedSignal(double width);
    /** The user chose a colour: ribbon 1, ribbon 2 (empty without one) and supply, in this order.
     */
    void supplyColorsChangedSignal(const QStringList& colors);
    /** The user said that a tiny ladder tube is loaded, or no longer. */
    void tinyLadderSupplyChangedSignal(bool tinySupply);

public Q_SLOTS:
    /** Tells the panel the current record or page, 0-based. */
    virtual void updateCurrentRangeIndex(int sequenceCurrent) = 0;
    /** Shows where the printer stands. Default: does nothing. */
    virtual void updatePrinterLocation(const QString&);
    /** Shows the printer's status: offline, remote, unavailable. Default: does nothing. */
    virtual void updatePrinterStatus(bool, bool, bool);
};

#endif
