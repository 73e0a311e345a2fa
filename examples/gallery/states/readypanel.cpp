// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "readypanel.h"

namespace Gallery {

namespace {

PrintWidget* createPanel(bool testControls, JxModuleInfo::JxModuleTypes module)
{
    auto* panel = new PrintWidget(testControls, nullptr);
    panel->setModule(module);
    panel->updateListOfPrinters(samplePrinters(), 0);
    panel->updatePrinterLocation(QStringLiteral("Room 12"));
    panel->updatePrinterStatus(false, false, false);
    panel->setRangeValues(0, 47, true);
    panel->enableAllButtons();
    return panel;
}

} // namespace

QStringList samplePrinters()
{
    return {QStringLiteral("Label printer"), QStringLiteral("Office"), QStringLiteral("Archive")};
}

PrintWidget* readyPanel(bool testControls)
{
    return createPanel(testControls, JxModuleInfo::JxLabelEditor);
}

PrintWidget* readyPipePanel()
{
    return createPanel(false, JxModuleInfo::PipeMarking);
}

} // namespace Gallery
