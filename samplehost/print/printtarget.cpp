#include "samplehost/print/printtarget.h"

#include <QtGui/QPageLayout>
#include <QtGui/QPageSize>
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

} // namespace

PrintTarget::~PrintTarget() = default;

PdfTarget::PdfTarget(const QString& path, const QString& title) : m_file(path), m_title(title) {}

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
        problem = tr("The printer \"%1\" is not known to the system any more.").arg(m_printerName);
        return nullptr;
    }
    m_printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    if (!m_printer->isValid()) {
        problem = tr("The printer \"%1\" does not accept jobs.").arg(m_printerName);
        m_printer.reset();
        return nullptr;
    }
    m_printer->setDocName(m_title);
    m_printer->setResolution(resolution);
    m_printer->setFullPage(true);
    useSheet(*m_printer, sheetMm);
    return m_printer.get();
}

bool PrinterTarget::isHealthy(QString& problem)
{
    const bool broken = !m_printer || m_printer->printerState() == QPrinter::Error ||
                        m_printer->printerState() == QPrinter::Aborted;
    if (broken) {
        problem = tr("The printer \"%1\" stopped the job.").arg(m_printerName);
    }
    return !broken;
}

bool PrinterTarget::commit(QString& problem)
{
    const bool healthy = isHealthy(problem);
    m_printer.reset();
    return healthy;
}

bool PrinterTarget::abort()
{
    return !m_printer || m_printer->abort();
}

void PrinterTarget::discard()
{
    m_printer.reset();
}

QString PrinterTarget::description() const
{
    return tr("printer \"%1\"").arg(m_printerName);
}

} // namespace SampleHost
