// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFPAGE_H
#define SAMPLEHOST_PDFPAGE_H

#include "samplehost/pages/hostpage.h"
#include "samplehost/pdf/pdfdocument.h"
#include "samplehost/printing/pdfprintcontroller.h"

#include <QtGui/QImage>

#include <memory>

class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QStackedWidget;

namespace SampleHost {

class HostSettings;
class LabelView;
class PdfPreview;
class PrinterDirectory;
class RecordNavigator;

/** The page of documents: shows a PDF file page by page, and opens the window that prints it. */
class PdfPage : public HostPage
{
    Q_OBJECT

public:
    /** A page without a document. The arguments must outlive it. */
    PdfPage(HostSettings& settings, const PrinterDirectory& printers, QWidget* parent = nullptr);

    /**
     * Opens a PDF file at its first page. If that fails, emits openFailed(), keeps the current
     * document and returns false.
     */
    bool open(const QString& path);

    /** Why the last file could not be opened; empty if it is open. */
    QString problem() const { return m_problem; }

    /** Adds the actions that open a document or the most recent one to a menu. */
    void addActions(QMenu& menu);

    /** The open document, or null. */
    const PdfDocument* document() const { return m_document.get(); }

    /** Chooses the current page. */
    RecordNavigator& navigator() const { return *m_navigator; }

    /** The window "Preview and Print" of this page. */
    PdfPreview& preview() const { return *m_preview; }

    PdfPrintController& controller() const override { return *m_controller; }

    /** Print and Print Preview open that window, where the user chooses what is printed. */
    PageControls controls() const override;

public Q_SLOTS:
    /** Lets the user choose the file to open. */
    void chooseFile();

    /** Opens the window "Preview and Print", if there is a document. */
    void showPrintWindow();

Q_SIGNALS:
    /** A file was opened. */
    void opened(const QString& path);
    /** A file could not be opened; reason says why, for the user. */
    void openFailed(const QString& reason);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QWidget* createBar();
    void createContents();
    void showRecentDocument(QAction& action);
    void setDocument(std::shared_ptr<PdfDocument> document);
    void showPage(int index);
    void paintPage(QPainter& painter, const QRectF& paper);

    HostSettings& m_settings;
    std::shared_ptr<PdfDocument> m_document;
    QString m_problem;
    QPushButton* m_printButton = nullptr;
    QLabel* m_nameLabel = nullptr;
    QStackedWidget* m_stack = nullptr;
    LabelView* m_view = nullptr;
    RecordNavigator* m_navigator = nullptr;
    PdfPreview* m_preview = nullptr;
    PdfPrintController* m_controller = nullptr;
    QImage m_image;
    int m_imageIndex = -1;
};

} // namespace SampleHost

#endif
