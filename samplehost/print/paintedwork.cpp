// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/paintedwork.h"

#include <QtGui/QPagedPaintDevice>

#include <utility>

namespace SampleHost {

PrintWork::~PrintWork() = default;

QString PrintWork::file() const
{
    return QString();
}

PageSource::~PageSource() = default;

QString PageSource::problemText() const
{
    return QString();
}

void PageSource::prepareDevice(QPagedPaintDevice& device, qint64 page)
{
    Q_UNUSED(device)
    Q_UNUSED(page)
}

PaintedWork::PaintedWork(std::unique_ptr<PageSource> pages, std::unique_ptr<PrintTarget> target)
    : m_pages(std::move(pages)), m_target(std::move(target))
{
}

PaintedWork::~PaintedWork()
{
    PaintedWork::cancel();
}

qint64 PaintedWork::pageCount() const
{
    return m_pages ? m_pages->pageCount() : 0;
}

QString PaintedWork::targetDescription() const
{
    return m_target ? m_target->description() : QString();
}

QString PaintedWork::file() const
{
    return m_target ? m_target->file() : QString();
}

bool PaintedWork::open(QString& problem)
{
    if (pageCount() == 0 || !m_target) {
        const QString reason = m_pages ? m_pages->problemText() : QString();
        problem = reason.isEmpty() ? tr("There is nothing to print.") : reason;
        return false;
    }
    m_device = m_target->open(m_pages->sheetSizeMm(), problem);
    if (m_device == nullptr) {
        return false;
    }
    m_pages->prepareDevice(*m_device, 0);
    if (!m_painter.begin(m_device)) {
        problem = tr("Printing to %1 cannot be started.").arg(m_target->description());
        return false;
    }
    return true;
}

bool PaintedWork::printPage(qint64 page, QString& problem)
{
    if (page > 0) {
        m_pages->prepareDevice(*m_device, page);
        if (!m_device->newPage()) {
            problem = tr("Page %1 cannot be started.").arg(page + 1);
            return false;
        }
    }
    return m_pages->paint(m_painter, *m_device, page, problem) && m_target->isHealthy(problem);
}

PrintWork::Completion PaintedWork::complete(QString& problem)
{
    m_painter.end();
    m_device = nullptr;
    return m_target->commit(problem) ? Completion::Completed : Completion::Failed;
}

bool PaintedWork::cancel()
{
    if (!m_target) {
        return true;
    }
    const bool nothingComesOut = m_target->abort();
    // The painter must let go of the device before the target destroys it.
    if (m_painter.isActive()) {
        m_painter.end();
    }
    m_device = nullptr;
    m_target->discard();
    return nothingComesOut;
}

} // namespace SampleHost
