// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTQUEUE_H
#define SAMPLEHOST_PRINTQUEUE_H

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace SampleHost {

/**
 * A CUPS queue. It tells what QPrinter does not: whether the queue accepts jobs, and whether it
 * accepted this one.
 */
class PrintQueue
{
    Q_DECLARE_TR_FUNCTIONS(PrintQueue)

public:
    /**
     * The queue of the printer of that name, as QPrinterInfo has it. The timeout of submit() is in
     * milliseconds.
     */
    explicit PrintQueue(const QString& printerName, int submitTimeout = 60000)
        : m_printerName(printerName), m_submitTimeout(submitTimeout)
    {
    }

    /** Whether this is a build with CUPS. If not, the other functions return false. */
    static bool isSupported();

    /** Whether the queue refuses jobs; false also if the server does not respond in 5 seconds. */
    bool refusesJobs() const;

    /**
     * Submits a PDF file as one job of that title on paper of that name, both of which may be
     * empty, and waits for the response. False with the reason in problem.
     */
    bool submit(const QString& file, const QString& title, const QString& paper,
                QString& problem) const;

private:
    QString m_printerName;
    int m_submitTimeout;
};

} // namespace SampleHost

#endif
