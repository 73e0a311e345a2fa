// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "quickprint/quickprintwidget_p.h"

#include "foundation/hostkit.h"
#include "foundation/widgets/accessibleparts.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/panelfocus.h"
#include "foundation/widgets/stepbutton.h"
#include "foundation/widgets/textdirection.h"
#include "preview/previewview.h"
#include "quickprint/wrappedlabel.h"

#include <printpanels/sharedconstants.h>

#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace PrintPanels {

namespace {

constexpr QSize placeholderSize(30, 20);
constexpr QSize viewSize(200, 200);

JxLineEdit* createSizeEdit(const QString& name)
{
    auto* edit = new JxLineEdit(nullptr);
    edit->setObjectName(name);
    edit->setFont(ApplicationFont::getWidgetFont(true));
    edit->setFixedSize(135, rowHeight);
    alignToStart(edit);
    return edit;
}

// Not auto-default: in a host's dialog, Return in a size field must not start a print.
QPushButton* createButton(const QString& text)
{
    auto* button = new QPushButton(text);
    button->setFont(ApplicationFont::getWidgetFont(true));
    button->setAutoDefault(false);
    return button;
}

QPushButton* createTextButton(const QString& name, const QString& text)
{
    QPushButton* button = createButton(text);
    button->setObjectName(name);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return button;
}

QSpacerItem* createGap()
{
    return new QSpacerItem(5, 10, QSizePolicy::Expanding, QSizePolicy::Minimum);
}

} // namespace

QuickPrintWidgetPrivate::QuickPrintWidgetPrivate(QuickPrintWidget* panel, bool quickPrint)
    : q(panel), quickPrintFlag(quickPrint)
{
}

void QuickPrintWidgetPrivate::createWidgetLayout()
{
    createPrinterNameLabel();
    createResizeLayout();
    createPreviewLayout();
    QFrame* copiesFrame = createCopyCountLayout();
    QLayout* buttonRow = createButtonsLayout();

    mainLayout = new QGridLayout;
    mainLayout->addWidget(createPrinterCaption(), 0, 0);
    mainLayout->addWidget(printerNameLabel, 1, 0);
    mainLayout->addItem(createGap(), 2, 0, 1, 1);
    mainLayout->addWidget(resizeFrame, 2, 0, 1, 2, Qt::AlignRight);
    mainLayout->addWidget(preview, 3, 0, 1, 1, Qt::AlignCenter);
    mainLayout->addWidget(copiesFrame, 6, 0, 1, 1, Qt::AlignLeft);
    mainLayout->addLayout(buttonRow, 10, 0, 1, 1, Qt::AlignCenter);
    q->setLayout(mainLayout);
    setUpFocus(q);
}

// In a panel that is taller than it needs to be, the name stays right below its caption.
QLabel* QuickPrintWidgetPrivate::createPrinterCaption() const
{
    QLabel* caption =
        createCaption(tr("Current printer:", "The label next to the current printer name"));
    caption->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return caption;
}

void QuickPrintWidgetPrivate::createPrinterNameLabel()
{
    printerNameLabel = new WrappedLabel;
    printerNameLabel->setObjectName(QStringLiteral("printerNameLabel"));
    printerNameLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    printerNameLabel->setFont(ApplicationFont::getWidgetFont(true));
}

void QuickPrintWidgetPrivate::createResizeLayout()
{
    lengthEdit = createSizeEdit(QStringLiteral("lengthEdit"));
    widthEdit = createSizeEdit(QStringLiteral("widthEdit"));
    resizeButton =
        createTextButton(QStringLiteral("resizeButton"),
                         tr("       Resize       ", "The text on the button to resize the label."));

    QLabel* lengthCaption =
        createCaption(tr("Length:  ", "The text next to the label length edit box."));
    setCaption(lengthEdit, lengthCaption);
    QLabel* widthCaption =
        createCaption(tr("Width:  ", "The text next to the label width edit box."));
    setCaption(widthEdit, widthCaption);

    auto* grid = new QGridLayout;
    grid->addWidget(lengthCaption, 0, 0);
    grid->addWidget(lengthEdit, 0, 1);
    grid->addWidget(widthCaption, 1, 0);
    grid->addWidget(widthEdit, 1, 1);
    grid->addWidget(resizeButton, 2, 0, 1, 2, Qt::AlignCenter);
    resizeFrame = new QFrame;
    resizeFrame->setObjectName(QStringLiteral("resizeFrame"));
    resizeFrame->setLayout(grid);

    QObject::connect(resizeButton, SIGNAL(clicked(bool)), q, SLOT(resizeSlot()));
}

void QuickPrintWidgetPrivate::createPreviewLayout()
{
    QImage placeholder(placeholderSize, QImage::Format_ARGB32_Premultiplied);
    placeholder.fill(SharedConstants::whiteRgb);
    preview = new PreviewView(placeholder, viewSize);
}

QFrame* QuickPrintWidgetPrivate::createCopyCountLayout()
{
    createCopiesSpinBox();
    plusButton = createButton(QString());
    setUpPlusButton(plusButton);
    minusButton = createButton(QString());
    setUpMinusButton(minusButton);
    QLabel* caption = createCaption(tr("Copies:", "The label next to the number of copies."));
    setCaption(copiesSpinBox, caption);
    announceSteps(copiesSpinBox, minusButton, plusButton);

    auto* inner = new QHBoxLayout;
    inner->addWidget(copiesSpinBox);
    inner->addWidget(minusButton);
    inner->addWidget(plusButton);
    auto* row = new QHBoxLayout;
    row->addWidget(caption, 1);
    row->addItem(createGap());
    row->addLayout(inner, 2);
    auto* frame = new QFrame;
    frame->setLayout(row);

    QObject::connect(minusButton, SIGNAL(clicked()), copiesSpinBox, SLOT(stepDown()));
    QObject::connect(plusButton, SIGNAL(clicked()), copiesSpinBox, SLOT(stepUp()));
    return frame;
}

void QuickPrintWidgetPrivate::createCopiesSpinBox()
{
    copiesSpinBox = new JxSpinBox(nullptr);
    copiesSpinBox->setObjectName(QStringLiteral("copiesSpinBox"));
    copiesSpinBox->setFont(ApplicationFont::getWidgetFont(true));
    copiesSpinBox->setFixedSize(40, rowHeight);
    copiesSpinBox->setRange(1, 999);
    copiesSpinBox->setValue(1);
    copiesSpinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    alignToStart(copiesSpinBox);
}

QLayout* QuickPrintWidgetPrivate::createButtonsLayout()
{
    printButton =
        createTextButton(QStringLiteral("printButton"),
                         tr("       Print       ", "The text on the button to start printing."));
    printButton->setEnabled(false);
    openInEditorButton = createTextButton(
        QStringLiteral("openInEditorButton"),
        tr(" Open in Editor ",
           "The text on the button to open the label in the Label Editor program."));

    auto* row = new QHBoxLayout;
    row->addWidget(printButton);
    row->addWidget(openInEditorButton);

    QObject::connect(printButton, SIGNAL(clicked(bool)), q, SLOT(printSlot()));
    QObject::connect(openInEditorButton, SIGNAL(clicked(bool)), q, SIGNAL(openModuleSignal()));
    return row;
}

} // namespace PrintPanels
