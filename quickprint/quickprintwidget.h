// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_QUICKPRINTWIDGET_H
#define PRINTPANELS_QUICKPRINTWIDGET_H

#include <printpanels/printpanels_export.h>
#include <printpanels/printwidgetinterface.h>

#include <QtCore/QSizeF>

#include <memory>

class QImage;

namespace PrintPanels {
class QuickPrintWidgetPrivate;
}

/**
 * The small panel that prints one finished label: printer name, size to print at, preview, copies.
 *
 * Print requests the label that is shown, without a range of records; Open in Editor emits
 * openModuleSignal(). Print starts disabled.
 */
class PRINTPANELS_EXPORT QuickPrintWidget : public PrintWidgetInterface
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickPrintWidget)

public:
    /**
     * Creates the panel. @p quickPrint has no effect on it. The panel does not become a child of
     * @p parent: the layout that the host adds it to gives it a parent, and without one the host
     * deletes it.
     */
    QuickPrintWidget(bool quickPrint, QWidget* parent);
    /** Destroys the panel and its children. Emits nothing. */
    ~QuickPrintWidget() override;

    /// @name Module and buttons
    /// @{
    /** Shows the size fields for JxCatalog and JavaScript and hides them for all other modules. */
    void setModule(const JxModuleInfo::JxModuleTypes& module) override;
    /** Disables Print. */
    void disablePrintButtons() override;
    /** Disables Print and Open in Editor. */
    void disableAllButtons() override;
    /** Enables Print. */
    void enablePrintButtons() override;
    /** Enables Print and Open in Editor. */
    void enableAllButtons() override;
    /// @}

    /// @name Copies
    /// @{
    /** Sets the number of copies, clamped to 1 to 999. */
    void setNumberOfCopies(int copies) override;
    /** The number of copies, 1 to 999. */
    int getNumberOfCopies() override;
    /// @}

    /// @name Printer and label
    /// @{
    /** Shows the name of the current printer, as plain text. */
    void setCurrentPrinterName(const QString& name);
    /** Shows another rendering of the label, fitted and centred. A null image shows nothing. */
    void updateQuickPrint(const QImage& image);
    /** Fills in the size fields, length from the width, with two decimals, in the host's unit. */
    void setCanvasSize(const QSizeF& size);
    /**
     * What the size fields hold, length as the width, in the unit of setCanvasSize(). A field
     * whose text is not a number counts as -1.0.
     */
    QSizeF getCanvasSize() const;
    /// @}

Q_SIGNALS:
    /**
     * The user asks for a label of this size, in the unit of setCanvasSize(). A dimension whose
     * text is not a number is -1.0; which sizes make sense is for the host to decide.
     */
    void resizeSignal(const QSizeF& canvasSize);

public Q_SLOTS:
    /** Does nothing: the panel shows one label. */
    void updateCurrentRangeIndex(int sequenceCurrent) override;
    /** Emits widgetPrintSignal(-1, -1, ""): the label that is shown. */
    void printSlot();
    /** Emits resizeSignal() with getCanvasSize(). */
    void resizeSlot();

private:
    std::unique_ptr<PrintPanels::QuickPrintWidgetPrivate> const d;
};

#endif
