// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Construction, modules and buttons ----

#include <printpanels/multipageprintwidget.h>

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"

#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int panelWidth = 270;
// Small, so that the panel with every option fits into the dialog's fixed height.
constexpr int sectionSpacing = 2;

} // namespace

MultiPagePrintWidget::MultiPagePrintWidget(bool fitToPage, bool withInterfaceFlag, QWidget* parent)
    : PrintWidgetInterface(withInterfaceFlag, parent), interfaceFlag(withInterfaceFlag)
{
    setObjectName(QStringLiteral("MultiPagePrintWidget"));
    setStyleSheet(StyleSheets::panel());
    setFixedWidth(panelWidth);
    createWidgetLayout(fitToPage);
}

MultiPagePrintWidget::~MultiPagePrintWidget()
{
    blockSignals(true);
}

// Each step adds its section below the one before.
void MultiPagePrintWidget::createWidgetLayout(bool fitToPage)
{
    mainLayout = new QVBoxLayout;
    mainLayout->setContentsMargins(0, 0, 0, 0);
    mainLayout->setSpacing(sectionSpacing);
    setLayout(mainLayout);

    createTitle();
    mainLayout->addWidget(createSeparatorBar());
    createPrinterLayout();
    addSpacer();
    mainLayout->addWidget(createSeparatorBar());
    createPageRangeFrame();
    createCopiesFrame();
    addSpacer();
    mainLayout->addWidget(createSeparatorBar());
    addSpacer();
    createOptionsLayout(fitToPage);
}

void MultiPagePrintWidget::createTitle()
{
    auto* title = new QLabel(tr("PRINT SETTINGS", "Title for print settings."));
    title->setFont(ApplicationFont::getWidgetFont(true));
    mainLayout->addWidget(title);
}

void MultiPagePrintWidget::addSpacer()
{
    mainLayout->addItem(new QSpacerItem(1, 1, QSizePolicy::Minimum, QSizePolicy::Minimum));
}

void MultiPagePrintWidget::setModule(const JxModuleInfo::JxModuleTypes&) {}

void MultiPagePrintWidget::disablePrintButtons()
{
    printButton->setEnabled(false);
}

void MultiPagePrintWidget::disableAllButtons()
{
    disablePrintButtons();
}

void MultiPagePrintWidget::enablePrintButtons()
{
    printButton->setEnabled(true);
}

void MultiPagePrintWidget::enableAllButtons()
{
    enablePrintButtons();
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
