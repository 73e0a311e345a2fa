#ifndef SAMPLEHOST_DEMOSTATES_H
#define SAMPLEHOST_DEMOSTATES_H

#include <QtCore/QStringList>

namespace SampleHost {

class MainWindow;
class PrintPage;

/** The names of the states that the window can be brought into, for pictures and a first look. */
QStringList demoStateNames();

/** The name of the state that needs panels with test controls. */
QString testControlsStateName();

/**
 * Brings a visible window into a state. False for an unknown name, or when the window would not
 * have it.
 */
bool applyDemoState(MainWindow& window, const QString& name);

/** Checks print-to-file in the panel of a visible page. False if the panel has no such control. */
bool choosePrintToFile(const PrintPage& page);

} // namespace SampleHost

#endif
