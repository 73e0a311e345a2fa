// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTCONTROLLER_H
#define SAMPLEHOST_PRINTCONTROLLER_H

#include "samplehost/print/printjob.h"
#include "samplehost/print/printrequest.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

class PrintWidgetInterface;

namespace SampleHost {

class HostSettings;
class LabelDesign;

/** Carries out what the user asks for in one panel, one job at a time. */
class PrintController : public QObject
{
    Q_OBJECT

public:
    /** Answers a panel's requests with a design's labels. All three must outlive the controller. */
    PrintController(PrintWidgetInterface& panel, const LabelDesign& design,
                    const HostSettings& settings, QObject* parent = nullptr);
    /** A job that is still running is given up. */
    ~PrintController() override;

    /** Whether a job is running. */
    bool isPrinting() const { return m_job != nullptr; }

    /** The running job, or null. */
    PrintJob* job() const { return m_job; }

    /** Whether a request would be taken: there is a printer, and no job is running. */
    bool isReady() const;

    /**
     * Completes what a panel asks for (1-based numbers, as its signals carry them) with its other
     * choices: copies, N-up, background, and with the paper of the settings.
     */
    PrintRequest request(int sequenceStart, int sequenceEnd,
                         const QString& customRecordsList) const;

    /** Prints a request as it is, but with the copies that the panel shows now. */
    void printAgain(const PrintRequest& request);

Q_SIGNALS:
    /** A request names nothing that could be printed or previewed; reason says why. */
    void refused(const QString& reason);
    /** A job was started. It is deleted after it has ended. */
    void jobStarted(SampleHost::PrintJob* job);
    /** The job, or the attempt to start or preview one, ended; message says how, in words for the
     * user. */
    void jobEnded(SampleHost::PrintJob::Outcome outcome, const QString& message);
    /** The user wants to see a request that has at least one page. */
    void previewRequested(const SampleHost::PrintRequest& request);
    /** isReady() may have changed. */
    void readinessChanged();

private:
    void print(int sequenceStart, int sequenceEnd, const QString& customRecordsList);
    void preview(int sequenceStart, int sequenceEnd, const QString& customRecordsList);
    void printRequest(const PrintRequest& request);
    bool makePlan(const PrintRequest& request, PagePlan& plan);
    QString selectedPrinter() const;
    std::unique_ptr<PrintTarget> makeTarget(QString& problem) const;
    void startJob(const PrintRequest& request, const PagePlan& plan,
                  std::unique_ptr<PrintTarget> target);
    void endJob(PrintJob::Outcome outcome, const QString& message);

    PrintWidgetInterface& m_panel;
    const LabelDesign& m_design;
    const HostSettings& m_settings;
    QPointer<PrintJob> m_job;
};

} // namespace SampleHost

#endif
