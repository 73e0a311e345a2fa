// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_JOBCONTROLLER_H
#define SAMPLEHOST_JOBCONTROLLER_H

#include "samplehost/print/printjob.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <functional>
#include <memory>

namespace SampleHost {

class HostSettings;

/** Runs the print jobs of one page, one at a time. Subclasses turn a panel's requests into jobs. */
class JobController : public QObject
{
    Q_OBJECT

public:
    /** Cancels a job that is still running. */
    ~JobController() override;

    /** Whether a job is running. */
    bool isPrinting() const { return m_job != nullptr; }

    /** Whether a request waits for an answer to replaceRequested(). */
    bool isAsking() const { return bool(m_makeJob); }

    /** Whether a request would be ignored, because there is a job or a question. */
    bool isBusy() const { return isPrinting() || isAsking(); }

    /** The running job, or null. */
    PrintJob* job() const { return m_job; }

    /** Prints the request that waits for an answer to a file, which is replaced if it exists. */
    void printToFile(const QString& path);

    /** Forgets the request that waits for an answer. */
    void dismissRequest();

    /** The next request may replace a file, because the user was already asked. */
    void allowReplacing(const QString& path) { m_replaceable = path; }

Q_SIGNALS:
    /** The user wants to print or to preview something; what comes of it is told later. */
    void requested();
    /** A request names nothing that could be printed or previewed; reason says why. */
    void refused(const QString& reason);
    /**
     * A request would replace a file of an earlier job. It waits until printToFile() or
     * dismissRequest() is called.
     */
    void replaceRequested(const QString& path);
    /** A job was started. It is deleted after it has ended. */
    void jobStarted(SampleHost::PrintJob* job);
    /** The job, or the attempt to start or preview one, ended; message is for the user. */
    void jobEnded(SampleHost::PrintJob::Outcome outcome, const QString& message);
    /** A job completed a file; emitted after jobEnded(). */
    void fileCompleted(const QString& path);

protected:
    /** Makes a job that prints to a file. */
    using MakeFileJob =
        std::function<std::unique_ptr<PrintJob>(const QString& path, ExistingFile existing)>;

    /** The settings must outlive the controller. */
    JobController(const HostSettings& settings, QObject* parent);

    /** Takes ownership of a job and starts it. A null job has failed, with the given problem. */
    void startJob(std::unique_ptr<PrintJob> job, const QString& problem);

    /** Starts a job that prints to the PDF file of the settings, or asks whether it may. */
    void startFileJob(const MakeFileJob& makeJob);

    /** Updates the panel. Called before jobStarted(), and before jobEnded() of a started job. */
    virtual void showPrinting(bool printing) = 0;

private:
    void endJob(PrintJob::Outcome outcome, const QString& message);

    const HostSettings& m_settings;
    QPointer<PrintJob> m_job;
    // The request that waits for an answer.
    MakeFileJob m_makeJob;
    // A file that the user has already agreed to replace.
    QString m_replaceable;
};

} // namespace SampleHost

#endif
