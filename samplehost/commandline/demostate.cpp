// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/demostate.h"

namespace SampleHost {

QStringList demoStateNames(const HostParts& parts)
{
    QStringList names{QStringLiteral("plain"),
                      QStringLiteral("list-nup"),
                      QStringLiteral("supply"),
                      QStringLiteral("pipe"),
                      QStringLiteral("test-controls"),
                      QStringLiteral("preview-portrait"),
                      QStringLiteral("preview-landscape"),
                      QStringLiteral("catalog"),
                      QStringLiteral("quickprint")};
    if (parts.documents) {
        names += {QStringLiteral("document"), QStringLiteral("multipage")};
    }
    return names;
}

QString demoStateName(DemoState state)
{
    return demoStateNames().value(int(state) - 1);
}

DemoState demoStateFromName(const QString& name)
{
    return DemoState(demoStateNames().indexOf(name) + 1);
}

} // namespace SampleHost
