// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PRINTERSECTION_H
#define PRINTPANELS_PRINTERSECTION_H

#include "foundation/widgets/connectionblocker.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

class DragScrollButton;
class JxComboBox;
class JxSpinBox;
class PrintWidget;
class QGridLayout;
class QLabel;

namespace PrintPanels {

/** The printer: selector, preferences button, location and status, and the copies in the same grid.
 */
class PrinterSection
{
    Q_DECLARE_TR_FUNCTIONS(PrintWidget)
    Q_DISABLE_COPY_MOVE(PrinterSection)

public:
    explicit PrinterSection(PrintWidget* panel);

    /** Builds the printer grid; the caller adds it to a layout. */
    QGridLayout* createPrinterSelectorLayout();
    /** Adds the copies row, so that the plus button stands below the preferences button. */
    void createCopyCountLayout();

    void updateListOfPrinters(const QStringList& printers, int currentIndex);
    void addPrinterToList(const QString& name, bool atTop);
    void setSelectedPrinter(const QString& name);
    QString getSelectedPrinter() const;
    void currentPrinterSelectionChangedSlot(int printerIndex);
    void setPreferencesEnabled(bool enabled);
    void updatePrinterLocation(const QString& location);
    void updatePrinterStatus(bool offline, bool remote, bool unavailable);
    void setNumberOfCopies(int copies);
    int getNumberOfCopies() const;

private:
    QGridLayout* createPrinterStatusLayout();
    JxSpinBox* createCopiesSpinBox() const;
    ConnectionBlocker blockSelectionChange();

    PrintWidget* const q;
    const QString onlineText, offlineText, remoteText, unavailableText;
    QGridLayout* printerGrid = nullptr;
    JxComboBox* printerCombo = nullptr;
    DragScrollButton* preferencesButton = nullptr;
    QLabel* locationLabel = nullptr;
    QLabel* statusLabel = nullptr;
    JxSpinBox* copiesSpinBox = nullptr;
};

} // namespace PrintPanels

#endif
