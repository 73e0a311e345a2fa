// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdfdocument.h"

#include "samplehost/pdf/sheetimage.h"
#include "samplehost/pdf/sheets/pdfsource.h"

#include <qpdf/QPDFExc.hh>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtPdf/QPdfDocument>

#include <algorithm>
#include <exception>

namespace SampleHost {

PdfDocument::PdfDocument() : m_view(std::make_unique<QPdfDocument>()) {}

PdfDocument::~PdfDocument() = default;

bool PdfDocument::open(const QString& path, QString& problem)
{
    close();
    if (check(path, problem) && readObjects(path, problem) && show(path, problem)) {
        m_path = path;
        m_title = m_view->metaData(QPdfDocument::MetaDataField::Title).toString().simplified();
        return true;
    }
    close();
    return false;
}

void PdfDocument::close()
{
    m_path.clear();
    m_title.clear();
    m_source.reset();
    m_hasFormFields = false;
    // A new one, since a document that failed to load keeps a part of its state when closed.
    m_view = std::make_unique<QPdfDocument>();
}

bool PdfDocument::check(const QString& path, QString& problem)
{
    const QString name = QDir::toNativeSeparators(path);
    const QFileInfo file(path);
    if (!file.exists()) {
        problem = tr("The file \"%1\" does not exist.").arg(name);
        return false;
    }
    if (!file.isFile() || !file.isReadable()) {
        problem = tr("The file \"%1\" cannot be read.").arg(name);
        return false;
    }
    if (file.size() == 0) {
        problem = tr("The file \"%1\" is empty. Open another file.").arg(name);
        return false;
    }
    return true;
}

bool PdfDocument::show(const QString& path, QString& problem)
{
    const QString name = QDir::toNativeSeparators(path);
    switch (m_view->load(path)) {
    case QPdfDocument::Error::None:
        return agrees(name, problem);
    case QPdfDocument::Error::IncorrectPassword:
        problem =
            tr("The file \"%1\" is protected by a password. Open a copy without one.").arg(name);
        return false;
    case QPdfDocument::Error::UnsupportedSecurityScheme:
        problem = tr("The file \"%1\" is encrypted in a way that is not supported. Open a copy "
                     "that is not encrypted.")
                      .arg(name);
        return false;
    default:
        problem = damageText(path);
        return false;
    }
}

// Before it is shown: Qt's renderer never returns from pages that contain each other.
bool PdfDocument::readObjects(const QString& path, QString& problem)
{
    try {
        m_source = std::make_shared<PdfSource>(path);
    } catch (const QPDFExc& error) {
        // Qt knows more about encryption.
        const bool locked =
            error.getErrorCode() == qpdf_e_password || error.getErrorCode() == qpdf_e_unsupported;
        if (locked && !show(path, problem)) {
            return false;
        }
        problem = damageText(path);
        return false;
    } catch (const std::exception&) {
        problem = damageText(path);
        return false;
    }
    try {
        m_hasFormFields = m_source->hasFormFields();
    } catch (const std::exception&) {
        m_hasFormFields = false;
    }
    return true;
}

bool PdfDocument::agrees(const QString& name, QString& problem) const
{
    if (pageCount() == 0) {
        problem = tr("The file \"%1\" has no pages. Open another file.").arg(name);
        return false;
    }
    // What is printed has to be what is shown.
    if (m_view->pageCount() != pageCount()) {
        problem = tr("The file \"%1\" is damaged. Open another file.").arg(name);
        return false;
    }
    return true;
}

QString PdfDocument::damageText(const QString& path)
{
    return tr("The file \"%1\" is not a PDF document, or it is damaged. Open another file.")
        .arg(QDir::toNativeSeparators(path));
}

QString PdfDocument::title() const
{
    if (!isOpen()) {
        return QString();
    }
    return m_title.isEmpty() ? QFileInfo(m_path).fileName() : m_title;
}

int PdfDocument::pageCount() const
{
    return m_source ? m_source->pageCount() : 0;
}

QSizeF PdfDocument::pageSize(int page) const
{
    const bool exists = page >= 0 && page < pageCount();
    return exists ? m_source->pageBox(page).shownSize() : QSizeF();
}

QSize PdfDocument::fittedSize(int page, const QSize& bounds) const
{
    const QSizeF size = pageSize(page);
    if (size.isEmpty() || bounds.isEmpty()) {
        return QSize();
    }
    return size.scaled(bounds, Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1));
}

QImage PdfDocument::render(int page, const QSize& size) const
{
    const bool usable = page >= 0 && page < pageCount() && !size.isEmpty() &&
                        std::max(size.width(), size.height()) <= longestSide;
    // Qt's renderer never returns from a file that became shorter.
    if (!usable || !m_source->isIntact()) {
        return QImage();
    }
    try {
        // By way of a sheet, since Qt's renderer leaves out the form fields.
        return SheetImage(*m_source, page, SheetOptions(), SheetContents::WholePage, size,
                          size.height())
            .band(0);
    } catch (const std::exception&) {
        return renderPage(*m_view, page, size);
    }
}

bool PdfDocument::allowsPrinting() const
{
    try {
        return m_source && m_source->allowsPrinting();
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace SampleHost
