// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFFILEWORK_H
#define SAMPLEHOST_PDFFILEWORK_H

#include "samplehost/pdf/pdfsheets.h"
#include "samplehost/pdf/slicedcall.h"
#include "samplehost/print/outputfile.h"
#include "samplehost/print/printwork.h"

#include <memory>

namespace SampleHost {

/** Writes sheets to a PDF file, with the text of their pages. */
class PdfFileWork : public PrintWork
{
public:
    /** Prints to path; title becomes the title of the file. */
    PdfFileWork(const PdfSheets& sheets, const QString& path, const QString& title,
                ExistingFile existing);
    ~PdfFileWork() override;

    qint64 pageCount() const override;
    QString targetDescription() const override;
    QString file() const override { return m_file.path(); }
    bool open(QString& problem) override;
    bool printPage(qint64 page, QString& problem) override;
    Completion complete(QString& problem) override;
    bool cancel() override;

private:
    void write(SlicedCall& call);

    PdfSheets m_sheets;
    OutputFile m_file;
    QString m_title;
    QIODevice* m_device = nullptr;
    std::unique_ptr<PdfSheetWriter> m_writer;
    // Uses all of the above.
    std::unique_ptr<SlicedCall> m_writing;
};

} // namespace SampleHost

#endif
