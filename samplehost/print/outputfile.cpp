// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/outputfile.h"

#include "samplehost/print/checkedsavefile.h"
#include "samplehost/print/filename.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace SampleHost {

OutputFile::OutputFile(const QString& path, ExistingFile existing)
    : m_path(path), m_existing(existing)
{
}

OutputFile::~OutputFile()
{
    discard();
}

QIODevice* OutputFile::open(QString& problem)
{
    const QFileInfo folder(QFileInfo(m_path).absolutePath());
    if (!folder.isDir()) {
        problem = tr("The folder \"%1\" does not exist. Choose another folder.")
                      .arg(QDir::toNativeSeparators(folder.filePath()));
        return nullptr;
    }
    if (!isAllowedFileName(QFileInfo(m_path).fileName())) {
        problem = message(tr("the system reserves this name"));
        return nullptr;
    }
    // The complete file replaces what has its name, which must not be a device or a pipe.
    const QFileInfo existing(m_path);
    if (existing.exists() && !existing.isFile()) {
        problem =
            message(existing.isDir() ? tr("it is a folder") : tr("it is not an ordinary file"));
        return nullptr;
    }
    if (keepsExisting(problem)) {
        return nullptr;
    }
    m_file = std::make_unique<CheckedSaveFile>(m_path);
    if (!m_file->open(QIODevice::WriteOnly)) {
        problem = failure();
        m_file.reset();
        return nullptr;
    }
    return m_file.get();
}

bool OutputFile::isHealthy(QString& problem)
{
    // Flushing detects a full disk after the page that filled it, not at the end of a long job.
    if (m_file && m_file->flushChecked()) {
        return true;
    }
    problem = failure();
    return false;
}

bool OutputFile::keepsExisting(QString& problem) const
{
    if (m_existing == ExistingFile::Replaced || !QFileInfo::exists(m_path)) {
        return false;
    }
    problem = tr("The file \"%1\" exists by now and is kept. Choose another file.")
                  .arg(QDir::toNativeSeparators(m_path));
    return true;
}

bool OutputFile::commit(QString& problem)
{
    // Another program may have made a file meanwhile.
    if (m_file && keepsExisting(problem)) {
        discard();
        return false;
    }
    const bool committed = m_file && m_file->commitChecked();
    if (!committed) {
        problem = failure();
    }
    m_file.reset();
    return committed;
}

void OutputFile::discard()
{
    if (m_file) {
        m_file->cancelWriting();
        m_file.reset();
    }
}

QString OutputFile::description() const
{
    return QDir::toNativeSeparators(QFileInfo(m_path).absoluteFilePath());
}

QString OutputFile::failure() const
{
    return message(m_file ? m_file->failure() : tr("the file is not open"));
}

QString OutputFile::message(const QString& reason) const
{
    return tr("The file \"%1\" cannot be written: %2.")
        .arg(QDir::toNativeSeparators(m_path), reason);
}

} // namespace SampleHost
