// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanel/nupsection.h"

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/choicebutton.h"
#include "foundation/widgets/metrics.h"
#include "printpanel/recordssection.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>

namespace PrintPanels {

namespace {

enum NupToolTip { ReplicatingTip, SequencingTip, DynamicLengthTip, SingleRecordTip };
enum NupId { ReplicatingId, SequencingId };

QRadioButton* createPictureRadio(const QString& name, const QString& toolTip)
{
    auto* radio = new ChoiceButton<QRadioButton, QAccessible::RadioButton>;
    radio->setObjectName(name);
    radio->setStyleSheet(StyleSheets::radioButtonIndicator());
    radio->setMinimumSize(squareButton);
    radio->setToolTip(toolTip);
    radio->setAccessibleName(toolTip);
    return radio;
}

QLabel* createPicture(const QString& name, const QString& styleSheet, QRadioButton* buddy)
{
    auto* picture = new QLabel;
    picture->setObjectName(name);
    picture->setFixedSize(78, 36);
    picture->setStyleSheet(styleSheet);
    picture->setBuddy(buddy);
    return picture;
}

} // namespace

NupSection::NupSection(PrintWidget* panel, const RecordsSection& recordsChoice)
    : q(panel), records(recordsChoice)
{
}

QFrame* NupSection::createNupSeqRepFrame()
{
    createToolTips();
    createTitle();
    createRadios();
    createPictures();

    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 10, 0, 10);
    column->addWidget(nupTitleLabel);
    column->addLayout(createChoiceRow());
    nupFrame = new QFrame;
    nupFrame->setObjectName(QStringLiteral("nupFrame"));
    nupFrame->setLayout(column);
    nupFrame->hide();

    // Clicks only: what the rules check is not the user's choice, which has to come back later.
    QObject::connect(nupButtonGroup, &QButtonGroup::idClicked, q,
                     [this](int id) { sequencingChosen = id != ReplicatingId; });
    return nupFrame;
}

void NupSection::createToolTips()
{
    nupToolTips = {
        tr("N-up replicating: Select to print identical labels on a single page.",
           "N-up print checkbox tool tip text."),
        tr("N-up sequencing: Select to print multiple labels from the sequence on a single page.",
           "N-up print checkbox tool tip text."),
        tr("N-up replicating option is disabled when dynamic length option is on.",
           "N-up print checkbox tool tip text."),
        tr("N-up replicating option is enabled only for multiple records.",
           "N-up print checkbox tool tip text.")};
}

void NupSection::createTitle()
{
    nupTitleLabel =
        createCaption(tr("N-up replicating or sequencing:", "N-up print options title."));
    nupTitleLabel->setObjectName(QStringLiteral("nupTitleLabel"));
    nupTitleLabel->setMinimumHeight(rowHeight);
    nupTitleLabel->setWordWrap(false);
    nupTitleLabel->setToolTip(QString());
}

void NupSection::createRadios()
{
    replicatingRadio =
        createPictureRadio(QStringLiteral("replicatingRadio"), nupToolTips[ReplicatingTip]);
    replicatingRadio->setChecked(true);
    sequencingRadio =
        createPictureRadio(QStringLiteral("sequencingRadio"), nupToolTips[SequencingTip]);

    nupButtonGroup = new QButtonGroup(q);
    nupButtonGroup->setObjectName(QStringLiteral("nupButtonGroup"));
    nupButtonGroup->addButton(replicatingRadio, ReplicatingId);
    nupButtonGroup->addButton(sequencingRadio, SequencingId);
    nupButtonGroup->setExclusive(true);
}

// Only the replicating picture has a tool tip of its own; that the sequencing picture has none is
// a decision.
void NupSection::createPictures()
{
    replicatingIconLabel = createPicture(QStringLiteral("replicatingIconLabel"),
                                         StyleSheets::replicatingLabel(), replicatingRadio);
    replicatingIconLabel->setToolTip(nupToolTips[ReplicatingTip]);
    sequencingIconLabel = createPicture(QStringLiteral("sequencingIconLabel"),
                                        StyleSheets::sequencingLabel(), sequencingRadio);
}

QBoxLayout* NupSection::createChoiceRow() const
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 10, 0, 0);
    row->addWidget(replicatingRadio);
    row->addWidget(replicatingIconLabel);
    row->addItem(new QSpacerItem(10, 10, QSizePolicy::Expanding, QSizePolicy::Fixed));
    row->addWidget(sequencingRadio);
    row->addWidget(sequencingIconLabel);
    return row;
}

void NupSection::setNupSeqRepVisible(bool visible)
{
    nupFrame->setVisible(visible && records.isEnabled());
}

void NupSection::setNupDynamicLength(bool on)
{
    dynamicLengthOn = on;
    if (on) {
        nupFrame->setEnabled(false);
        replicatingRadio->setChecked(true);
        setFrameToolTip(nupToolTips[DynamicLengthTip]);
    } else if (records.namesSeveral()) {
        nupFrame->setEnabled(true);
        (sequencingChosen ? sequencingRadio : replicatingRadio)->setChecked(true);
        setFrameToolTip(QString());
    } else {
        nupFrame->setEnabled(false);
        replicatingRadio->setChecked(true);
        setFrameToolTip(nupToolTips[SingleRecordTip]);
    }
}

void NupSection::setFrameToolTip(const QString& toolTip)
{
    nupFrame->setToolTip(toolTip);
    nupTitleLabel->setToolTip(toolTip);
}

bool NupSection::getNupSeqRepOption() const
{
    return nupFrame->isVisible() && sequencingRadio->isChecked();
}

bool NupSection::isDynamicLengthOn() const
{
    return dynamicLengthOn;
}

} // namespace PrintPanels
