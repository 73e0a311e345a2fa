// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFDOCUMENT_H
#define SAMPLEHOST_PDFDOCUMENT_H

#include <QtCore/QCoreApplication>
#include <QtCore/QSize>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QImage>

#include <memory>

class QPdfDocument;

namespace SampleHost {

class PdfSource;

/**
 * A PDF file that is shown and printed. Pages are 0-based here.
 *
 * A print job keeps what it needs of the document, which may be closed, opened again or destroyed
 * while the job runs.
 */
class PdfDocument
{
    Q_DECLARE_TR_FUNCTIONS(PdfDocument)

public:
    /** The longest side, in pixels, that render() makes. */
    static constexpr int longestSide = 16384;

    PdfDocument();
    ~PdfDocument();

    /**
     * Opens a file in place of the one before. On failure no document is open and problem says why
     * in words for the user: there is no such file, it is empty, no PDF document or damaged,
     * protected by a password, or without pages.
     */
    bool open(const QString& path, QString& problem);

    /** Closes the document; without one does nothing. */
    void close();

    bool isOpen() const { return m_source != nullptr; }

    /** The path that was opened; empty without a document. */
    QString path() const { return m_path; }

    /** The title that the document gives itself, else its file name; empty without a document. */
    QString title() const;

    /** The number of pages; 0 without a document. */
    int pageCount() const;

    /** The size of a page as it is shown, in points (1/72 inch). Empty for no such page. */
    QSizeF pageSize(int page) const;

    /**
     * The size in pixels of a page that is shown as large as fits into bounds. Empty for no such
     * page.
     */
    QSize fittedSize(int page, const QSize& bounds) const;

    /**
     * A page with its annotations and filled form fields on white, stretched to size in pixels, as
     * it is printed. A null image for no such page, for a size that is empty or has a side above
     * longestSide, and once the file was changed by another program.
     */
    QImage render(int page, const QSize& size) const;

    /** Whether there is a form field that something can be filled into. */
    bool hasFormFields() const { return m_hasFormFields; }

    /** Whether the document's author lets it be printed; false without a document. */
    bool allowsPrinting() const;

    /** The document's objects, for printing; null without a document. */
    std::shared_ptr<PdfSource> source() const { return m_source; }

private:
    Q_DISABLE_COPY_MOVE(PdfDocument)
    static bool check(const QString& path, QString& problem);
    static QString damageText(const QString& path);
    bool agrees(const QString& name, QString& problem) const;
    bool show(const QString& path, QString& problem);
    bool readObjects(const QString& path, QString& problem);

    QString m_path;
    QString m_title;
    std::unique_ptr<QPdfDocument> m_view;
    std::shared_ptr<PdfSource> m_source;
    bool m_hasFormFields = false;
};

} // namespace SampleHost

#endif
