// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_JOBCONTROLLER_H
#define SAMPLEHOST_JOBCONTROLLER_H

#include "samplehost/print/printjob.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <memory>

namespace SampleHost {

/** Runs the print jobs of one page, one at a time. Subclasses turn a panel's requests into jobs. */
class JobController : public QObject
{
    Q_OBJECT

public:
    /** Cancels a job that is still running. */
    ~JobController() override;

    /** Whether a job is running. */
    bool isPrinting() const { return m_job != nullptr; }

    /** The running job, or null. */
    PrintJob* job() const { return m_job; }

Q_SIGNALS:
    /** A request names nothing that could be printed or previewed; reason says why. */
    void refused(const QString& reason);
    /** A job was started. It is deleted after it has ended. */
    void jobStarted(SampleHost::PrintJob* job);
    /** The job, or the attempt to start or preview one, ended; message is for the user. */
    void jobEnded(SampleHost::PrintJob::Outcome outcome, const QString& message);

protected:
    explicit JobController(QObject* parent);

    /** Takes ownership of a job and starts it. A null job has failed, with the given problem. */
    void startJob(std::unique_ptr<PrintJob> job, const QString& problem);

    /** Updates the panel. Called before jobStarted(), and before jobEnded() of a started job. */
    virtual void showPrinting(bool printing) = 0;

private:
    void endJob(PrintJob::Outcome outcome, const QString& message);

    QPointer<PrintJob> m_job;
};

} // namespace SampleHost

#endif
