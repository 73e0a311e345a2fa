// ---- Records: current, all, or a typed list ----

#include "printpanel/printwidget.h"

#include "foundation/hostkit.h"
#include "foundation/recordlist.h"

#include <QtGui/QRegularExpressionValidator>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

#include <limits>

namespace {

constexpr int rowHeight = 35;

/** A host's 0-based index as a 1-based number; the highest index has no number above it. */
int numberOf(int index)
{
    return index == std::numeric_limits<int>::max() ? index : index + 1;
}

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
    const QString example =
        tr("Example:", "An example of a possible entry") + QStringLiteral("  1,4-5,11-20,33");

    recordListEdit = new JxLineEdit(nullptr);
    recordListEdit->setObjectName(QStringLiteral("recordListEdit"));
    recordListEdit->setFont(ApplicationFont::getWidgetFont(true));
    recordListEdit->setValidator(
        new QRegularExpressionValidator(RecordList::expression(), recordListEdit));
    recordListEdit->setContextMenuPolicy(Qt::NoContextMenu);
    recordListEdit->setFixedHeight(36);
    recordListEdit->setToolTip(
        tr("Enter a list of record numbers and/or ranges, separated by comma.",
           "Tool tip text for record list entry.") +
        u'\n' + example);
    recordListEdit->setPlaceholderText(QStringLiteral("   ") + example);
    recordListEdit->setEnabled(false);
}

void PrintWidget::setRangeValues(int currentIndex, int lastIndex, bool enabled)
{
    recordsFrame->setEnabled(enabled);
    currentRecord = numberOf(currentIndex);
    numberOfRecords = numberOf(lastIndex);
    recordsRadioChangedSlot();
}

// Leaves the N-up choice as it was: the host moves to another record, the user has chosen nothing.
void PrintWidget::updateCurrentRangeIndex(int sequenceCurrent)
{
    currentRecord = numberOf(sequenceCurrent);
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
