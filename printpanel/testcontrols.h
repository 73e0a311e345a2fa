// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_TESTCONTROLS_H
#define PRINTPANELS_TESTCONTROLS_H

#include <QtCore/QCoreApplication>

class JxSpinBox;
class PrintWidget;
class QBoxLayout;
class QCheckBox;
class QVBoxLayout;

namespace PrintPanels {

/** For testing a host's printing: print to a file, show one of the host's error messages. */
class TestControls
{
    Q_DECLARE_TR_FUNCTIONS(PrintWidget)
    Q_DISABLE_COPY_MOVE(TestControls)

public:
    explicit TestControls(PrintWidget* panel);

    /** Adds the controls to @p panelLayout. A panel without them does not call it. */
    void createPrintToFileLayout(QVBoxLayout* panelLayout);

    bool getPrintToFileEnabled() const;
    void testErrorCodeSlot();

private:
    QBoxLayout* createErrorTestRow();
    JxSpinBox* createErrorNumberSpinBox() const;

    PrintWidget* const q;
    QCheckBox* printToFileCheck = nullptr;
    JxSpinBox* errorNumberSpinBox = nullptr;
};

} // namespace PrintPanels

#endif
