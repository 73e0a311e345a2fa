// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_JOBOUTCOME_H
#define SAMPLEHOST_JOBOUTCOME_H

#include "samplehost/print/printjob.h"

#include <QtCore/QString>

namespace SampleHost {

/** How a job ended, in words for the user. message is what the job itself said. */
QString jobOutcomeText(const PrintJob& job, PrintJob::Outcome outcome, const QString& message);

} // namespace SampleHost

#endif
