// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_HOSTSTYLE_H
#define SAMPLEHOST_HOSTSTYLE_H

class QApplication;

namespace SampleHost {

/** Sets the light style that the panels are made for, whatever the desktop uses. */
void applyHostStyle(QApplication& application);

} // namespace SampleHost

#endif
