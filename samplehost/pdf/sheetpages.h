// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SHEETPAGES_H
#define SAMPLEHOST_SHEETPAGES_H

#include "samplehost/pdf/pdfsheets.h"
#include "samplehost/print/paintedwork.h"

namespace SampleHost {

/** Sheets painted as pictures, for a printer. */
class SheetPages : public PageSource
{
    Q_DECLARE_TR_FUNCTIONS(SheetPages)

public:
    /** The finest resolution, in dots per inch, that pictures are made with. */
    static constexpr int finestResolution = 600;

    explicit SheetPages(const PdfSheets& sheets);

    qint64 pageCount() const override;
    QString problemText() const override { return m_sheets.problemText(); }
    QSizeF sheetSizeMm() const override;
    void prepareDevice(QPagedPaintDevice& device, qint64 page) override;
    bool paint(QPainter& painter, QPagedPaintDevice& device, qint64 page,
               QString& problem) override;

private:
    bool paintSheet(QPainter& painter, const QPagedPaintDevice& device, int page) const;

    PdfSheets m_sheets;
};

} // namespace SampleHost

#endif
