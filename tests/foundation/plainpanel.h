// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PLAINPANEL_H
#define PLAINPANEL_H

#include <printpanels/printwidgetinterface.h>

/** The least that a panel must be: the pure operations and nothing else. */
class PlainPanel : public PrintWidgetInterface
{
    Q_OBJECT

public:
    explicit PlainPanel(bool flag = false, QWidget* parent = nullptr)
        : PrintWidgetInterface(flag, parent)
    {
    }

    void setModule(const JxModuleInfo::JxModuleTypes&) override {}
    void disablePrintButtons() override {}
    void disableAllButtons() override {}
    void enablePrintButtons() override {}
    void enableAllButtons() override {}
    void setNumberOfCopies(int) override {}
    int getNumberOfCopies() override { return 0; }
    void updateCurrentRangeIndex(int sequenceCurrent) override { current = sequenceCurrent; }

    int current = -1;
};

/** Overrides every virtual operation with its exact signature and counts the calls. */
class FullPanel : public PrintWidgetInterface
{
    Q_OBJECT

public:
    FullPanel() : PrintWidgetInterface(true, nullptr) {}

    void setModule(const JxModuleInfo::JxModuleTypes&) override { ++calls; }
    void disablePrintButtons() override { ++calls; }
    void disableAllButtons() override { ++calls; }
    void enablePrintButtons() override { ++calls; }
    void enableAllButtons() override { ++calls; }
    void setNumberOfCopies(int) override { ++calls; }
    int getNumberOfCopies() override { return ++calls; }
    void setNupSeqRepVisible(bool) override { ++calls; }
    void setNupDynamicLength(bool) override { ++calls; }
    bool getNupSeqRepOption() const override { return ++calls > 0; }
    void updateListOfPrinters(const QStringList&, int) override { ++calls; }
    void addPrinterToList(const QString&, bool) override { ++calls; }
    QString getSelectedPrinter() const override { return QString::number(++calls); }
    void setSelectedPrinter(const QString&) override { ++calls; }
    bool isSupplyInfoVisible() const override { return ++calls > 0; }
    bool getPrintToFileEnabled() const override { return ++calls > 0; }
    void hideSupplyInfo() override { ++calls; }
    void showSupplyInfo(const QStringList&, bool, double, unsigned char, bool) override { ++calls; }
    void setColorPalette(const QStringList&, const QStringList&) override { ++calls; }
    bool isTinySupply() const override { return ++calls > 0; }

    mutable int calls = 0;

public Q_SLOTS:
    void updateCurrentRangeIndex(int) override { ++calls; }
    void updatePrinterLocation(const QString&) override { ++calls; }
    void updatePrinterStatus(bool, bool, bool) override { ++calls; }
};

#endif
