// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "preview/printpreviewdialog_p.h"

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"
#include "foundation/widgets/choicebutton.h"
#include "foundation/widgets/fittedfont.h"
#include "foundation/widgets/lightpalette.h"
#include "foundation/widgets/panelfocus.h"
#include "foundation/widgets/textdirection.h"
#include "preview/previewview.h"

#include <printpanels/sharedconstants.h>

#include <QtGui/QIcon>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolTip>

namespace PrintPanels {

namespace {

constexpr QSize popupSize(860, 500);
constexpr QSize viewSize(750, 450);
constexpr QSize textButtonSize(100, 35);
constexpr QSize zoomIconSize(42, 46);
constexpr int titlePixelSize = 14;

enum OrientationId { LandscapeId, PortraitId };

// A host may embed the popup in a dialog of its own: Return there must not press a button here.
void setUpButton(QPushButton* button, const QString& name, const QString& styleSheet)
{
    button->setObjectName(name);
    button->setStyleSheet(styleSheet);
    button->setAutoDefault(false);
}

QPushButton* createTextButton(const QString& name, const QString& text)
{
    auto* button = new QPushButton(text);
    setUpButton(button, name, StyleSheets::primaryPushButton());
    button->setFont(ApplicationFont::getWidgetFont(true));
    button->setFixedSize(textButtonSize);
    return button;
}

QPushButton* createZoomButton(const QString& name, const QString& accessibleName,
                              const QString& styleSheet)
{
    auto* button = new QPushButton;
    setUpButton(button, name, styleSheet);
    button->setAccessibleName(accessibleName);
    button->setIconSize(zoomIconSize);
    return button;
}

QPushButton* createOrientationButton(const QString& name, const QString& accessibleName,
                                     const QString& styleSheet, bool checked)
{
    auto* button = new ChoiceButton<QPushButton, QAccessible::RadioButton>;
    setUpButton(button, name, styleSheet);
    button->setAccessibleName(accessibleName);
    button->setToolTip(PrintPreviewDialog::ORIENTATION_TIP);
    button->setCheckable(true);
    button->setChecked(checked);
    return button;
}

QSpacerItem* createGap()
{
    return new QSpacerItem(30, 10, QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QFrame* createGreyFrame(PreviewView* view)
{
    auto* layout = new QVBoxLayout;
    layout->setSpacing(0);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(view);

    auto* frame = new QFrame;
    frame->setStyleSheet(StyleSheets::previewFrame());
    frame->setLayout(layout);
    return frame;
}

QFrame* createOuterFrame(QLayout* layout)
{
    auto* frame = new QFrame;
    frame->setObjectName(QStringLiteral("JxPreviewFrame"));
    frame->setStyleSheet(StyleSheets::previewDialogFrame());
    setLightPalette(frame);
    frame->setFrameShape(QFrame::Panel);
    frame->setFrameShadow(QFrame::Raised);
    frame->setLayout(layout);
    return frame;
}

} // namespace

/** The buttons that are needed only until they are connected. */
struct PrintPreviewDialogPrivate::Buttons
{
    QPushButton* close;
    QPushButton* zoomIn;
    QPushButton* zoomOut;
    QPushButton* fit;
};

PrintPreviewDialogPrivate::PrintPreviewDialogPrivate(PrintPreviewDialog* popup) : q(popup) {}

void PrintPreviewDialogPrivate::createTitleBar()
{
    titleBar = new ContainerTitleBar(nullptr, QString(), QString(), titlePixelSize);
    titleBar->setFont(ApplicationFont::getWidgetFontSmall(false));
}

void PrintPreviewDialogPrivate::createContents(const QImage& image, bool portrait)
{
    const Buttons buttons = createButtons();
    QToolTip::setFont(ApplicationFont::getWidgetFontSmall(false));
    createOrientationButtons(portrait);
    preview = new PreviewView(image, viewSize);
    createLayout(createButtonRow(buttons));
    connectControls(buttons);
}

PrintPreviewDialogPrivate::Buttons PrintPreviewDialogPrivate::createButtons()
{
    printButton =
        createTextButton(QStringLiteral("printButton"), tr("Print", "Button to initiate print."));

    Buttons buttons;
    buttons.close = createTextButton(QStringLiteral("closeButton"),
                                     tr("Close", "Button to close print preview."));
    new FittedFont(
        {{{printButton}, textButtonSize.width()}, {{buttons.close}, textButtonSize.width()}});
    buttons.zoomIn = createZoomButton(QStringLiteral("zoomInButton"),
                                      tr("Zoom In", "Name of the button for screen readers."),
                                      StyleSheets::zoomInButton());
    buttons.zoomOut = createZoomButton(QStringLiteral("zoomOutButton"),
                                       tr("Zoom Out", "Name of the button for screen readers."),
                                       StyleSheets::zoomOutButton());
    buttons.fit =
        createZoomButton(QStringLiteral("fitButton"),
                         tr("Fit to Window", "Name of the button that shows the whole label for "
                                             "screen readers."),
                         StyleSheets::fitButton());
    buttons.fit->setIcon(
        QIcon(QStringLiteral(":/printicons/printericons/zoom_fit_transparent.png")));
    return buttons;
}

void PrintPreviewDialogPrivate::createOrientationButtons(bool portrait)
{
    portraitButton = createOrientationButton(
        QStringLiteral("portraitButton"),
        tr("Portrait", "Name of the orientation button for screen readers."),
        StyleSheets::portraitButton(), portrait);
    landscapeButton = createOrientationButton(
        QStringLiteral("landscapeButton"),
        tr("Landscape", "Name of the orientation button for screen readers."),
        StyleSheets::landscapeButton(), !portrait);
    orientationGroup = new QButtonGroup(q);
    orientationGroup->addButton(landscapeButton, LandscapeId);
    orientationGroup->addButton(portraitButton, PortraitId);
    orientationGroup->setExclusive(true);
}

QBoxLayout* PrintPreviewDialogPrivate::createButtonRow(const Buttons& buttons) const
{
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(buttons.zoomIn);
    row->addWidget(buttons.zoomOut);
    row->addWidget(buttons.fit);
    row->addItem(createGap());
    row->addWidget(portraitButton);
    row->addWidget(landscapeButton);
    row->addItem(createGap());
    row->addWidget(printButton);
    row->addWidget(buttons.close);
    return row;
}

void PrintPreviewDialogPrivate::createLayout(QBoxLayout* buttonRow)
{
    auto* inner = new QVBoxLayout;
    inner->setSpacing(10);
    inner->setContentsMargins(10, 0, 10, 5);
    inner->addWidget(createGreyFrame(preview));
    inner->addLayout(buttonRow);

    auto* outer = new QVBoxLayout;
    outer->setSpacing(10);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(titleBar);
    outer->addLayout(inner);

    auto* whole = new QVBoxLayout;
    whole->setContentsMargins(0, 0, 0, 0);
    QFrame* frame = createOuterFrame(outer);
    setUpFocus(frame);
    whole->addWidget(frame);
    q->setLayout(whole);
    q->setFixedSize(popupSize);
}

void PrintPreviewDialogPrivate::connectControls(const Buttons& buttons)
{
    const auto connectClick = [this](QPushButton* button, const char* method) {
        QObject::connect(button, SIGNAL(clicked()), q, method);
    };
    connectClick(printButton, SLOT(print()));
    // Closes first: whoever receives the signal finds the popup hidden.
    connectClick(buttons.close, SLOT(close()));
    connectClick(buttons.close, SIGNAL(popupHideSignal()));
    connectClick(buttons.zoomIn, SLOT(zoomIn()));
    connectClick(buttons.zoomOut, SLOT(zoomOut()));
    connectClick(buttons.fit, SLOT(zoomFit()));
    QObject::connect(orientationGroup, SIGNAL(idClicked(int)), q,
                     SIGNAL(orientationChangedSignal(int)));
    QObject::connect(titleBar, SIGNAL(closeButtonClicked()), q, SLOT(close()));
    QObject::connect(titleBar, SIGNAL(closeButtonClicked()), q, SIGNAL(popupHideSignal()));
    QObject::connect(titleBar, SIGNAL(signalMove(int, int)), q, SLOT(mouseMoveSlot(int, int)));
}

void PrintPreviewDialogPrivate::setTitle(const QSizeF& designSize, const QSizeF& printedSize,
                                         bool printedSizeOnly, bool metric)
{
    const QString unit =
        metric ? SharedConstants::millimetersSuffix : SharedConstants::inchMarkSuffix;
    const QString title = printedSizeOnly
                              ? tr("Print Preview (%1%2 X %3%2)", "Dialog title with label size.")
                              : tr("Print Preview (Design: %1%2 X %3%2  Printed: %4%2 X %5%2)",
                                   "Dialog title with label size.");
    const auto number = [&title, decimals = metric ? 0 : 2](double length) {
        return numbersAfter(title, QString::number(length, 'f', decimals));
    };
    const QString width = number(printedSize.width());
    const QString height = number(printedSize.height());
    // One call with all arguments, so that a place marker inside a number or a unit stays text.
    titleBar->setTitle(printedSizeOnly ? title.arg(width, unit, height)
                                       : title.arg(number(designSize.width()), unit,
                                                   number(designSize.height()), width, height));
}

void PrintPreviewDialogPrivate::setRange(int firstRecord, int lastRecord, const QString& records)
{
    sequenceStart = firstRecord;
    sequenceEnd = lastRecord;
    recordList = records;
}

// The group unchecks the other button.
void PrintPreviewDialogPrivate::setPortrait(bool portrait)
{
    (portrait ? portraitButton : landscapeButton)->setChecked(true);
}

} // namespace PrintPanels
