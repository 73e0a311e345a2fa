// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LABELFONT_H
#define SAMPLEHOST_LABELFONT_H

#include <QtGui/QFont>

namespace SampleHost {

/**
 * The font of everything that is printed, plain and upright. It is the same in every interface: no
 * setting of the application, its style, its language or its screen changes it.
 */
QFont labelFont();

} // namespace SampleHost

#endif
