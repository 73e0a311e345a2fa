// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_MULTIPAGE_PRINTERSECTION_H
#define PRINTPANELS_MULTIPAGE_PRINTERSECTION_H

#include "foundation/widgets/connectionblocker.h"

#include <QtCore/QCoreApplication>

class JxComboBox;
class MultiPagePrintWidget;
class QGridLayout;
class QLabel;
class QPushButton;

namespace PrintPanels::MultiPage {

/** The printer: selector and settings button. */
class PrinterSection
{
    Q_DECLARE_TR_FUNCTIONS(MultiPagePrintWidget)
    Q_DISABLE_COPY_MOVE(PrinterSection)

public:
    explicit PrinterSection(MultiPagePrintWidget* panel);

    QLabel* createPrinterCaption() const;
    /** Builds the selector's grid below @p caption; the caller adds it to a layout. */
    QGridLayout* createPrinterLayout(QLabel* caption);

    void updateListOfPrinters(const QStringList& printers, int currentIndex);
    QString getSelectedPrinter() const;
    void setSelectedPrinter(const QString& name);
    void currentPrinterSelectionChangedSlot(int index);

private:
    void fillPrinterCombo(const QStringList& printers, int currentIndex);
    ConnectionBlocker blockSelectionChange();

    MultiPagePrintWidget* const q;
    JxComboBox* printerCombo = nullptr;
    QPushButton* printerSettingsButton = nullptr;
};

} // namespace PrintPanels::MultiPage

#endif
