// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_COMMANDLINEOPTIONS_H
#define SAMPLEHOST_COMMANDLINEOPTIONS_H

class QCommandLineParser;

namespace SampleHost {

/** Gives a parser all options of the program, with the texts of --help. */
void addCommandLineOptions(QCommandLineParser& parser);

} // namespace SampleHost

#endif
