// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_FILENAME_H
#define SAMPLEHOST_FILENAME_H

#include <QtCore/QOperatingSystemVersion>
#include <QtCore/QString>

namespace SampleHost {

/**
 * Whether the system takes a text as the name of an ordinary file. Windows reserves characters, the
 * names of devices and names that end in a period or a blank; other systems do not.
 */
bool isAllowedFileName(const QString& name, QOperatingSystemVersion::OSType system =
                                                QOperatingSystemVersion::currentType());

} // namespace SampleHost

#endif
