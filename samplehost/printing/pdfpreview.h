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
class PreviewCanvas;
class PrinterDirectory;
class WindowScroller;

/**
 * The window "Preview and Print" of a document: fills its panel, shows the first of the selected
 * pages as it will be printed, and handles all signals of the panel but the request to print. The
 * keys Page Up, Page Down, Ctrl+Home and Ctrl+End turn the pages.
 */
class PdfPreview : public QObject
{
    Q_OBJECT

public:
    /** Creates the window, hidden, as a child of parent, not null. The arguments must outlive it.
     */
    PdfPreview(HostSettings& settings, const PrinterDirectory& printers, QWidget* parent);

    MultiPagePrintWidget& panel() const { return *m_panel; }
    MultiPagePrintDialog& dialog() const { return *m_dialog; }

    /** The choices in the panel, but for the pages. */
    PdfPrintRequest request() const;

    /** Why the document cannot be printed now, for the user; empty if it can. */
    QString problem() const;

    /** The page that is shown, 1-based; -1 if the list names no page. */
    int shownPage() const { return m_shownPage; }

    /** Shows the first page of another document and resets all choices. */
    void setDocument(std::shared_ptr<const PdfDocument> document);

    /** Sets the page that the host shows, 0-based. */
    void setPageIndex(int index);

    /** Sets whether a job is running, which disables printing. */
    void setPrinting(bool printing);

    /** Opens or raises the window. Does nothing without a document. */
    void show();

Q_SIGNALS:
    /** The window shows another page, 0-based, which the host should show, too. */
    void pageRequested(int index);
    /** The user wants to change the printer's settings. */
    void preferencesRequested();
    /** There is a text for the status bar. */
    void statusChanged(const QString& text);
    /** The document, or what is selected of it, cannot be printed; reason says why, for the user.
     */
    void problemFound(const QString& reason);
    /** What is selected can be printed. */
    void problemSolved();

private:
    void connectPanel();
    void connectOptions();
    void addShortcuts();
    void turnTo(int page);
    void showPage(int page);
    void updateImage();
    void updateTitle();
    void updateButtons();
    void fillPrinters();
    void choosePrinter(const QString& name);
    void normalizeCopies();
    bool canPrint() const;

    HostSettings& m_settings;
    const PrinterDirectory& m_printers;
    MultiPagePrintWidget* m_panel = nullptr;
    MultiPagePrintDialog* m_dialog = nullptr;
    PreviewCanvas* m_canvas = nullptr;
    WindowScroller* m_scroller = nullptr;
    std::shared_ptr<const PdfDocument> m_document;
    PdfPrintRequest m_options;
    int m_shownPage = 1;
    bool m_printing = false;
};

} // namespace SampleHost

#endif
