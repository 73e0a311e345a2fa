// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFPREVIEW_H
#define SAMPLEHOST_PDFPREVIEW_H

#include "samplehost/pdf/pdfprintrequest.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

class MultiPagePrintDialog;
class MultiPagePrintWidget;

namespace SampleHost {

class HostSettings;
class PdfDocument;
class PrinterDirectory;

/**
 * The window "Preview and Print" of a document: fills its panel, shows in it the page at which the
 * user's choice starts, as it will be printed, and answers all that the panel says, but for the
 * request to print.
 */
class PdfPreview : public QObject
{
    Q_OBJECT

public:
    /** Makes the window, hidden, as a child of parent. What is referred to must outlive it. */
    PdfPreview(HostSettings& settings, const PrinterDirectory& printers, QWidget* parent);

    MultiPagePrintWidget& panel() const { return *m_panel; }
    MultiPagePrintDialog& dialog() const { return *m_dialog; }

    /** What the user chose for the sheets: their paper and look, and the copies, but no pages. */
    PdfPrintRequest request() const;

    /** Why the document cannot be printed as things stand, for the user; empty when it can. */
    QString problem() const;

    /** The page in the window, 1-based; -1 when the typed list names no page. */
    int shownPage() const { return m_shownPage; }

    /** Turns to another document at its first page, all choices as at the start. */
    void setDocument(std::shared_ptr<const PdfDocument> document);

    /** Tells that the host shows another page, 0-based. */
    void setPageIndex(int index);

    /** Tells whether pages are being printed; nothing else can be printed meanwhile. */
    void setPrinting(bool printing);

    /** Opens the window over its parent, or brings it to the front. Nothing without a document. */
    void show();

Q_SIGNALS:
    /** The window turned to another page, 0-based; the host should, too. */
    void pageWanted(int index);
    /** The user wants to change the printer's settings. */
    void preferencesWanted();
    /** Something to tell the user by the way. */
    void statusChanged(const QString& text);

private:
    void connectPanel();
    void connectOptions();
    void addShortcuts();
    void showPage(int page);
    void updateImage();
    void updateTitle();
    void updateButtons();
    void fillPrinters();
    void choosePrinter(const QString& name);
    void tidyCopies();
    bool canPrint() const;

    HostSettings& m_settings;
    const PrinterDirectory& m_printers;
    MultiPagePrintWidget* m_panel = nullptr;
    MultiPagePrintDialog* m_dialog = nullptr;
    std::shared_ptr<const PdfDocument> m_document;
    PdfPrintRequest m_options;
    int m_shownPage = 1;
    bool m_printing = false;
};

} // namespace SampleHost

#endif
