// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/joboutcome.h"

#include <QtCore/QCoreApplication>

namespace SampleHost {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("SampleHost::JobOutcome", text);
}

} // namespace

QString jobOutcomeText(const PrintJob& job, PrintJob::Outcome outcome, const QString& message)
{
    const QString target = job.targetDescription();
    const qint64 pages = job.pageCount();
    switch (outcome) {
    case PrintJob::Outcome::Completed:
        return pages == 1 ? tr("Printed 1 page to %1").arg(target)
                          : tr("Printed %1 pages to %2").arg(QString::number(pages), target);
    case PrintJob::Outcome::Cancelled:
        return (tr("Printing was cancelled.") + QLatin1Char(' ') + message).trimmed();
    case PrintJob::Outcome::Failed:
        break;
    }
    return message;
}

} // namespace SampleHost
