// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LABELRUN_H
#define SAMPLEHOST_LABELRUN_H

#include "samplehost/automation/commandrun.h"

namespace SampleHost {

class LabelPage;

/** Prints the records of a command line, from the preview if it asks for one. */
class LabelRun : public CommandRun
{
    Q_DECLARE_TR_FUNCTIONS(LabelRun)

public:
    LabelRun(MainWindow& window, const CommandLine& command);

    bool choose() override;
    bool print() override;

private:
    bool chooseOutput();
    bool chooseRecords();
    bool chooseCurrent();
    bool chooseList();
    bool chooseNupMode();
    bool openPreviewIfAsked();
    bool checkOffered(bool chosen);

    LabelPage& m_page;
};

} // namespace SampleHost

#endif
