// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_DOCUMENTRUN_H
#define SAMPLEHOST_DOCUMENTRUN_H

#include "samplehost/automation/commandrun.h"

namespace SampleHost {

class PdfPage;

/** Prints the document of a command line in the window "Preview and Print". */
class DocumentRun : public CommandRun
{
    Q_DECLARE_TR_FUNCTIONS(DocumentRun)

public:
    DocumentRun(MainWindow& window, const CommandLine& command);

    bool choose() override;
    bool prints() const override { return m_command.document.prints(); }
    bool print() override;

private:
    bool openWindow();
    bool choosePages();
    bool chooseCurrent();
    bool chooseList();
    bool chooseOptions();
    bool checkOffered(bool chosen);
    bool setChecked(const char* name, bool checked);

    PdfPage& m_page;
};

} // namespace SampleHost

#endif
