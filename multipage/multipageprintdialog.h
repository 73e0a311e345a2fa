// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_MULTIPAGEPRINTDIALOG_H
#define PRINTPANELS_MULTIPAGEPRINTDIALOG_H

#include <printpanels/printpanels_export.h>

#include <QtWidgets/QDialog>

#include <memory>

namespace PrintPanels {
class MultiPagePrintDialogPrivate;
}

/**
 * The "Preview and Print" window for documents of several pages: a title bar, a settings panel on
 * the left and the current page on the right.
 *
 * It does not print. The host creates the panel, listens to the panel's signals and sets the images
 * of the pages. The dialog has a fixed size of 1010 x 540 pixels and starts hidden. Closing only
 * hides it, so that its owner may show it again; the owner deletes it.
 * In a handler of its signals or of the panel's use deleteLater(), also while the dialog executes.
 */
class PRINTPANELS_EXPORT MultiPagePrintDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MultiPagePrintDialog)

public:
    /**
     * Creates the dialog around a panel.
     * @param panel the settings panel, usually a MultiPagePrintWidget; the dialog becomes its
     *        parent and owner. Null leaves its place empty, and the panel may be deleted before the
     *        dialog
     * @param parent owner, or null
     * @param flags window flags; a host that wants the dialog's title bar to be the only one adds
     *        Qt::FramelessWindowHint
     */
    MultiPagePrintDialog(QWidget* panel, QWidget* parent, Qt::WindowFlags flags);
    /** Destroys the dialog and its children, the settings panel among them. Emits nothing. */
    ~MultiPagePrintDialog() override;

    /** Shows the image of a page, fitted and centred. A null image shows an empty white page. */
    void setPreviewImage(const QImage& image);
    /** Sets the text of the title bar, which starts empty. The window's title stays. */
    void setTitle(const QString& title);

public Q_SLOTS:
    /** Moves the dialog's top left corner to (x, y), as the user drags the title bar. */
    void mouseMoveSlot(int x, int y);

private:
    std::unique_ptr<PrintPanels::MultiPagePrintDialogPrivate> const d;
};

#endif
