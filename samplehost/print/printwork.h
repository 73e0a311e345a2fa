// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTWORK_H
#define SAMPLEHOST_PRINTWORK_H

#include <QtCore/QString>

namespace SampleHost {

/**
 * What a print job carries out, step by step. The job calls open() once, then putPage() for every
 * page in turn, then complete(); giveUp() may come at any time instead and ends the work.
 *
 * Destroying work that was not completed gives it up.
 */
class PrintWork
{
public:
    PrintWork() = default;
    virtual ~PrintWork();

    /** The number of pages. It does not change. */
    virtual qint64 pageCount() const = 0;

    /** Where the output goes, as a text for the user. */
    virtual QString targetDescription() const = 0;

    /**
     * Makes the target ready for the first page. False with the reason in problem; work without
     * any page fails here too.
     */
    virtual bool open(QString& problem) = 0;

    /** Puts page, 0-based, on the target. False with the reason in problem. */
    virtual bool putPage(qint64 page, QString& problem) = 0;

    /** Completes the output after the last page. False with the reason in problem. */
    virtual bool complete(QString& problem) = 0;

    /**
     * Gives the output up; again does no harm. Returns false when pages that were already put may
     * come out all the same, which some printing systems cannot prevent.
     */
    virtual bool giveUp() = 0;

private:
    Q_DISABLE_COPY_MOVE(PrintWork)
};

} // namespace SampleHost

#endif
