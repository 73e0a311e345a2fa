// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <printpanels/printwidget.h>

#include <QtWidgets/QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    PrintWidget panel(true, nullptr);
    panel.setNumberOfCopies(7);
    panel.showSupplyInfo({"#000000", "#ffffff"}, false, 2.25, 0, true);
    return panel.getNumberOfCopies() == 7 && panel.isSupplyInfoVisible() ? 0 : 1;
}
