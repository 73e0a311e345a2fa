// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PLAINPDF_H
#define PLAINPDF_H

#include "samplehost/support/plainpdftext.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSizeF>
#include <QtCore/QStringList>

/**
 * A PDF file that QPdfWriter wrote, read without Qt PDF: the objects are where its table says, all
 * pages are in one list, and each font says which characters its glyphs stand for. A file that is
 * not like this has no pages.
 */
class PlainPdf
{
public:
    explicit PlainPdf(const QString& path);

    /** The text of every page, as words with single blanks. */
    QStringList texts() const;

    /** The size of a page in points; empty if there is no such page. */
    QSizeF pageSize(qsizetype page0) const;

private:
    bool readTable(const QByteArray& file);
    bool readPages();
    int reference(int object, const char* key) const;
    QByteArray dictionary(int object) const;
    QByteArray stream(int object) const;
    PlainPdfText::Characters characters(int font) const;
    PlainPdfText::Fonts fonts(int page) const;

    QHash<int, QByteArray> m_objects;
    int m_root = 0;
    QList<int> m_pages;
};

#endif
