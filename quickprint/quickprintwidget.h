// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_QUICKPRINTWIDGET_H
#define PRINTPANELS_QUICKPRINTWIDGET_H

#include <printpanels/printpanels_export.h>
#include <printpanels/printwidgetinterface.h>

#include <QtCore/QSizeF>

class QFrame;
class QGridLayout;
class QImage;
class QLabel;
class QLayout;
class QPushButton;

class JxLineEdit;
class JxSpinBox;

namespace PrintPanels {
class PreviewView;
}

/**
 * The small panel that prints one finished label: printer name, size to print at, preview, copies.
 *
 * Print asks for the label that is shown, without a range of records; Open in Editor emits
 * openModuleSignal(). The panel owns all it shows. Print starts disabled.
 */
class PRINTPANELS_EXPORT QuickPrintWidget : public PrintWidgetInterface
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickPrintWidget)

public:
    /**
     * Builds the panel. @p quickPrint is the host's own; the panel only keeps it. The panel does
     * not become a child of @p parent: the layout that the host puts it into gives it a parent, and
     * without one the host deletes it.
     */
    QuickPrintWidget(bool quickPrint, QWidget* parent);
    ~QuickPrintWidget() override;

    /** Shows the size fields for JxCatalog and JavaScript and hides them for all other modules. */
    void setModule(const JxModuleInfo::JxModuleTypes& module) override;
    // The "print" button is Print alone; "all" adds Open in Editor.
    void disablePrintButtons() override;
    void disableAllButtons() override;
    void enablePrintButtons() override;
    void enableAllButtons() override;
    /** Shows the number of copies, clamped to 1 to 999. */
    void setNumberOfCopies(int copies) override;
    /** The number of copies, 1 to 999. */
    int getNumberOfCopies() override;

    /** Shows the name of the current printer, as plain text. */
    void setCurrentPrinterName(const QString& name);
    /** Shows another rendering of the label, fitted and centred. A null image shows nothing. */
    void updateQuickPrint(const QImage& image);
    /** Fills the size fields, length from the width, with two decimals, in the host's unit. */
    void setCanvasSize(const QSizeF& size);
    /**
     * What the size fields hold, length as the width, in the unit of setCanvasSize(). A field
     * whose text is no number counts as -1.0.
     */
    QSizeF getCanvasSize() const;

Q_SIGNALS:
    /**
     * The user asks for a label of this size, in the unit of setCanvasSize(). A dimension that was
     * no number is -1.0; what is a sensible size is for the host to say.
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
    void createWidgetLayout();
    void createResizeLayout();
    void createPreviewLayout();
    QFrame* createCopyCountLayout();
    QLayout* createButtonsLayout();

    QGridLayout* mainLayout = nullptr;
    QLabel* printerNameLabel = nullptr;
    QFrame* resizeFrame = nullptr;
    JxLineEdit* lengthEdit = nullptr;
    JxLineEdit* widthEdit = nullptr;
    QPushButton* resizeButton = nullptr;
    PrintPanels::PreviewView* preview = nullptr;
    JxSpinBox* copiesSpinBox = nullptr;
    QPushButton* plusButton = nullptr;
    QPushButton* minusButton = nullptr;
    QPushButton* printButton = nullptr;
    QPushButton* openInEditorButton = nullptr;
    [[maybe_unused]] const bool quickPrintFlag;
};

#endif
