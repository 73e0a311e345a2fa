// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFPRINTCONTROLLER_H
#define SAMPLEHOST_PDFPRINTCONTROLLER_H

#include "samplehost/pdf/pdfprintrequest.h"
#include "samplehost/print/printjob.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <memory>

namespace SampleHost {

class HostSettings;
class PdfDocument;
class PdfPreview;

/** Prints what the user asks for in the window "Preview and Print", one job at a time. */
class PdfPrintController : public QObject
{
    Q_OBJECT

public:
    /** Answers the window's panel. Both must outlive the controller. */
    PdfPrintController(PdfPreview& preview, const HostSettings& settings,
                       QObject* parent = nullptr);
    /** A job that is still running is given up. */
    ~PdfPrintController() override;

    /** Whether a job is running. */
    bool isPrinting() const { return m_job != nullptr; }

    /** The running job, or null. */
    PrintJob* job() const { return m_job; }

    /** Turns to another document. A job that is running goes on with the one it began with. */
    void setDocument(std::shared_ptr<const PdfDocument> document);

Q_SIGNALS:
    /** A request names nothing that could be printed; reason says why. */
    void refused(const QString& reason);
    /** A job was started. It is deleted after it has ended. */
    void jobStarted(SampleHost::PrintJob* job);
    /** The job ended; message says how, in words for the user. */
    void jobEnded(SampleHost::PrintJob::Outcome outcome, const QString& message);

private:
    void print(int sequenceStart, int sequenceEnd, const QString& customRecordsList);
    std::unique_ptr<PrintJob> makeJob(const PdfPrintRequest& request, QString& problem) const;
    void endJob(PrintJob::Outcome outcome, const QString& message);

    PdfPreview& m_preview;
    const HostSettings& m_settings;
    std::shared_ptr<const PdfDocument> m_document;
    QPointer<PrintJob> m_job;
};

} // namespace SampleHost

#endif
