// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_NUPSECTION_H
#define PRINTPANELS_NUPSECTION_H

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

class PrintWidget;
class QBoxLayout;
class QButtonGroup;
class QFrame;
class QLabel;
class QRadioButton;

namespace PrintPanels {

class RecordsSection;

/** How several labels fill a page: one record repeated, or successive records. */
class NupSection
{
    Q_DECLARE_TR_FUNCTIONS(PrintWidget)
    Q_DISABLE_COPY_MOVE(NupSection)

public:
    NupSection(PrintWidget* panel, const RecordsSection& recordsChoice);

    /** Builds the section, hidden; the caller adds it to a layout. */
    QFrame* createNupSeqRepFrame();

    void setNupSeqRepVisible(bool visible);
    void setNupDynamicLength(bool on);
    bool getNupSeqRepOption() const;
    bool isDynamicLengthOn() const;

private:
    void createToolTips();
    void createTitle();
    void createRadios();
    void createPictures();
    QBoxLayout* createChoiceRow() const;
    void setFrameToolTip(const QString& toolTip);

    PrintWidget* const q;
    const RecordsSection& records;
    QStringList nupToolTips;
    QFrame* nupFrame = nullptr;
    QLabel* nupTitleLabel = nullptr;
    QRadioButton* replicatingRadio = nullptr;
    QRadioButton* sequencingRadio = nullptr;
    QLabel* replicatingIconLabel = nullptr;
    QLabel* sequencingIconLabel = nullptr;
    QButtonGroup* nupButtonGroup = nullptr;
    bool dynamicLengthOn = false;
    bool sequencingChosen = false;
};

} // namespace PrintPanels

#endif
