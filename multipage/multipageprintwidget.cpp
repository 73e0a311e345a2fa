// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <printpanels/multipageprintwidget.h>

#include "foundation/stylesheets.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/fittedfont.h"
#include "foundation/widgets/palettekeeper.h"
#include "foundation/widgets/panelfocus.h"
#include "multipage/multipageprintwidget_p.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace PrintPanels {

MultiPagePrintWidgetPrivate::MultiPagePrintWidgetPrivate(MultiPagePrintWidget* panel,
                                                         bool withInterfaceFlag)
    : printer(panel),
      pages(panel),
      copies(panel),
      options(panel),
      q(panel),
      interfaceFlag(withInterfaceFlag)
{
}

// Each step adds its section below the one before.
void MultiPagePrintWidgetPrivate::createWidgetLayout(bool fitToPage)
{
    // Small, so that the panel with every option fits into the dialog's fixed height.
    constexpr int sectionSpacing = 2;
    mainLayout = new QVBoxLayout;
    mainLayout->setContentsMargins(0, 0, 0, 0);
    mainLayout->setSpacing(sectionSpacing);
    q->setLayout(mainLayout);

    createTitle();
    mainLayout->addWidget(q->createSeparatorBar());
    createPrinterSection();
    addSpacer();
    mainLayout->addWidget(q->createSeparatorBar());
    mainLayout->addWidget(pages.createPageRangeFrame());
    mainLayout->addWidget(copies.createCopiesFrame());
    addSpacer();
    mainLayout->addWidget(q->createSeparatorBar());
    addSpacer();
    mainLayout->addLayout(options.createOptionsLayout(fitToPage));
    setUpFocus(q);
}

void MultiPagePrintWidgetPrivate::createTitle()
{
    QLabel* title = createCaption(tr("PRINT SETTINGS", "Title for print settings."));
    fitText(title, q->width());
    mainLayout->addWidget(title);
}

// The orientation stands below the printer, because it is about the paper in it.
void MultiPagePrintWidgetPrivate::createPrinterSection()
{
    QLabel* caption = printer.createPrinterCaption();
    mainLayout->addWidget(caption);
    QGridLayout* grid = printer.createPrinterLayout(caption);
    grid->addWidget(options.createOrientationCheck(), 2, 0, 3, 1, Qt::AlignLeft);
    mainLayout->addLayout(grid);
}

void MultiPagePrintWidgetPrivate::addSpacer()
{
    mainLayout->addItem(new QSpacerItem(1, 1, QSizePolicy::Minimum, QSizePolicy::Minimum));
}

} // namespace PrintPanels

MultiPagePrintWidget::MultiPagePrintWidget(bool fitToPage, bool interfaceFlag, QWidget* parent)
    : PrintWidgetInterface(interfaceFlag, parent),
      d(std::make_unique<PrintPanels::MultiPagePrintWidgetPrivate>(this, interfaceFlag))
{
    constexpr int panelWidth = 270;
    setObjectName(QStringLiteral("MultiPagePrintWidget"));
    setStyleSheet(StyleSheets::panel());
    new PrintPanels::PaletteKeeper(this);
    setFixedWidth(panelWidth);
    d->createWidgetLayout(fitToPage);
}

// Children emit while they are destroyed, such as an edit that loses the focus. A handler would
// then call a panel that is partly destroyed.
MultiPagePrintWidget::~MultiPagePrintWidget()
{
    blockSignals(true);
}

void MultiPagePrintWidget::setModule(const JxModuleInfo::JxModuleTypes&) {}

void MultiPagePrintWidget::disablePrintButtons()
{
    d->options.setPrintEnabled(false);
}

void MultiPagePrintWidget::disableAllButtons()
{
    disablePrintButtons();
}

void MultiPagePrintWidget::enablePrintButtons()
{
    d->options.setPrintEnabled(true);
}

void MultiPagePrintWidget::enableAllButtons()
{
    enablePrintButtons();
}

void MultiPagePrintWidget::updateListOfPrinters(const QStringList& printers, int currentIndex)
{
    d->printer.updateListOfPrinters(printers, currentIndex);
}

QString MultiPagePrintWidget::getSelectedPrinter() const
{
    return d->printer.getSelectedPrinter();
}

void MultiPagePrintWidget::setSelectedPrinter(const QString& name)
{
    d->printer.setSelectedPrinter(name);
}

void MultiPagePrintWidget::setPageInfo(int currentPage, int pageCount, bool pageRangeEnabled)
{
    d->pages.setPageInfo(currentPage, pageCount, pageRangeEnabled);
}

void MultiPagePrintWidget::setNumberOfCopies(int copies)
{
    d->copies.setNumberOfCopies(copies);
}

int MultiPagePrintWidget::getNumberOfCopies()
{
    return d->copies.getNumberOfCopies();
}

void MultiPagePrintWidget::setFormFillOption(bool visible, bool checked)
{
    d->options.setFormFillOption(visible, checked);
}

void MultiPagePrintWidget::set180OrientationVisible(bool visible)
{
    d->options.set180OrientationVisible(visible);
}

void MultiPagePrintWidget::updateCurrentRangeIndex(int sequenceCurrent)
{
    d->pages.updateCurrentRangeIndex(sequenceCurrent);
}

void MultiPagePrintWidget::set180OrientationCheck(bool orientation180)
{
    d->options.set180OrientationCheck(orientation180);
}

void MultiPagePrintWidget::printSlot()
{
    d->pages.emitRequest();
}

void MultiPagePrintWidget::currentPrinterSelectionChangedSlot(int index)
{
    d->printer.currentPrinterSelectionChangedSlot(index);
}

void MultiPagePrintWidget::recordsRadioChangedSlot(bool forceUpdate)
{
    d->pages.recordsRadioChangedSlot(forceUpdate);
}

void MultiPagePrintWidget::checkRangeUpdate(bool forceUpdate)
{
    d->pages.checkRangeUpdate(forceUpdate);
}

bool MultiPagePrintWidget::listRangeParse()
{
    return d->pages.listRangeParse();
}

void MultiPagePrintWidget::decreaseCopyCount()
{
    d->copies.decreaseCopyCount();
}

void MultiPagePrintWidget::increaseCopyCount()
{
    d->copies.increaseCopyCount();
}

void MultiPagePrintWidget::focusOutEvent(QFocusEvent* event)
{
    PrintWidgetInterface::focusOutEvent(event);
    Q_EMIT focusLost();
}

void MultiPagePrintWidget::showEvent(QShowEvent* event)
{
    PrintWidgetInterface::showEvent(event);
    Q_EMIT printWidgetShowSignal();
}
