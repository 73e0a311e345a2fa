// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFPRINTCONTROLLER_H
#define SAMPLEHOST_PDFPRINTCONTROLLER_H

#include "samplehost/pdf/pdfprintrequest.h"
#include "samplehost/printing/jobcontroller.h"

namespace SampleHost {

class HostSettings;
class PdfDocument;
class PdfPreview;

/** Prints what the user asks for in the window "Preview and Print", one job at a time. */
class PdfPrintController : public JobController
{
    Q_OBJECT

public:
    /** Handles the requests of the window's panel. The arguments must outlive the controller. */
    PdfPrintController(PdfPreview& preview, const HostSettings& settings,
                       QObject* parent = nullptr);

    /** Sets the document. A running job continues with its own. */
    void setDocument(std::shared_ptr<const PdfDocument> document);

protected:
    void showPrinting(bool printing) override;

private:
    void print(int sequenceStart, int sequenceEnd, const QString& customRecordsList);

    PdfPreview& m_preview;
    std::shared_ptr<const PdfDocument> m_document;
};

} // namespace SampleHost

#endif
