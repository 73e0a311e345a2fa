// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_HOSTICONS_H
#define SAMPLEHOST_HOSTICONS_H

#include <QtGui/QIcon>

namespace SampleHost {

/** A printer, for Print. */
QIcon printIcon();

/** A sheet under a magnifier, for Print Preview. */
QIcon previewIcon();

} // namespace SampleHost

#endif
