// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTWORK_H
#define SAMPLEHOST_PRINTWORK_H

#include <QtCore/QString>

namespace SampleHost {

/**
 * What a print job carries out, step by step. The job calls open() once, then printPage() for
 * every page in turn, then complete() until it is no longer pending; cancel() may come at any time
 * instead and ends the work.
 *
 * Destroying work that was not completed cancels it.
 */
class PrintWork
{
public:
    /** How far complete() has come. */
    enum class Completion {
        Completed,
        Pending, ///< There is more to do: complete() has to be called again.
        Failed
    };

    PrintWork() = default;
    virtual ~PrintWork();

    /** The number of pages. It does not change. */
    virtual qint64 pageCount() const = 0;

    /** Where the output goes, as a text for the user. */
    virtual QString targetDescription() const = 0;

    /** The path of the file that is written; empty, the default, if there is none. */
    virtual QString file() const;

    /**
     * Makes the target ready for the first page. False with the reason in problem; work without
     * any page fails here too.
     */
    virtual bool open(QString& problem) = 0;

    /** Prints page, 0-based, to the target. False with the reason in problem. */
    virtual bool printPage(qint64 page, QString& problem) = 0;

    /** Completes the output after the last page, or a part of it. Failed with the reason in
     * problem. */
    virtual Completion complete(QString& problem) = 0;

    /**
     * Discards the output; does nothing when called again. Returns false when pages that were
     * already printed may come out all the same, which some printing systems cannot prevent.
     */
    virtual bool cancel() = 0;

private:
    Q_DISABLE_COPY_MOVE(PrintWork)
};

} // namespace SampleHost

#endif
