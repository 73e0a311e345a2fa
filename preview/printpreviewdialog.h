// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PRINTPREVIEWDIALOG_H
#define PRINTPANELS_PRINTPREVIEWDIALOG_H

#include <printpanels/printpanels_export.h>

#include <QtCore/QString>
#include <QtWidgets/QWidget>

class QBoxLayout;
class QButtonGroup;
class QImage;
class QPushButton;
class QSizeF;

class ContainerTitleBar;

namespace PrintPanels {
class PreviewView;
}

/**
 * The popup that shows the label about to be printed, to be zoomed, dragged, turned and printed.
 *
 * It renders and prints nothing: its signals say what the user wants, and the host answers with
 * updatePreview(). It starts hidden, and the host shows it, any number of times. The host owns it
 * like any QWidget; it owns all it shows. Its size is fixed at 860 x 500 pixels. Sizes are numbers
 * in the unit that @e metric names: millimetres if true, inches if false.
 *
 * To delete it, or a parent of it, in a handler of one of its signals, use deleteLater().
 */
class PRINTPANELS_EXPORT PrintPreviewDialog : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PrintPreviewDialog)

public:
    /** Tool tip of the two orientation buttons, translated when the library was loaded. */
    static const QString ORIENTATION_TIP;

    /**
     * Builds the popup, hidden. @p flags go to QWidget unchanged; Qt::Popup or
     * Qt::FramelessWindowHint make a window of it. The other arguments are those of
     * updatePreview(). Sets the application's tool-tip font to the host's small one.
     */
    PrintPreviewDialog(QWidget* parent, Qt::WindowFlags flags, const QImage& image,
                       const QSizeF& designSize, const QSizeF& printedSize, bool printedSizeOnly,
                       bool portrait, bool metric, int sequenceStart, int sequenceEnd,
                       const QString& recordList);
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
    /** Composes the title from the sizes; see updatePreview(). */
    void setUpTitleBar(const QSizeF& designSize, const QSizeF& printedSize, bool printedSizeOnly,
                       bool metric);

Q_SIGNALS:
    /**
     * The user asks to print what is shown: the range that the host gave last, as it was given. The
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
    /** Emits previewPrintSignal() with the range given last, whatever the Print button's state. */
    void print();
    /** Zooms the label in by one step, up to a limit. */
    void zoomIn();
    /** Zooms the label out by one step, down to one step below the fit. */
    void zoomOut();
    /** Fits the label into the view and centres it. */
    void zoomFit();
    /** Moves the popup's top left corner to this place, in the parent's or screen's coordinates. */
    void mouseMoveSlot(int, int);

private:
    struct Buttons;
    void createTitleBar();
    Buttons createButtons();
    void createOrientationButtons(bool portrait);
    QBoxLayout* createButtonRow(const Buttons& buttons) const;
    void createLayout(QBoxLayout* buttonRow);
    void connectControls(const Buttons& buttons);

    PrintPanels::PreviewView* preview = nullptr;
    ContainerTitleBar* titleBar = nullptr;
    QPushButton* portraitButton = nullptr;
    QPushButton* landscapeButton = nullptr;
    QButtonGroup* orientationGroup = nullptr;
    QPushButton* printButton = nullptr;
    int sequenceStart;
    int sequenceEnd;
    QString recordList;
};

#endif
