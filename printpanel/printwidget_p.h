// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PRINTWIDGET_P_H
#define PRINTPANELS_PRINTWIDGET_P_H

#include "printpanel/ammoniasection.h"
#include "printpanel/nupsection.h"
#include "printpanel/printersection.h"
#include "printpanel/recordssection.h"
#include "printpanel/supplysection.h"
#include "printpanel/testcontrols.h"

#include <printpanels/printwidget.h>

class DragScrollButton;
class QCheckBox;
class QFrame;
class QVBoxLayout;

namespace PrintPanels {

/**
 * The sections of a PrintWidget and what stands between them: title, user background, the Print and
 * Print Preview buttons. Its slots are the panel's private slots.
 */
class PrintWidgetPrivate
{
    Q_DECLARE_TR_FUNCTIONS(PrintWidget)
    Q_DISABLE_COPY_MOVE(PrintWidgetPrivate)

public:
    PrintWidgetPrivate(PrintWidget* panel, bool withTestControls);

    void createWidgetLayout();
    void setPrintButtonsEnabled(bool enabled);

    void printSlot();
    void printPreviewSlot();
    void recordsRadioChangedSlot();
    void listRangeChanged();
    void checkRange();
    void currentPrinterSelectionChangedSlot(int printerIndex);
    void ammoniaPrintComboChanged(int index);
    void ribbon1ColorSelectionSlot(const QString& color);
    void ribbon2ColorSelectionSlot(const QString& color);
    void supplyColorSelectionSlot(const QString& color);
    void supplyWidthEditedSlot();
    void testErrorCodeSlot();

    AmmoniaSection ammonia;
    PrinterSection printer;
    SupplySection supply;
    RecordsSection records;
    NupSection nup;
    TestControls testControls;
    QCheckBox* userBackgroundCheck = nullptr;

private:
    void createTitle();
    void createUserBackgroundCheck();
    void createBottomSeparator();
    void createPrintButtonsLayout();
    void emitRequest(void (PrintWidgetInterface::*request)(int, int, const QString&));

    PrintWidget* const q;
    const bool printToFile;
    QVBoxLayout* mainLayout = nullptr;
    QFrame* bottomSeparator = nullptr;
    DragScrollButton* printButton = nullptr;
    DragScrollButton* previewButton = nullptr;
};

} // namespace PrintPanels

#endif
