// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanel/recordssection.h"

#include "foundation/hostkit.h"
#include "foundation/onebased.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/optionradio.h"
#include "foundation/widgets/recordlistedit.h"
#include "printpanel/nupsection.h"

#include <printpanels/printwidget.h>
#include <printpanels/recordlist.h>

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

namespace PrintPanels {

namespace {

QRadioButton* createRecordsRadio(const QString& name, const QString& text)
{
    QRadioButton* radio = createOptionRadio(name, text);
    radio->setMinimumHeight(rowHeight);
    return radio;
}

} // namespace

RecordsSection::RecordsSection(PrintWidget* panel, NupSection& nupChoice) : q(panel), nup(nupChoice)
{
}

QFrame* RecordsSection::createRecordsRangeLayout()
{
    QLabel* caption = createCaption(tr("Records to Print:", "Records range label text."));
    caption->setMinimumHeight(rowHeight);
    createRecordsRadios();
    recordListEdit =
        createRecordListEdit(QStringLiteral("recordListEdit"), ApplicationFont::getWidgetFont(true),
                             tr("Enter a list of record numbers and/or ranges, separated by comma.",
                                "Tool tip text for record list entry."),
                             tr("Example:", "An example of a possible entry"));
    recordListEdit->setAccessibleName(
        tr("List of Records", "Name of the record list entry for screen readers."));

    recordsFrame = new QFrame;
    recordsFrame->setObjectName(QStringLiteral("recordsFrame"));
    auto* layout = new QVBoxLayout(recordsFrame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(q->createSeparatorBar());
    layout->addItem(new QSpacerItem(5, 5, QSizePolicy::Fixed, QSizePolicy::Fixed));
    layout->addWidget(caption);
    layout->addWidget(currentRecordRadio);
    layout->addWidget(allRecordsRadio);
    layout->addWidget(recordListRadio);
    layout->addWidget(recordListEdit);
    layout->addWidget(nup.createNupSeqRepFrame());

    QObject::connect(recordsButtonGroup, SIGNAL(buttonClicked(QAbstractButton*)), q,
                     SLOT(recordsRadioChangedSlot()));
    QObject::connect(recordListEdit, SIGNAL(textChanged(QString)), q, SLOT(listRangeChanged()));
    return recordsFrame;
}

void RecordsSection::createRecordsRadios()
{
    currentRecordRadio =
        createRecordsRadio(QStringLiteral("currentRecordRadio"),
                           tr("Current Record", "Current record radio button text."));
    allRecordsRadio = createRecordsRadio(QStringLiteral("allRecordsRadio"),
                                         tr("All Records", "All records radio button text."));
    recordListRadio = createRecordsRadio(
        QStringLiteral("recordListRadio"),
        tr("Range or List of Records:", "Custom record list radio button text."));
    currentRecordRadio->setChecked(true);

    recordsButtonGroup = new QButtonGroup(q);
    recordsButtonGroup->setObjectName(QStringLiteral("recordsButtonGroup"));
    recordsButtonGroup->addButton(currentRecordRadio, CurrentId);
    recordsButtonGroup->addButton(allRecordsRadio, AllId);
    recordsButtonGroup->addButton(recordListRadio, ListId);
}

void RecordsSection::setRangeValues(int currentIndex, int lastIndex, bool enabled)
{
    recordsFrame->setEnabled(enabled);
    currentRecord = oneBased(currentIndex);
    numberOfRecords = oneBased(lastIndex);
    recordsRadioChangedSlot();
}

// Leaves the N-up choice alone: the host moved to another record, the user chose nothing.
void RecordsSection::updateCurrentRangeIndex(int sequenceCurrent)
{
    currentRecord = oneBased(sequenceCurrent);
    checkRange();
}

void RecordsSection::recordsRadioChangedSlot()
{
    recordListEdit->setEnabled(enablesListEdit(recordsButtonGroup));
    checkRange();
    applyNupRules();
}

// Classifies the text whichever choice is checked: if a host sets it while another one is, the
// list's classification holds until the next click, setRangeValues() or updateCurrentRangeIndex().
void RecordsSection::listRangeChanged()
{
    listRangeParse();
    applyNupRules();
}

// Through the panel, so that a derived panel's override takes part.
void RecordsSection::applyNupRules()
{
    q->setNupDynamicLength(nup.isDynamicLengthOn());
}

void RecordsSection::checkRange()
{
    if (allRecordsRadio->isChecked()) {
        rangeStart = 1;
        rangeEnd = numberOfRecords;
    } else if (currentRecordRadio->isChecked()) {
        rangeStart = currentRecord;
        rangeEnd = currentRecord;
    } else {
        listRangeParse();
    }
}

void RecordsSection::listRangeParse()
{
    const bool several = RecordList::classify(recordListEdit->text(), numberOfRecords) ==
                         RecordList::Extent::SeveralRecords;
    rangeStart = several ? 1 : currentRecord;
    rangeEnd = several ? numberOfRecords : currentRecord;
}

void RecordsSection::whatToPrint(int& sequenceStart, int& sequenceEnd,
                                 QString& customRecordsList) const
{
    if (recordListRadio->isChecked()) {
        const QString list = recordListEdit->text();
        if (list.isEmpty())
            return;
        sequenceStart = 0;
        sequenceEnd = 0;
        customRecordsList = list;
    } else if (allRecordsRadio->isChecked()) {
        // As last classified, not computed again.
        sequenceStart = rangeStart;
        sequenceEnd = rangeEnd;
    }
}

void RecordsSection::hide()
{
    recordsFrame->hide();
}

bool RecordsSection::isEnabled() const
{
    return recordsFrame->isEnabled();
}

bool RecordsSection::namesSeveral() const
{
    return rangeEnd > rangeStart;
}

int RecordsSection::currentRecordNumber() const
{
    return currentRecord;
}

} // namespace PrintPanels
