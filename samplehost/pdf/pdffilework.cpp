// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdffilework.h"

#include <exception>

namespace SampleHost {

PdfFileWork::PdfFileWork(const PdfSheets& sheets, const QString& path, const QString& title)
    : m_sheets(sheets), m_file(path), m_title(title)
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
    QIODevice* device = m_file.open(problem);
    if (device == nullptr) {
        return false;
    }
    m_writer = std::make_unique<PdfSheetWriter>(m_sheets.source(), *device, m_sheets.options(),
                                                m_sheets.contents());
    return true;
}

bool PdfFileWork::putPage(qint64 page, QString& problem)
{
    try {
        m_writer->addSheet(m_sheets.page(page));
    } catch (const std::exception&) {
        problem = m_sheets.damageText(page);
        return false;
    }
    return m_file.isHealthy(problem);
}

bool PdfFileWork::complete(QString& problem)
{
    try {
        m_writer->finish(m_title);
    } catch (const std::exception&) {
        problem = m_sheets.damageText(m_sheets.count() - 1);
        return false;
    }
    m_writer.reset();
    return m_file.commit(problem);
}

bool PdfFileWork::giveUp()
{
    m_writer.reset();
    m_file.discard();
    return true;
}

} // namespace SampleHost
