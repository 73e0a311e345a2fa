// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_OUTPUTFILE_H
#define SAMPLEHOST_OUTPUTFILE_H

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <memory>

class QIODevice;

namespace SampleHost {

class CheckedSaveFile;

/** What happens to a file that already has the name of a job's file. */
enum class ExistingFile {
    Replaced,
    Kept ///< The job fails, even if the file appears only while it runs.
};

/**
 * The file that a job writes. It has a temporary name in its folder until it is complete, so that
 * nobody ever finds half a document, and a failed job does not change an older file of that name.
 * Destroying it without commit() discards it.
 */
class OutputFile
{
    Q_DECLARE_TR_FUNCTIONS(OutputFile)

public:
    explicit OutputFile(const QString& path, ExistingFile existing = ExistingFile::Replaced);
    ~OutputFile();

    /** Opens the file. This object owns the device. Null with the reason in problem. */
    QIODevice* open(QString& problem);

    /** Whether everything so far was written; if not, the reason is in problem. */
    bool isHealthy(QString& problem);

    /** Gives the complete file its name. False with the reason in problem if that failed. */
    bool commit(QString& problem);

    /** Discards the file; does nothing if there is none. */
    void discard();

    /** The path that was given. */
    QString path() const { return m_path; }

    /** The absolute path with native separators. */
    QString description() const;

private:
    Q_DISABLE_COPY_MOVE(OutputFile)
    bool keepsExisting(QString& problem) const;
    QString failure() const;
    QString message(const QString& reason) const;

    QString m_path;
    ExistingFile m_existing;
    std::unique_ptr<CheckedSaveFile> m_file;
};

} // namespace SampleHost

#endif
