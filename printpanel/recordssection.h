// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_RECORDSSECTION_H
#define PRINTPANELS_RECORDSSECTION_H

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

class JxLineEdit;
class PrintWidget;
class QButtonGroup;
class QFrame;
class QRadioButton;

namespace PrintPanels {

class NupSection;

/** The records to print: the current one, all, or a typed list. The N-up choice lies in its frame.
 */
class RecordsSection
{
    Q_DECLARE_TR_FUNCTIONS(PrintWidget)
    Q_DISABLE_COPY_MOVE(RecordsSection)

public:
    RecordsSection(PrintWidget* panel, NupSection& nupChoice);

    /** Builds the section; the caller adds it to a layout. */
    QFrame* createRecordsRangeLayout();

    void setRangeValues(int currentIndex, int lastIndex, bool enabled);
    void updateCurrentRangeIndex(int sequenceCurrent);
    void recordsRadioChangedSlot();
    void listRangeChanged();
    void checkRange();
    void listRangeParse();
    void whatToPrint(int& sequenceStart, int& sequenceEnd, QString& customRecordsList) const;

    void hide();
    bool isEnabled() const;
    /** Whether the choice named several records when it was last classified. */
    bool namesSeveral() const;
    /** 1-based number of the record that the host shows. */
    int currentRecordNumber() const;

private:
    void createRecordsRadios();
    void applyNupRules();

    PrintWidget* const q;
    NupSection& nup;
    // The pair only tells one record from several: what a list names is not stored.
    int rangeStart = 1;
    int rangeEnd = 1;
    int numberOfRecords = 99999;
    int currentRecord = 1;
    QFrame* recordsFrame = nullptr;
    QRadioButton* currentRecordRadio = nullptr;
    QRadioButton* allRecordsRadio = nullptr;
    QRadioButton* recordListRadio = nullptr;
    QButtonGroup* recordsButtonGroup = nullptr;
    JxLineEdit* recordListEdit = nullptr;
};

} // namespace PrintPanels

#endif
