// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Records: current, all, or a typed list ----

#include <printpanels/printwidget.h>

#include "foundation/hostkit.h"
#include "foundation/panelparts.h"

#include <printpanels/recordlist.h>

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

using PrintPanels::numberFromIndex;

namespace {

constexpr int rowHeight = 35;

QRadioButton* createRadio(const QString& name, const QString& text)
{
    auto* radio = new QRadioButton(text);
    radio->setObjectName(name);
    radio->setFont(ApplicationFont::getWidgetFont(true));
    radio->setMinimumHeight(rowHeight);
    radio->setFocusPolicy(Qt::NoFocus);
    return radio;
}

} // namespace

void PrintWidget::createRecordsRangeLayout()
{
    auto* caption = new QLabel(tr("Records to Print:", "Records range label text."));
    caption->setFont(ApplicationFont::getWidgetFont(true));
    caption->setMinimumHeight(rowHeight);
    createRecordsRadios();
    createRecordListEdit();
    createNupSeqRepFrame();

    recordsFrame = new QFrame;
    recordsFrame->setObjectName(QStringLiteral("recordsFrame"));
    auto* layout = new QVBoxLayout(recordsFrame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(createSeparatorBar());
    layout->addItem(new QSpacerItem(5, 5, QSizePolicy::Fixed, QSizePolicy::Fixed));
    layout->addWidget(caption);
    layout->addWidget(currentRecordRadio);
    layout->addWidget(allRecordsRadio);
    layout->addWidget(recordListRadio);
    layout->addWidget(recordListEdit);
    layout->addWidget(nupFrame);

    connect(recordsButtonGroup, SIGNAL(buttonClicked(QAbstractButton*)), this,
            SLOT(recordsRadioChangedSlot()));
    connect(recordListEdit, SIGNAL(textChanged(QString)), this, SLOT(listRangeChanged()));
    mainLayout->addWidget(recordsFrame);
}

void PrintWidget::createRecordsRadios()
{
    currentRecordRadio = createRadio(QStringLiteral("currentRecordRadio"),
                                     tr("Current Record", "Current record radio button text."));
    allRecordsRadio = createRadio(QStringLiteral("allRecordsRadio"),
                                  tr("All Records", "All records radio button text."));
    recordListRadio =
        createRadio(QStringLiteral("recordListRadio"),
                    tr("Range or List of Records:", "Custom record list radio button text."));
    currentRecordRadio->setChecked(true);

    recordsButtonGroup = new QButtonGroup(this);
    recordsButtonGroup->setObjectName(QStringLiteral("recordsButtonGroup"));
    recordsButtonGroup->addButton(currentRecordRadio, 0);
    recordsButtonGroup->addButton(allRecordsRadio, 1);
    recordsButtonGroup->addButton(recordListRadio, 2);
}

void PrintWidget::createRecordListEdit()
{
    recordListEdit = new JxLineEdit(nullptr);
    recordListEdit->setObjectName(QStringLiteral("recordListEdit"));
    recordListEdit->setFont(ApplicationFont::getWidgetFont(true));
    PrintPanels::setUpRecordListEdit(
        recordListEdit,
        tr("Enter a list of record numbers and/or ranges, separated by comma.",
           "Tool tip text for record list entry."),
        tr("Example:", "An example of a possible entry"));
}

void PrintWidget::setRangeValues(int currentIndex, int lastIndex, bool enabled)
{
    recordsFrame->setEnabled(enabled);
    currentRecord = numberFromIndex(currentIndex);
    numberOfRecords = numberFromIndex(lastIndex);
    recordsRadioChangedSlot();
}

// Leaves the N-up choice as it was: the host moves to another record, the user has chosen nothing.
void PrintWidget::updateCurrentRangeIndex(int sequenceCurrent)
{
    currentRecord = numberFromIndex(sequenceCurrent);
    classifyRecords();
}

void PrintWidget::recordsRadioChangedSlot()
{
    // Unsigned, so that "no radio checked" (-1) enables the edit as the list radio (2) does.
    recordListEdit->setEnabled(static_cast<unsigned>(recordsButtonGroup->checkedId()) > 1U);
    classifyRecords();
    setNupDynamicLength(dynamicLengthOn);
}

// Parses whichever radio is checked: a host that sets the text while another one is checked gets
// the list's classification until the next radio click, setRangeValues() or
// updateCurrentRangeIndex().
void PrintWidget::listRangeChanged()
{
    listRangeParse();
    setNupDynamicLength(dynamicLengthOn);
}

void PrintWidget::checkRange()
{
    classifyRecords();
}

void PrintWidget::classifyRecords()
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

void PrintWidget::listRangeParse()
{
    const bool several = RecordList::classify(recordListEdit->text(), numberOfRecords) ==
                         RecordList::Extent::SeveralRecords;
    rangeStart = several ? 1 : currentRecord;
    rangeEnd = several ? numberOfRecords : currentRecord;
}
