// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// For a build without libcups: QPrinter does what it can.
#include "samplehost/print/printqueue.h"

namespace SampleHost {

bool PrintQueue::isSupported()
{
    return false;
}

bool PrintQueue::refusesJobs() const
{
    return false;
}

bool PrintQueue::submit(const QString&, const QString&, const QString&, QString&) const
{
    return false;
}

} // namespace SampleHost
