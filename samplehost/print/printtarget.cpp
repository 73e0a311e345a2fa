#include "samplehost/print/printtarget.h"

#include "samplehost/print/checkedsavefile.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
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

PdfTarget::PdfTarget(const QString& path, const QString& title) : m_path(path), m_title(title) {}

PdfTarget::~PdfTarget()
{
    discard();
}

QPagedPaintDevice* PdfTarget::open(const QSizeF& sheetMm, QString& problem)
{
    const QFileInfo folder(QFileInfo(m_path).absolutePath());
    if (!folder.isDir()) {
        problem = tr("The folder \"%1\" does not exist.")
                      .arg(QDir::toNativeSeparators(folder.filePath()));
        return nullptr;
    }
    m_file = std::make_unique<CheckedSaveFile>(m_path);
    if (!m_file->open(QIODevice::WriteOnly)) {
        problem = failure();
        m_file.reset();
        return nullptr;
    }
    m_writer = std::make_unique<QPdfWriter>(m_file.get());
    m_writer->setTitle(m_title);
    m_writer->setCreator(QCoreApplication::applicationName());
    m_writer->setResolution(resolution);
    useSheet(*m_writer, sheetMm);
    return m_writer.get();
}

QString PdfTarget::failure() const
{
    const QString reason = m_file ? m_file->failure() : tr("the file is not open");
    return tr("The file \"%1\" cannot be written: %2.")
        .arg(QDir::toNativeSeparators(m_path), reason);
}

bool PdfTarget::isHealthy(QString& problem)
{
    // Flushing shows a full disk at the page that met it instead of at the end of a long job.
    if (m_file && m_file->flushChecked()) {
        return true;
    }
    problem = failure();
    return false;
}

bool PdfTarget::commit(QString& problem)
{
    m_writer.reset();
    if (m_file && m_file->commitChecked()) {
        m_file.reset();
        return true;
    }
    problem = failure();
    m_file.reset();
    return false;
}

bool PdfTarget::abort()
{
    return true;
}

void PdfTarget::discard()
{
    m_writer.reset();
    if (m_file) {
        m_file->cancelWriting();
        m_file.reset();
    }
}

QString PdfTarget::description() const
{
    return QDir::toNativeSeparators(QFileInfo(m_path).absoluteFilePath());
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
