// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/filename.h"

#include <QtCore/QRegularExpression>

namespace SampleHost {

bool isAllowedFileName(const QString& name, QOperatingSystemVersion::OSType system)
{
    // A device keeps its name whatever suffix follows.
    static const QRegularExpression reserved(
        QStringLiteral(
            "[<>:\"/\\\\|?*\\x00-\\x1f]|[. ]$|"
            "^(con|prn|aux|nul|com[1-9\u00b9\u00b2\u00b3]|lpt[1-9\u00b9\u00b2\u00b3]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return system != QOperatingSystemVersion::Windows || !reserved.match(name).hasMatch();
}

} // namespace SampleHost
