// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTQUEUE_H
#define SAMPLEHOST_PRINTQUEUE_H

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace SampleHost {

/**
 * A queue of a printing system that has the commands lp and lpstat. They tell what QPrinter does
 * not: whether the queue takes jobs at all, and whether it took this one.
 */
class PrintQueue
{
    Q_DECLARE_TR_FUNCTIONS(PrintQueue)

public:
    /** The queue of the printer of that name, as QPrinterInfo has it. */
    explicit PrintQueue(const QString& printerName);

    /** Whether this system has the commands. Without them nothing below works. */
    static bool isSupported();

    /** Whether the queue refuses jobs; false also when nobody answers. */
    bool refusesJobs() const;

    /**
     * Hands a PDF file over as one job of that title on paper of that name, which may be empty.
     * Waits for the answer, though not for ever. False with the reason in problem.
     */
    bool submit(const QString& file, const QString& title, const QString& paper,
                QString& problem) const;

private:
    QString m_printerName;
};

} // namespace SampleHost

#endif
