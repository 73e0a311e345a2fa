// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_HOSTLOOK_H
#define SAMPLEHOST_HOSTLOOK_H

class QApplication;

namespace SampleHost {

/** Gives the program the light look that its panels are made for, whatever the desktop prefers. */
void applyHostLook(QApplication& application);

} // namespace SampleHost

#endif
