// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <printpanels/quickprintwidget.h>

#include "foundation/hostkit.h"
#include "foundation/panelparts.h"
#include "foundation/stylesheets.h"
#include "preview/previewview.h"
#include "quickprint/wrappedlabel.h"

#include <printpanels/sharedconstants.h>

#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using PrintPanels::PreviewView;
using PrintPanels::WrappedLabel;

namespace {

constexpr int rowHeight = 35;
constexpr QSize placeholderSize(30, 20);
constexpr QSize viewSize(200, 200);
constexpr int shownLabel = -1;
constexpr double noNumber = -1.0;

QLabel* createCaption(const QString& text)
{
    auto* caption = new QLabel(text);
    caption->setFont(ApplicationFont::getWidgetFont(true));
    return caption;
}

JxLineEdit* createSizeEdit(const QString& name)
{
    auto* edit = new JxLineEdit(nullptr);
    edit->setObjectName(name);
    edit->setFont(ApplicationFont::getWidgetFont(true));
    edit->setFixedSize(135, rowHeight);
    return edit;
}

// Not auto-default: in a host's dialog, Return in a size field must not start a print.
QPushButton* createButton(const QString& name, const QString& text)
{
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setFont(ApplicationFont::getWidgetFont(true));
    button->setAutoDefault(false);
    return button;
}

QPushButton* createTextButton(const QString& name, const QString& text)
{
    QPushButton* button = createButton(name, text);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return button;
}

QPushButton* createStepButton(const QString& name, const QString& styleSheet)
{
    QPushButton* button = createButton(name, QString());
    PrintPanels::setUpStepButton(button, styleSheet);
    return button;
}

QSpacerItem* createGap()
{
    return new QSpacerItem(5, 10, QSizePolicy::Expanding, QSizePolicy::Minimum);
}

double numberIn(const JxLineEdit* edit)
{
    bool converts = false;
    const double number = edit->text().toDouble(&converts);
    return converts ? number : noNumber;
}

} // namespace

// The base gets no parent on purpose: a panel appears where the host's layout puts it, and nowhere
// before.
QuickPrintWidget::QuickPrintWidget(bool quickPrint, QWidget* parent)
    : PrintWidgetInterface(parent != nullptr, nullptr), quickPrintFlag(quickPrint)
{
    setObjectName(QStringLiteral("QuickPrintWidget"));
    setStyleSheet(StyleSheets::panel());
    createWidgetLayout();
}

QuickPrintWidget::~QuickPrintWidget()
{
    blockSignals(true);
}

void QuickPrintWidget::createWidgetLayout()
{
    auto* caption =
        createCaption(tr("Current printer:", "The label next to the current printer name"));
    // The name stays under its caption in a panel that is taller than it needs to be.
    caption->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    printerNameLabel = new WrappedLabel;
    printerNameLabel->setObjectName(QStringLiteral("printerNameLabel"));
    printerNameLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    printerNameLabel->setFont(ApplicationFont::getWidgetFont(true));
    createResizeLayout();
    createPreviewLayout();
    QFrame* copiesFrame = createCopyCountLayout();
    QLayout* buttonRow = createButtonsLayout();

    mainLayout = new QGridLayout;
    mainLayout->addWidget(caption, 0, 0);
    mainLayout->addWidget(printerNameLabel, 1, 0);
    mainLayout->addItem(createGap(), 2, 0, 1, 1);
    mainLayout->addWidget(resizeFrame, 2, 0, 1, 2, Qt::AlignRight);
    mainLayout->addWidget(preview, 3, 0, 1, 1, Qt::AlignCenter);
    mainLayout->addWidget(copiesFrame, 6, 0, 1, 1, Qt::AlignLeft);
    mainLayout->addLayout(buttonRow, 10, 0, 1, 1, Qt::AlignCenter);
    setLayout(mainLayout);
}

void QuickPrintWidget::createResizeLayout()
{
    lengthEdit = createSizeEdit(QStringLiteral("lengthEdit"));
    widthEdit = createSizeEdit(QStringLiteral("widthEdit"));
    resizeButton =
        createTextButton(QStringLiteral("resizeButton"),
                         tr("       Resize       ", "The text on the button to resize the label."));

    auto* grid = new QGridLayout;
    grid->addWidget(createCaption(tr("Length:  ", "The text next to the label length edit box.")),
                    0, 0);
    grid->addWidget(lengthEdit, 0, 1);
    grid->addWidget(createCaption(tr("Width:  ", "The text next to the label width edit box.")), 1,
                    0);
    grid->addWidget(widthEdit, 1, 1);
    grid->addWidget(resizeButton, 2, 0, 1, 2, Qt::AlignCenter);
    resizeFrame = new QFrame;
    resizeFrame->setObjectName(QStringLiteral("resizeFrame"));
    resizeFrame->setLayout(grid);

    connect(resizeButton, SIGNAL(clicked(bool)), this, SLOT(resizeSlot()));
}

void QuickPrintWidget::createPreviewLayout()
{
    QImage placeholder(placeholderSize, QImage::Format_ARGB32_Premultiplied);
    placeholder.fill(SharedConstants::whiteRgb);
    preview = new PreviewView(placeholder, viewSize);
}

QFrame* QuickPrintWidget::createCopyCountLayout()
{
    copiesSpinBox = new JxSpinBox(nullptr);
    copiesSpinBox->setObjectName(QStringLiteral("copiesSpinBox"));
    copiesSpinBox->setFont(ApplicationFont::getWidgetFont(true));
    copiesSpinBox->setFixedSize(40, rowHeight);
    copiesSpinBox->setRange(1, 999);
    copiesSpinBox->setValue(1);
    copiesSpinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    plusButton = createStepButton(QStringLiteral("plusButton"), StyleSheets::plusStepButton());
    minusButton = createStepButton(QStringLiteral("minusButton"), StyleSheets::minusStepButton());

    auto* inner = new QHBoxLayout;
    inner->addWidget(copiesSpinBox);
    inner->addWidget(minusButton);
    inner->addWidget(plusButton);
    auto* row = new QHBoxLayout;
    row->addWidget(createCaption(tr("Copies:", "The label next to the number of copies.")), 1);
    row->addItem(createGap());
    row->addLayout(inner, 2);
    auto* frame = new QFrame;
    frame->setLayout(row);

    connect(minusButton, SIGNAL(clicked()), copiesSpinBox, SLOT(stepDown()));
    connect(plusButton, SIGNAL(clicked()), copiesSpinBox, SLOT(stepUp()));
    return frame;
}

QLayout* QuickPrintWidget::createButtonsLayout()
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

    connect(printButton, SIGNAL(clicked(bool)), this, SLOT(printSlot()));
    connect(openInEditorButton, SIGNAL(clicked(bool)), this, SIGNAL(openModuleSignal()));
    return row;
}

void QuickPrintWidget::setModule(const JxModuleInfo::JxModuleTypes& module)
{
    resizeFrame->setVisible(module == JxModuleInfo::JxCatalog ||
                            module == JxModuleInfo::JavaScript);
}

void QuickPrintWidget::disablePrintButtons()
{
    printButton->setEnabled(false);
}

void QuickPrintWidget::disableAllButtons()
{
    openInEditorButton->setEnabled(false);
    printButton->setEnabled(false);
}

void QuickPrintWidget::enablePrintButtons()
{
    printButton->setEnabled(true);
}

void QuickPrintWidget::enableAllButtons()
{
    openInEditorButton->setEnabled(true);
    printButton->setEnabled(true);
}

void QuickPrintWidget::setNumberOfCopies(int copies)
{
    copiesSpinBox->setValue(copies);
}

int QuickPrintWidget::getNumberOfCopies()
{
    return copiesSpinBox->value();
}

void QuickPrintWidget::updateCurrentRangeIndex(int) {}

void QuickPrintWidget::setCurrentPrinterName(const QString& name)
{
    printerNameLabel->setText(name);
}

void QuickPrintWidget::updateQuickPrint(const QImage& image)
{
    preview->setImage(image);
}

void QuickPrintWidget::setCanvasSize(const QSizeF& size)
{
    lengthEdit->setText(QString::number(size.width(), 'f', 2));
    widthEdit->setText(QString::number(size.height(), 'f', 2));
}

QSizeF QuickPrintWidget::getCanvasSize() const
{
    return QSizeF(numberIn(lengthEdit), numberIn(widthEdit));
}

void QuickPrintWidget::resizeSlot()
{
    Q_EMIT resizeSignal(getCanvasSize());
}

void QuickPrintWidget::printSlot()
{
    Q_EMIT widgetPrintSignal(shownLabel, shownLabel, QString());
}
