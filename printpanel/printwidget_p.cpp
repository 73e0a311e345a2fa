// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanel/printwidget_p.h"

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/directedbutton.h"
#include "foundation/widgets/panelfocus.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace PrintPanels {

namespace {

constexpr int onlyCurrentRecord = -1;

DragScrollButton* createRequestButton(const QString& name, const QString& text)
{
    auto* button = new DragScrollButton(text, nullptr);
    button->setObjectName(name);
    button->setFont(ApplicationFont::getWidgetFont(true));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setEnabled(false);
    return button;
}

/** The place of a button that has a minimum width, so that the text of some languages fits too. */
class TextButtonItem : public QWidgetItem
{
public:
    using QWidgetItem::QWidgetItem;

    QSize minimumSize() const override
    {
        const QSize minimum = QWidgetItem::minimumSize();
        const int textWidth = isEmpty() ? 0 : widget()->minimumSizeHint().width();
        return minimum.expandedTo(QSize(textWidth, 0));
    }
};

} // namespace

PrintWidgetPrivate::PrintWidgetPrivate(PrintWidget* panel, bool withTestControls)
    : ammonia(panel, supply),
      printer(panel),
      supply(panel),
      records(panel, nup),
      nup(panel, records),
      testControls(panel),
      q(panel),
      printToFile(withTestControls)
{
}

// Each step adds its section below the one before.
void PrintWidgetPrivate::createWidgetLayout()
{
    mainLayout = new QVBoxLayout;
    q->setLayout(mainLayout);

    createTitle();
    ammonia.createAmmoniaFrame(mainLayout);
    mainLayout->addLayout(printer.createPrinterSelectorLayout());
    printer.createCopyCountLayout();
    mainLayout->addWidget(supply.createSupplyInfoFrame());
    mainLayout->addWidget(records.createRecordsRangeLayout());
    createUserBackgroundCheck();
    createBottomSeparator();
    if (printToFile)
        testControls.createPrintToFileLayout(mainLayout);
    createPrintButtonsLayout();
    setUpFocus(q);
}

void PrintWidgetPrivate::createTitle()
{
    mainLayout->addWidget(createCaption(tr("PRINT SETTINGS", "Title for print settings.")));
    mainLayout->addItem(new QSpacerItem(15, 15, QSizePolicy::Minimum, QSizePolicy::Minimum));
    mainLayout->addWidget(q->createSeparatorBar());
}

void PrintWidgetPrivate::createUserBackgroundCheck()
{
    userBackgroundCheck = new DirectedButton<QCheckBox>(
        tr("Print User Background", "Checkbox to print or not the user background layer"));
    userBackgroundCheck->setObjectName(QStringLiteral("userBackgroundCheck"));
    userBackgroundCheck->setFont(ApplicationFont::getWidgetFont(true));
    userBackgroundCheck->hide();
    mainLayout->addWidget(userBackgroundCheck);
}

// The bar is the only item that stretches. A line has a fixed height, so its cell takes the extra
// height and the line stays at the cell's bottom, next to the rows below it; nothing else grows.
void PrintWidgetPrivate::createBottomSeparator()
{
    constexpr int onlyStretch = 11;
    mainLayout->addItem(new QSpacerItem(15, 7, QSizePolicy::Minimum, QSizePolicy::Minimum));
    bottomSeparator = q->createSeparatorBar();
    bottomSeparator->setObjectName(QStringLiteral("bottomSeparator"));
    mainLayout->addWidget(bottomSeparator, onlyStretch, Qt::AlignBottom);
    mainLayout->addItem(new QSpacerItem(15, 15, QSizePolicy::Minimum, QSizePolicy::Minimum));
}

void PrintWidgetPrivate::createPrintButtonsLayout()
{
    printButton = createRequestButton(QStringLiteral("PrintButton"),
                                      tr(" Print ", "Button for initiating a print."));
    printButton->setStyleSheet(StyleSheets::tallPushButton());

    previewButton = createRequestButton(QStringLiteral("PreviewButton"),
                                        tr("Print Preview", "Button for showing a print preview."));
    previewButton->setMinimumWidth(127);
    auto* style = new JxPushButtonStyleProxy(nullptr);
    style->setParent(previewButton); // setStyle() does not take ownership
    previewButton->setStyle(style);
    previewButton->setStyleSheet(StyleSheets::tallPushButton());

    auto* grid = new QGridLayout;
    grid->addWidget(printButton, 0, 0);
    grid->addItem(new TextButtonItem(previewButton), 0, 1);
    mainLayout->addLayout(grid);

    QObject::connect(printButton, SIGNAL(clicked(bool)), q, SLOT(printSlot()));
    QObject::connect(previewButton, SIGNAL(clicked(bool)), q, SLOT(printPreviewSlot()));
}

void PrintWidgetPrivate::setPrintButtonsEnabled(bool enabled)
{
    previewButton->setEnabled(enabled);
    printButton->setEnabled(enabled);
}

void PrintWidgetPrivate::printSlot()
{
    emitRequest(&PrintWidgetInterface::widgetPrintSignal);
}

void PrintWidgetPrivate::printPreviewSlot()
{
    emitRequest(&PrintWidgetInterface::printPreviewSignal);
}

// Print and preview make the same request and differ in the signal only.
void PrintWidgetPrivate::emitRequest(void (PrintWidgetInterface::*request)(int, int,
                                                                           const QString&))
{
    int sequenceStart = records.currentRecordNumber();
    int sequenceEnd = onlyCurrentRecord;
    QString customRecordsList;
    records.whatToPrint(sequenceStart, sequenceEnd, customRecordsList);
    Q_EMIT(q->*request)(sequenceStart, sequenceEnd, customRecordsList);
}

void PrintWidgetPrivate::recordsRadioChangedSlot()
{
    records.recordsRadioChangedSlot();
}

void PrintWidgetPrivate::listRangeChanged()
{
    records.listRangeChanged();
}

void PrintWidgetPrivate::checkRange()
{
    records.checkRange();
}

void PrintWidgetPrivate::currentPrinterSelectionChangedSlot(int printerIndex)
{
    printer.currentPrinterSelectionChangedSlot(printerIndex);
}

void PrintWidgetPrivate::ammoniaPrintComboChanged(int index)
{
    ammonia.ammoniaPrintComboChanged(index);
}

void PrintWidgetPrivate::ribbon1ColorSelectionSlot(const QString& color)
{
    supply.ribbon1ColorSelectionSlot(color);
}

void PrintWidgetPrivate::ribbon2ColorSelectionSlot(const QString& color)
{
    supply.ribbon2ColorSelectionSlot(color);
}

void PrintWidgetPrivate::supplyColorSelectionSlot(const QString& color)
{
    supply.supplyColorSelectionSlot(color);
}

void PrintWidgetPrivate::supplyWidthEditedSlot()
{
    supply.supplyWidthEditedSlot();
}

void PrintWidgetPrivate::testErrorCodeSlot()
{
    testControls.testErrorCodeSlot();
}

} // namespace PrintPanels
