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
 * The interface of every print panel to its host.
 *
 * A host creates a panel, calls setModule() once, sets the printers, enables the buttons, and from
 * then on reports what it knows (printer status, loaded supply, current record). The panel only
 * emits signals: it never prints. Operations that a panel does not offer do nothing and return 0,
 * false or an empty string, so a host may call any operation on any panel.
 *
 * In a handler of a panel's signal use deleteLater() to delete the panel or a parent of it.
 */
class PRINTPANELS_EXPORT PrintWidgetInterface : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PrintWidgetInterface)

public:
    /** Creates the base of a panel. The bool has a meaning for derived panels only. */
    PrintWidgetInterface(bool, QWidget* parent);
    ~PrintWidgetInterface() override;

    /** Sets which of the host's modules embeds the panel. Meant to be called once. */
    virtual void setModule(const JxModuleInfo::JxModuleTypes& module) = 0;
    /** Disables the buttons that start a print or a preview. */
    virtual void disablePrintButtons() = 0;
    /** Disables every button that reaches the host. */
    virtual void disableAllButtons() = 0;
    /** Enables the buttons that start a print or a preview: a printer and a label are ready. */
    virtual void enablePrintButtons() = 0;
    /** Enables every button that reaches the host. */
    virtual void enableAllButtons() = 0;
    /** Sets the number of copies. Panels that clamp it do so to 1 to 999. */
    virtual void setNumberOfCopies(int copies) = 0;
    /** The number of copies that the user asks for. */
    virtual int getNumberOfCopies() = 0;

    /** Shows or hides the choice between N-up replicating and sequencing. Default: does nothing. */
    virtual void setNupSeqRepVisible(bool visible);
    /** Sets whether the label has a dynamic length, which rules out N-up. Default: does nothing. */
    virtual void setNupDynamicLength(bool on);
    /** True if N-up sequencing is chosen, false for replicating or no N-up. Default: false. */
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
    /** True if print-to-file is checked. Default: false. */
    virtual bool getPrintToFileEnabled() const;
    /** Hides the loaded-supply information. Default: does nothing. */
    virtual void hideSupplyInfo();
    /**
     * Shows what is loaded in the printer. Default: does nothing.
     * @param colors ribbon 1, then ribbon 2 if there are two, and the supply last, as "#rrggbb";
     *        "#fffffe" means that nothing is loaded in that place
     * @param twoRibbons whether the printer has a second ribbon
     * @param width tape width in the unit that @p metric names
     * @param metric millimetres if not 0, inches if 0
     * @param showTinyLadder whether the user can choose the ladder tube
     */
    virtual void showSupplyInfo(const QStringList& colors, bool twoRibbons, double width,
                                unsigned char metric, bool showTinyLadder);
    /** Replaces the colours that the ribbon and supply menus offer. Default: does nothing. */
    virtual void setColorPalette(const QStringList& ribbonColors, const QStringList& supplyColors);
    /** True if the ladder tube is checked. Default: false. */
    virtual bool isTinySupply() const;

    /** Creates a horizontal line in the panels' grey, without a parent: a layout gives it one. */
    QFrame* createSeparatorBar();

Q_SIGNALS:
    /**
     * The user asks to print. If the list is not empty, it is the selection, and start and end are
     * 0. Otherwise an end of -1 means the one record @p sequenceStart, and any other end the
     * records from start to end, 1-based and inclusive.
     */
    void widgetPrintSignal(int sequenceStart, int sequenceEnd, const QString& customRecordsList);
    /** The user asks to preview. The arguments are those of widgetPrintSignal(). */
    void printPreviewSignal(int sequenceStart, int sequenceEnd, const QString& customRecordsList);
    /** The user clicked the preferences button of the printer. */
    void openPreferencesSignal();
    /** The user chose a printer. Not emitted for changes that the host makes. */
    void currentPrinterSelectionChanged(const QString& printerName);
    /** The user wants to go to the module that edits the label. */
    void openModuleSignal();
    /**
     * The panel, or its copies field, lost the keyboard focus; also when another window becomes
     * active, or when the host hides the panel.
     */
    void focusLost();
    /** The panel was shown. Emitted after the base class has handled the show event. */
    void printWidgetShowSignal();
    /** The user corrected the width of the loaded supply; in the unit that is shown. */
    void supplyWidthChangedSignal(double width);
    /** The user chose a colour. The list is ribbon 1, ribbon 2 (empty without one), supply. */
    void supplyColorsChangedSignal(const QStringList& colors);
    /** The user checked or unchecked the ladder tube. */
    void tinyLadderSupplyChangedSignal(bool tinySupply);

public Q_SLOTS:
    /** Sets the 0-based index of the current record or page. */
    virtual void updateCurrentRangeIndex(int sequenceCurrent) = 0;
    /** Shows the printer's location. Default: does nothing. */
    virtual void updatePrinterLocation(const QString&);
    /** Shows the printer's status: offline, remote, unavailable. Default: does nothing. */
    virtual void updatePrinterStatus(bool, bool, bool);
};

#endif
