// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Construction, modules and buttons ----

#include <printpanels/printwidget.h>

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

PrintWidget::PrintWidget(bool withPrintToFile, QWidget* parent)
    : PrintWidgetInterface(withPrintToFile, parent),
      printToFile(withPrintToFile),
      onlineText(tr("Online", "Printer status")),
      offlineText(tr("Offline", "Printer status")),
      remoteText(tr("Remote", "Printer status")),
      unavailableText(tr(", Unavailable", "Printer status"))
{
    setObjectName(QStringLiteral("PrintWidget"));
    setStyleSheet(StyleSheets::printSettingsPanel());
    createWidgetLayout();
}

PrintWidget::~PrintWidget()
{
    blockSignals(true);
}

// Each step adds its section below the one before.
void PrintWidget::createWidgetLayout()
{
    mainLayout = new QVBoxLayout;
    setLayout(mainLayout);

    createTitle();
    createAmmoniaFrame();
    createPrinterSelectorLayout();
    createCopyCountLayout();
    createSupplyInfoFrame();
    createRecordsRangeLayout();
    createUserBackgroundCheck();
    createBottomSeparator();
    if (printToFile)
        createPrintToFileLayout();
    createPrintButtonsLayout();
}

void PrintWidget::createTitle()
{
    auto* title = new QLabel(tr("PRINT SETTINGS", "Title for print settings."));
    title->setFont(ApplicationFont::getWidgetFont(true));
    mainLayout->addWidget(title);
    mainLayout->addItem(new QSpacerItem(15, 15, QSizePolicy::Minimum, QSizePolicy::Minimum));
    mainLayout->addWidget(createSeparatorBar());
}

void PrintWidget::createUserBackgroundCheck()
{
    userBackgroundCheck = new QCheckBox(
        tr("Print User Background", "Checkbox to print or not the user background layer"));
    userBackgroundCheck->setObjectName(QStringLiteral("userBackgroundCheck"));
    userBackgroundCheck->setFont(ApplicationFont::getWidgetFont(true));
    userBackgroundCheck->hide();
    mainLayout->addWidget(userBackgroundCheck);
}

// The bar is the only item that stretches. A line has a fixed height, so its cell takes the extra
// height and the line stays at the cell's bottom, next to the rows below it; nothing else grows.
void PrintWidget::createBottomSeparator()
{
    constexpr int onlyStretch = 11;
    mainLayout->addItem(new QSpacerItem(15, 7, QSizePolicy::Minimum, QSizePolicy::Minimum));
    bottomSeparator = createSeparatorBar();
    bottomSeparator->setObjectName(QStringLiteral("bottomSeparator"));
    mainLayout->addWidget(bottomSeparator, onlyStretch, Qt::AlignBottom);
    mainLayout->addItem(new QSpacerItem(15, 15, QSizePolicy::Minimum, QSizePolicy::Minimum));
}

void PrintWidget::setModule(const JxModuleInfo::JxModuleTypes& module)
{
    if (module != JxModuleInfo::PipeMarking)
        return;
    recordsFrame->hide();
    createAmmoniaLayout();
}

void PrintWidget::disablePrintButtons()
{
    previewButton->setEnabled(false);
    printButton->setEnabled(false);
}

void PrintWidget::disableAllButtons()
{
    disablePrintButtons();
    preferencesButton->setEnabled(false);
}

void PrintWidget::enablePrintButtons()
{
    previewButton->setEnabled(true);
    printButton->setEnabled(true);
}

void PrintWidget::enableAllButtons()
{
    enablePrintButtons();
    preferencesButton->setEnabled(true);
}

void PrintWidget::setShowUserBackground(bool show)
{
    userBackgroundCheck->setVisible(show);
}

void PrintWidget::setPrintUserBackground(bool print)
{
    userBackgroundCheck->setChecked(print);
}

bool PrintWidget::getPrintUserBackground() const
{
    return userBackgroundCheck->isChecked();
}

void PrintWidget::showEvent(QShowEvent* event)
{
    PrintWidgetInterface::showEvent(event);
    Q_EMIT printWidgetShowSignal();
}
