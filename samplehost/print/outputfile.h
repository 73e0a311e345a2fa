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

/**
 * The file that a job writes. It stands under a temporary name in the folder of the file and takes
 * its name only when it is complete, so nobody ever finds half a document, and a failed job leaves
 * an older file of that name as it was. Destroying it without commit() discards it.
 */
class OutputFile
{
    Q_DECLARE_TR_FUNCTIONS(OutputFile)

public:
    explicit OutputFile(const QString& path);
    ~OutputFile();

    /** Opens the file and returns its device, which this object owns. Null with the reason in
     * problem. */
    QIODevice* open(QString& problem);

    /** Whether everything written so far arrived; if not, the reason is in problem. */
    bool isHealthy(QString& problem);

    /** Gives the complete file its name. False with the reason in problem if that failed. */
    bool commit(QString& problem);

    /** Discards the file; does nothing when called again. */
    void discard();

    /** The absolute path as the user's system writes it. */
    QString description() const;

private:
    Q_DISABLE_COPY_MOVE(OutputFile)
    QString failure() const;
    QString explained(const QString& reason) const;

    QString m_path;
    std::unique_ptr<CheckedSaveFile> m_file;
};

} // namespace SampleHost

#endif
