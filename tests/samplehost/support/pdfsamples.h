// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PDFSAMPLES_H
#define PDFSAMPLES_H

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QSizeF>
#include <QtCore/QString>

/** PDF documents that tests make for themselves. */
namespace PdfSamples {

/** A PDF file put together from the text of its objects, numbered from 1; the first is the
 * catalogue. */
class Bytes
{
public:
    /** Adds an object and returns its number. */
    int add(const QByteArray& text);
    /** Adds a stream with more entries for its dictionary. */
    int addStream(const QByteArray& content, const QByteArray& entries = QByteArray());
    /** The file with its cross-reference table. */
    QByteArray file() const;

private:
    QList<QByteArray> m_objects;
};

/** A page of pages(): its size in points and its drawing operators; /F1 is Helvetica. */
struct Page
{
    QSizeF size = QSizeF(595, 842);
    QByteArray content;
    /** More entries for the page's dictionary, such as "/Rotate 90". */
    QByteArray entries;
};

/** Drawing operators that show text with its first letter's foot at x, y points. */
QByteArray words(const char* text, int x, int y, int fontSize = 24);

/** A document of such pages. */
QByteArray pages(const QList<Page>& pages);

/**
 * A form: page 1 carries printed text, a line, and fields of every kind, some filled; page 2 only
 * printed text; page 3 lies on its side by /Rotate 90 and has one filled field. Everything that is
 * filled in has the word "filled" in it; the one field without an appearance is named so.
 */
QByteArray form();

/** The same form with its fields' appearances, and which of them its boxes show, left to the
 * reader.
 */
QByteArray formWithoutAppearances();

/** The size of a page of numbered(), which differs from page to page. */
QSizeF numberedSize(int page0);

/** Writes a document whose pages say "Page 1", "Page 2" and so on. False if that fails. */
bool writeNumbered(const QString& path, int pages);

/** Writes bytes to a new file. False if that fails. */
bool write(const QString& path, const QByteArray& bytes);

/** An encrypted copy of a document; an empty password still needs none to read it. */
QByteArray encrypted(const QByteArray& document, const QByteArray& userPassword, bool mayPrint);

} // namespace PdfSamples

#endif
