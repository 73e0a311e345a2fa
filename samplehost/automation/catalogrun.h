// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CATALOGRUN_H
#define SAMPLEHOST_CATALOGRUN_H

#include "samplehost/automation/commandrun.h"

namespace SampleHost {

class CatalogPage;

/** Prints the catalogue item of a command line. */
class CatalogRun : public CommandRun
{
    Q_DECLARE_TR_FUNCTIONS(CatalogRun)

public:
    CatalogRun(MainWindow& window, const CommandLine& command);

    bool choose() override;
    bool print() override;

private:
    bool chooseItem();
    bool chooseSize();

    CatalogPage& m_page;
};

} // namespace SampleHost

#endif
