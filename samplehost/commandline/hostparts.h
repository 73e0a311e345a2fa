// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_HOSTPARTS_H
#define SAMPLEHOST_HOSTPARTS_H

namespace SampleHost {

/** The parts of the program that not every build has. */
struct HostParts
{
    /** PDF documents can be opened and printed. */
    bool documents = true;
    /** Jobs go to the print queues of CUPS, not through Qt to the system's own printing. */
    bool printQueues = true;
};

} // namespace SampleHost

#endif
