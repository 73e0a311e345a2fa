// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_DEMOSTATE_H
#define SAMPLEHOST_DEMOSTATE_H

#include "samplehost/commandline/hostparts.h"

#include <QtCore/QStringList>

namespace SampleHost {

/** The states that the window can be brought into, for screenshots and a first look. */
enum class DemoState {
    None, ///< The window stays as it is.
    Plain,
    ListWithNup,
    Supply,
    Pipe,
    TestControls, ///< Needs panels with test controls.
    PortraitPreview,
    LandscapePreview,
    Catalog,
    QuickPrint,
    Document, ///< Shows a document, but not the window that prints it.
    MultiPage
};

/** The names of all states but None that a build has, in the order of the enumerators. */
QStringList demoStateNames(const HostParts& parts = HostParts());

/** The name of a state; empty for None. */
QString demoStateName(DemoState state);

/** The state of that name; None for any other name. */
DemoState demoStateFromName(const QString& name);

} // namespace SampleHost

#endif
