// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_HOSTOPTIONS_H
#define SAMPLEHOST_HOSTOPTIONS_H

#include "samplehost/data/recordsource.h"

namespace SampleHost {

/** What the window is created with. */
struct HostOptions
{
    DataSourceOptions dataSource;
    /** Whether the panels have print-to-file and error-test controls. */
    bool testControls = false;
    /** The PDF document to open at once; empty for none. */
    QString document;
};

} // namespace SampleHost

#endif
