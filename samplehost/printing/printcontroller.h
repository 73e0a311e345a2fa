// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PRINTCONTROLLER_H
#define SAMPLEHOST_PRINTCONTROLLER_H

#include "samplehost/print/printrequest.h"
#include "samplehost/printing/jobcontroller.h"

class PrintWidgetInterface;

namespace SampleHost {

class HostSettings;
class LabelDesign;

/** Prints what the user requests in a panel, one job at a time. */
class PrintController : public JobController
{
    Q_OBJECT

public:
    /** Prints a panel's requests with a design's labels. The arguments must outlive the controller.
     */
    PrintController(PrintWidgetInterface& panel, const LabelDesign& design,
                    const HostSettings& settings, QObject* parent = nullptr);

    /** Whether a request would be accepted: there is a printer, and no job is running. */
    bool isReady() const;

    /**
     * Completes the arguments of a panel's signal with the other choices in the panel and with the
     * settings.
     */
    PrintRequest request(int sequenceStart, int sequenceEnd,
                         const QString& customRecordsList) const;

    /** Prints a request with the copies that the panel shows now. */
    void printAgain(const PrintRequest& request);

Q_SIGNALS:
    /** The user wants a preview of a request, which has at least one page. */
    void previewRequested(const SampleHost::PrintRequest& request);
    /** isReady() may have changed. */
    void readinessChanged();

protected:
    void showPrinting(bool printing) override;

private:
    void print(int sequenceStart, int sequenceEnd, const QString& customRecordsList);
    void preview(int sequenceStart, int sequenceEnd, const QString& customRecordsList);
    void printRequest(const PrintRequest& request);
    bool makePlan(const PrintRequest& request, PagePlan& plan);
    QString selectedPrinter() const;
    std::unique_ptr<PrintTarget> makeTestFile(QString& problem) const;

    PrintWidgetInterface& m_panel;
    const LabelDesign& m_design;
    const HostSettings& m_settings;
};

} // namespace SampleHost

#endif
