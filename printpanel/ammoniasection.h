// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_AMMONIASECTION_H
#define PRINTPANELS_AMMONIASECTION_H

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

class JxComboBox;
class PrintWidget;
class QFrame;
class QVBoxLayout;
class QWidget;

namespace PrintPanels {

class SupplySection;

/** Ammonia pipe markers come with tags: the choice between the label and one of its tags. */
class AmmoniaSection
{
    Q_DECLARE_TR_FUNCTIONS(PrintWidget)
    Q_DISABLE_COPY_MOVE(AmmoniaSection)

public:
    AmmoniaSection(PrintWidget* panel, const SupplySection& loadedSupply);

    /** Adds the empty, hidden frame of the section to @p panelLayout. */
    void createAmmoniaFrame(QVBoxLayout* panelLayout);
    /** Builds the contents, replacing those of an earlier call. */
    void createAmmoniaLayout();
    void createAmmoniaComboList();
    void setVisibleAmmoniaTag(int tag);
    void ammoniaPrintComboChanged(int index);

private:
    JxComboBox* createCombo() const;
    void discardContents();
    void fillCombo(int tag);
    void connectCombo();
    void disconnectCombo();

    PrintWidget* const q;
    const SupplySection& supply;
    QStringList ammoniaItemNames;
    QVBoxLayout* mainLayout = nullptr;
    QFrame* ammoniaWidget = nullptr;
    JxComboBox* ammoniaPrintCombo = nullptr;
    QWidget* ammoniaSeparator = nullptr;
};

} // namespace PrintPanels

#endif
