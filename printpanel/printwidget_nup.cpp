// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- N-up: replicating or sequencing ----

#include <printpanels/printwidget.h>

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

namespace {

enum NupToolTip { ReplicatingTip, SequencingTip, DynamicLengthTip, SingleRecordTip };

constexpr int replicatingId = 0;
constexpr int sequencingId = 1;

QRadioButton* createPictureRadio(const QString& name, const QString& toolTip)
{
    auto* radio = new QRadioButton;
    radio->setObjectName(name);
    radio->setStyleSheet(StyleSheets::radioButtonIndicator());
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

void PrintWidget::createNupSeqRepFrame()
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

    nupTitleLabel = new QLabel(tr("N-up replicating or sequencing:", "N-up print options title."));
    nupTitleLabel->setObjectName(QStringLiteral("nupTitleLabel"));
    nupTitleLabel->setFont(ApplicationFont::getWidgetFont(true));
    nupTitleLabel->setMinimumHeight(35);
    nupTitleLabel->setWordWrap(false);
    nupTitleLabel->setToolTip(QString());
    createNupRadios();
    createNupPictures();

    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 10, 0, 0);
    row->addWidget(replicatingRadio);
    row->addWidget(replicatingIconLabel);
    row->addItem(new QSpacerItem(10, 10, QSizePolicy::Expanding, QSizePolicy::Fixed));
    row->addWidget(sequencingRadio);
    row->addWidget(sequencingIconLabel);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 10, 0, 10);
    column->addWidget(nupTitleLabel);
    column->addLayout(row);
    nupFrame = new QFrame;
    nupFrame->setObjectName(QStringLiteral("nupFrame"));
    nupFrame->setLayout(column);
    nupFrame->hide();

    // Clicks only: what the rules below check is not the user's choice, which must come back later.
    connect(nupButtonGroup, &QButtonGroup::idClicked, this,
            [this](int id) { sequencingChosen = id != replicatingId; });
}

void PrintWidget::createNupRadios()
{
    replicatingRadio =
        createPictureRadio(QStringLiteral("replicatingRadio"), nupToolTips[ReplicatingTip]);
    replicatingRadio->setChecked(true);
    sequencingRadio =
        createPictureRadio(QStringLiteral("sequencingRadio"), nupToolTips[SequencingTip]);
    sequencingChosen = false;

    nupButtonGroup = new QButtonGroup(this);
    nupButtonGroup->setObjectName(QStringLiteral("nupButtonGroup"));
    nupButtonGroup->addButton(replicatingRadio, replicatingId);
    nupButtonGroup->addButton(sequencingRadio, sequencingId);
    nupButtonGroup->setExclusive(true);
}

// Only the replicating picture has a tool tip of its own; the sequencing picture has none, by
// decision.
void PrintWidget::createNupPictures()
{
    replicatingIconLabel = createPicture(QStringLiteral("replicatingIconLabel"),
                                         StyleSheets::replicatingLabel(), replicatingRadio);
    replicatingIconLabel->setToolTip(nupToolTips[ReplicatingTip]);
    sequencingIconLabel = createPicture(QStringLiteral("sequencingIconLabel"),
                                        StyleSheets::sequencingLabel(), sequencingRadio);
}

void PrintWidget::setNupSeqRepVisible(bool visible)
{
    nupFrame->setVisible(visible && recordsFrame->isEnabled());
}

void PrintWidget::setNupDynamicLength(bool on)
{
    dynamicLengthOn = on;
    if (on) {
        nupFrame->setEnabled(false);
        replicatingRadio->setChecked(true);
        setNupFrameToolTip(nupToolTips[DynamicLengthTip]);
    } else if (rangeEnd > rangeStart) {
        nupFrame->setEnabled(true);
        (sequencingChosen ? sequencingRadio : replicatingRadio)->setChecked(true);
        setNupFrameToolTip(QString());
    } else {
        nupFrame->setEnabled(false);
        replicatingRadio->setChecked(true);
        setNupFrameToolTip(nupToolTips[SingleRecordTip]);
    }
}

void PrintWidget::setNupFrameToolTip(const QString& toolTip)
{
    nupFrame->setToolTip(toolTip);
    nupTitleLabel->setToolTip(toolTip);
}

bool PrintWidget::getNupSeqRepOption() const
{
    return nupFrame->isVisible() && sequencingRadio->isChecked();
}
