// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/hostsettings.h"

#include "samplehost/print/filename.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtGui/QPageSize>

namespace SampleHost {

namespace {

// Invalid for Paper::LabelSize.
QPageSize pageSizeOf(Paper paper)
{
    switch (paper) {
    case Paper::A4:
        return QPageSize(QPageSize::A4);
    case Paper::Letter:
        return QPageSize(QPageSize::Letter);
    case Paper::LabelSize:
        break;
    }
    return QPageSize();
}

const QString folderKey = QStringLiteral("output/folder");
const QString fileKey = QStringLiteral("output/file");
const QString paperKey = QStringLiteral("output/paper");
const QString nupKey = QStringLiteral("output/nup");
const QString printerKey = QStringLiteral("output/printer");
const QString documentKey = QStringLiteral("documents/recent");
const QString metricKey = QStringLiteral("view/metric");
const QString languageKey = QStringLiteral("view/language");

bool isSameFile(const QString& path, const QString& other)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return !file.isEmpty() && file == QFileInfo(other).canonicalFilePath();
}

} // namespace

QString paperName(Paper paper)
{
    const QPageSize size = pageSizeOf(paper);
    return size.isValid() ? size.key() : HostSettings::tr("As large as the labels");
}

QSizeF paperSizeMm(Paper paper)
{
    return pageSizeOf(paper).size(QPageSize::Millimeter);
}

HostSettings::HostSettings(QObject* parent)
    : QObject(parent), m_outputFileName(QStringLiteral("labels.pdf"))
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    m_outputFolder = QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

QString HostSettings::outputPath() const
{
    return QDir(m_outputFolder).filePath(m_outputFileName);
}

bool HostSettings::isFileName(const QString& name)
{
    // The system ends the name at a null character.
    return !name.isEmpty() && !name.contains(QChar::Null) && QFileInfo(name).fileName() == name &&
           isAllowedFileName(name);
}

void HostSettings::setOutputFolder(const QString& folder)
{
    if (!folder.isEmpty()) {
        set(m_outputFolder, QDir::cleanPath(QDir(folder).absolutePath()));
    }
}

void HostSettings::setOutputFileName(const QString& fileName)
{
    if (isFileName(fileName)) {
        set(m_outputFileName, fileName);
    }
}

void HostSettings::setOutputPath(const QString& path)
{
    if (!path.isEmpty()) {
        const QFileInfo file(path);
        setOutputFolder(file.absolutePath());
        setOutputFileName(file.fileName());
    }
}

void HostSettings::setPrinter(const QString& printer)
{
    if (printer != m_printer) {
        m_printer = printer;
        Q_EMIT printerChanged(m_printer);
    }
}

void HostSettings::setRecentDocument(const QString& path)
{
    m_recentDocument = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
}

QString HostSettings::overwriteProblem(const QString& path) const
{
    const QString name = QDir::toNativeSeparators(path);
    if (isSameFile(path, m_dataFile)) {
        return tr("Writing \"%1\" would replace the database of the labels. Choose another file.")
            .arg(name);
    }
    if (isSameFile(path, m_openDocument)) {
        return tr("Printing to \"%1\" would replace the document itself. Choose another PDF "
                  "file in the preferences.")
            .arg(name);
    }
    return QString();
}

QString HostSettings::refusal(const QString& path)
{
    return tr("The file \"%1\" exists already. Choose another file, or add --overwrite to replace "
              "it.")
        .arg(QDir::toNativeSeparators(path));
}

void HostSettings::load()
{
    const QSettings stored;
    setOutputFolder(stored.value(folderKey).toString());
    setOutputFileName(stored.value(fileKey).toString());
    setRecentDocument(stored.value(documentKey, m_recentDocument).toString());
    m_rememberedPrinter = stored.value(printerKey).toString();
    const int paper = stored.value(paperKey, int(m_paper)).toInt();
    if (paper >= int(Paper::LabelSize) && paper <= int(Paper::Letter)) {
        setPaper(Paper(paper));
    }
    if (const auto nup = NupLayout::fromText(stored.value(nupKey).toString())) {
        setNup(*nup);
    }
    setMetric(stored.value(metricKey, m_metric).toBool());
    setLanguage(stored.value(languageKey).toString());
}

bool HostSettings::save() const
{
    QSettings stored;
    stored.setValue(folderKey, m_outputFolder);
    stored.setValue(fileKey, m_outputFileName);
    stored.setValue(paperKey, int(m_paper));
    stored.setValue(printerKey, m_printer);
    stored.setValue(documentKey, m_recentDocument);
    stored.setValue(nupKey, m_nup.text());
    stored.setValue(metricKey, m_metric);
    stored.setValue(languageKey, m_language);
    stored.sync();
    return stored.status() == QSettings::NoError;
}

} // namespace SampleHost
