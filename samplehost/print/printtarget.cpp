// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/printtarget.h"

#include "samplehost/print/printqueue.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QtMath>
#include <QtGui/QPageLayout>
#include <QtGui/QPdfWriter>
#include <QtPrintSupport/QPrinter>
#include <QtPrintSupport/QPrinterInfo>

namespace SampleHost {

namespace {

void useSheet(QPagedPaintDevice& device, const QSizeF& sheetMm)
{
    const QPageSize size(sheetMm, QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
    device.setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF()));
}

/**
 * The name of a paper for a queue that knows these. An unknown name would be replaced by the
 * nearest known one, so any other paper is described by its size in points. The queue converts that
 * to hundredths of a millimetre and back, and then truncates it to whole points; without the excess
 * a page would lose its edge.
 */
QString paperName(const QPageSize& paper, const QList<QPageSize>& known)
{
    const QSizeF points = paper.size(QPageSize::Point);
    for (const QPageSize& other : known) {
        if (other.key() == paper.key() && other.size(QPageSize::Point) == points) {
            return other.key();
        }
    }
    const auto side = [](qreal length) { return qCeil(length - 0.01) + 0.1; };
    return QStringLiteral("Custom.%1x%2").arg(side(points.width())).arg(side(points.height()));
}

/** The smallest paper that a page also fits on; a queue turns pages if necessary. */
QSizeF extendedPaper(const QSizeF& paper, const QSizeF& page)
{
    const QSizeF upright = paper.expandedTo(page);
    const QSizeF turned = paper.expandedTo(page.transposed());
    const auto area = [](const QSizeF& size) { return size.width() * size.height(); };
    return area(turned) < area(upright) ? turned : upright;
}

/** Whether a PDF file has its end, which is missing if the disk was full. */
bool isComplete(const QString& path)
{
    constexpr qint64 tail = 32;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.seek(qMax<qint64>(0, file.size() - tail)) &&
           file.read(tail).trimmed().endsWith("%%EOF");
}

} // namespace

PrintTarget::~PrintTarget() = default;

QString PrintTarget::file() const
{
    return QString();
}

PdfTarget::PdfTarget(const QString& path, const QString& title, ExistingFile existing)
    : m_file(path, existing), m_title(title)
{
}

PdfTarget::~PdfTarget()
{
    discard();
}

QPagedPaintDevice* PdfTarget::open(const QSizeF& sheetMm, QString& problem)
{
    QIODevice* device = m_file.open(problem);
    if (device == nullptr) {
        return nullptr;
    }
    m_writer = std::make_unique<QPdfWriter>(device);
    m_writer->setTitle(m_title);
    m_writer->setCreator(QCoreApplication::applicationName());
    m_writer->setResolution(resolution);
    useSheet(*m_writer, sheetMm);
    return m_writer.get();
}

bool PdfTarget::isHealthy(QString& problem)
{
    return m_file.isHealthy(problem);
}

bool PdfTarget::commit(QString& problem)
{
    m_writer.reset();
    return m_file.commit(problem);
}

bool PdfTarget::abort()
{
    return true;
}

void PdfTarget::discard()
{
    m_writer.reset();
    m_file.discard();
}

QString PdfTarget::description() const
{
    return m_file.description();
}

PrinterTarget::PrinterTarget(const QString& printerName, const QString& title)
    : m_printerName(printerName), m_title(title)
{
}

PrinterTarget::~PrinterTarget()
{
    discard();
}

QPagedPaintDevice* PrinterTarget::open(const QSizeF& sheetMm, QString& problem)
{
    const QPrinterInfo info = QPrinterInfo::printerInfo(m_printerName);
    if (info.isNull()) {
        problem = tr("The printer \"%1\" is not known to the system. Choose another printer.")
                      .arg(m_printerName);
        return nullptr;
    }
    m_printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    const bool hasQueue = PrintQueue::isSupported();
    if (!m_printer->isValid() || (hasQueue && PrintQueue(m_printerName).refusesJobs())) {
        problem = tr("The printer \"%1\" does not accept jobs. Choose another printer.")
                      .arg(m_printerName);
        m_printer.reset();
        return nullptr;
    }
    if (hasQueue && !openSpool(problem)) {
        m_printer.reset();
        return nullptr;
    }
    m_knownPapers = info.supportedPageSizes();
    m_printer->setDocName(m_title);
    m_printer->setResolution(resolution);
    m_printer->setFullPage(true);
    useSheet(*m_printer, sheetMm);
    return m_printer.get();
}

QString PrinterTarget::spoolPath() const
{
    // If the name ended in .pdf, Qt would not use the printer's margins.
    return m_spool->filePath(QStringLiteral("job"));
}

bool PrinterTarget::openSpool(QString& problem)
{
    m_spool = std::make_unique<QTemporaryDir>();
    if (!m_spool->isValid()) {
        problem = tr("The job cannot be stored: %1.").arg(m_spool->errorString());
        m_spool.reset();
        return false;
    }
    m_printer->setOutputFileName(spoolPath());
    return true;
}

bool PrinterTarget::isHealthy(QString& problem)
{
    const bool broken = !m_printer || m_printer->printerState() == QPrinter::Error ||
                        m_printer->printerState() == QPrinter::Aborted;
    if (broken) {
        problem =
            tr("The printer \"%1\" stopped the job. Check it and print again.").arg(m_printerName);
    } else {
        fitPaperToPage();
    }
    return !broken;
}

// isHealthy() is called after every page, when the printer still has the size of that page.
void PrinterTarget::fitPaperToPage()
{
    const QPageSize page = m_printer->pageLayout().pageSize();
    const QSizeF size = page.size(QPageSize::Point);
    const QSizeF before = m_paper.isValid() ? m_paper.size(QPageSize::Point) : size;
    const QSizeF extended = extendedPaper(before, size);
    if (extended == size) {
        m_paper = page;
    } else if (extended != before) {
        m_paper = QPageSize(extended, QPageSize::Point, QString(), QPageSize::ExactMatch);
    }
}

bool PrinterTarget::commit(QString& problem)
{
    const bool healthy = isHealthy(problem);
    m_printer.reset();
    const bool committed = healthy && (!m_spool || submit(problem));
    m_spool.reset();
    return committed;
}

bool PrinterTarget::submit(QString& problem)
{
    if (!isComplete(spoolPath())) {
        problem =
            tr("The job cannot be stored: there is no room in %1. Make room there and print again.")
                .arg(m_spool->path());
        return false;
    }
    return PrintQueue(m_printerName)
        .submit(spoolPath(), m_title, paperName(m_paper, m_knownPapers), problem);
}

bool PrinterTarget::abort()
{
    return m_spool || !m_printer || m_printer->abort();
}

void PrinterTarget::discard()
{
    m_printer.reset();
    m_spool.reset();
}

QString PrinterTarget::description() const
{
    return tr("printer \"%1\"").arg(m_printerName);
}

} // namespace SampleHost
