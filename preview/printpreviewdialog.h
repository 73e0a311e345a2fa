// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PRINTPREVIEWDIALOG_H
#define PRINTPANELS_PRINTPREVIEWDIALOG_H

#include <printpanels/printpanels_export.h>

#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <memory>

class QImage;
class QSizeF;

namespace PrintPanels {
class PrintPreviewDialogPrivate;
}

/**
 * The popup that shows the label about to be printed, to be zoomed, dragged, turned and printed.
 *
 * It neither renders nor prints: its signals say what the user wants, and the host answers with
 * updatePreview(). It starts hidden, and the host shows it any number of times. Its size is fixed
 * at 860 x 500 pixels. Sizes of labels are in the unit that @e metric names: millimetres if true,
 * inches if false. In a handler of its signals use deleteLater() to delete it.
 */
class PRINTPANELS_EXPORT PrintPreviewDialog : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PrintPreviewDialog)

public:
    /** Tool tip of the two orientation buttons, translated when the library is loaded. */
    static const QString ORIENTATION_TIP;

    /**
     * Creates the popup, hidden. @p flags go to QWidget unchanged; Qt::Popup or
     * Qt::FramelessWindowHint make a window of it. The other arguments are those of
     * updatePreview(). Sets the application's tool-tip font to the host's small one.
     */
    PrintPreviewDialog(QWidget* parent, Qt::WindowFlags flags, const QImage& image,
                       const QSizeF& designSize, const QSizeF& printedSize, bool printedSizeOnly,
                       bool portrait, bool metric, int sequenceStart, int sequenceEnd,
                       const QString& recordList);
    /** Destroys the popup and its children. Emits nothing. */
    ~PrintPreviewDialog() override;

    /**
     * Shows another rendering, fitted and centred, and keeps the range to print. Emits nothing.
     * @param image the rendered label; a null image shows nothing
     * @param designSize size of the label as designed
     * @param printedSize size of the label as printed
     * @param printedSizeOnly whether the title leaves the design size out
     * @param portrait whether the portrait button is checked, or else the landscape button
     * @param metric whether the sizes are millimetres, shown without decimals, or inches, shown
     *        with two
     * @param sequenceStart first record to print, handed back by previewPrintSignal()
     * @param sequenceEnd last record to print, handed back likewise
     * @param recordList custom record list, handed back likewise
     */
    void updatePreview(const QImage& image, const QSizeF& designSize, const QSizeF& printedSize,
                       bool printedSizeOnly, bool portrait, bool metric, int sequenceStart,
                       int sequenceEnd, const QString& recordList);
    /** Sets the title from the sizes; see updatePreview(). */
    void setUpTitleBar(const QSizeF& designSize, const QSizeF& printedSize, bool printedSizeOnly,
                       bool metric);

Q_SIGNALS:
    /**
     * The user asks to print what is shown: the range that the host set last, as it was set. The
     * popup stays open.
     */
    void previewPrintSignal(int sequenceStart, int sequenceEnd, const QString& recordList);
    /**
     * The user clicked an orientation button: 0 landscape, 1 portrait. Emitted for each click, also
     * on the button that is checked already.
     */
    void orientationChangedSignal(int orientationButtonSelected);
    /** The user closed the popup with one of its two close controls; emitted after it closed. */
    void popupHideSignal();

public Q_SLOTS:
    /** Enables or disables the Print button. */
    void enablePrintButton(bool state);
    /** Emits previewPrintSignal() with the range set last, whatever the Print button's state. */
    void print();
    /** Zooms in by one step, up to a limit. */
    void zoomIn();
    /** Zooms out by one step, down to one step below the fit. */
    void zoomOut();
    /** Fits the label into the view and centres it. */
    void zoomFit();
    /** Moves the popup's top left corner to this position, in the parent's or screen's coordinates.
     */
    void mouseMoveSlot(int, int);

private:
    std::unique_ptr<PrintPanels::PrintPreviewDialogPrivate> const d;
};

#endif
