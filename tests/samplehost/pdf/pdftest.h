// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PDFTEST_H
#define PDFTEST_H

#include "samplehost/pdf/pdfdocument.h"
#include "samplehost/pdf/pdfprinting.h"
#include "samplehost/support/pdfoutput.h"
#include "samplehost/support/pdfsamples.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <memory>

/** Base class of the tests that open a document and print it to a folder of its own. */
class PdfTest : public StrictTest
{
protected:
    void init() override
    {
        StrictTest::init();
        m_document.close();
        m_problem.clear();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("out")));
        m_input = m_folder->filePath(QStringLiteral("input.pdf"));
        m_output = m_folder->filePath(QStringLiteral("out/output.pdf"));
    }

    bool open(const QByteArray& bytes)
    {
        return PdfSamples::write(m_input, bytes) && m_document.open(m_input, m_problem);
    }

    bool openNumbered(int pages)
    {
        return PdfSamples::writeNumbered(m_input, pages) && m_document.open(m_input, m_problem);
    }

    QStringList filesLeft() const
    {
        return QFileInfo(m_output).dir().entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<SampleHost::PrintJob> job(const SampleHost::PdfPrintRequest& request)
    {
        return makePdfFileJob(m_document, request, m_output);
    }

    bool print(const SampleHost::PdfPrintRequest& request)
    {
        return PdfOutput::completes(*job(request));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_input;
    QString m_output;
    SampleHost::PdfDocument m_document;
    QString m_problem;
};

#endif
