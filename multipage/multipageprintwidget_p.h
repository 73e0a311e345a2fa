// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_MULTIPAGEPRINTWIDGET_P_H
#define PRINTPANELS_MULTIPAGEPRINTWIDGET_P_H

#include "multipage/copiessection.h"
#include "multipage/optionssection.h"
#include "multipage/pagessection.h"
#include "multipage/printersection.h"

#include <printpanels/multipageprintwidget.h>

class QVBoxLayout;

namespace PrintPanels {

/** The sections of a MultiPagePrintWidget and what stands between them. */
class MultiPagePrintWidgetPrivate
{
    Q_DECLARE_TR_FUNCTIONS(MultiPagePrintWidget)
    Q_DISABLE_COPY_MOVE(MultiPagePrintWidgetPrivate)

public:
    MultiPagePrintWidgetPrivate(MultiPagePrintWidget* panel, bool withInterfaceFlag);

    void createWidgetLayout(bool fitToPage);

    MultiPage::PrinterSection printer;
    MultiPage::PagesSection pages;
    MultiPage::CopiesSection copies;
    MultiPage::OptionsSection options;

private:
    void createTitle();
    void createPrinterSection();
    void addSpacer();

    MultiPagePrintWidget* const q;
    // Kept for the interface, without an effect.
    [[maybe_unused]] const bool interfaceFlag;
    QVBoxLayout* mainLayout = nullptr;
};

} // namespace PrintPanels

#endif
