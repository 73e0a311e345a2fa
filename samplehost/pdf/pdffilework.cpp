// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdffilework.h"

#include <exception>

namespace SampleHost {

PdfFileWork::PdfFileWork(const PdfSheets& sheets, const QString& path, const QString& title,
                         ExistingFile existing)
    : m_sheets(sheets), m_file(path, existing), m_title(title)
{
}

PdfFileWork::~PdfFileWork() = default;

qint64 PdfFileWork::pageCount() const
{
    return m_sheets.count();
}

QString PdfFileWork::targetDescription() const
{
    return m_file.description();
}

bool PdfFileWork::open(QString& problem)
{
    if (m_sheets.count() == 0) {
        problem = m_sheets.problemText();
        return false;
    }
    m_device = m_file.open(problem);
    if (m_device == nullptr) {
        return false;
    }
    m_writer = std::make_unique<PdfSheetWriter>(m_sheets.source(), m_sheets.options(),
                                                m_sheets.contents());
    return true;
}

bool PdfFileWork::printPage(qint64 page, QString& problem)
{
    try {
        m_writer->addSheet(m_sheets.page(page));
    } catch (const std::exception&) {
        problem = m_sheets.damageText(page);
        return false;
    }
    return true;
}

void PdfFileWork::write(SlicedCall& call)
{
    m_writer->write(*m_device, m_title, [&call] { call.pauseIfDue(); });
}

PrintWork::Completion PdfFileWork::complete(QString& problem)
{
    if (!m_writing) {
        m_writing = std::make_unique<SlicedCall>([this](SlicedCall& call) { write(call); });
    }
    try {
        if (!m_writing->runSlice()) {
            return Completion::Pending;
        }
    } catch (const std::exception&) {
        if (m_file.isHealthy(problem)) {
            problem = m_sheets.damageText(m_sheets.count() - 1);
        }
        return Completion::Failed;
    }
    return m_file.commit(problem) ? Completion::Completed : Completion::Failed;
}

bool PdfFileWork::cancel()
{
    m_writing.reset();
    m_writer.reset();
    m_file.discard();
    return true;
}

} // namespace SampleHost
