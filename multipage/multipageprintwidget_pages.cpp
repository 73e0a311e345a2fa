// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// ---- Pages: the current one, all, or a typed list ----

#include <printpanels/multipageprintwidget.h>

#include "foundation/hostkit.h"
#include "foundation/panelparts.h"
#include "multipage/pagerange.h"

#include <QtCore/QPointer>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int rowHeight = 35;

QRadioButton* createRadio(const QString& name, const QString& text)
{
    auto* radio = new QRadioButton(text);
    radio->setObjectName(name);
    radio->setFont(ApplicationFont::getWidgetFont(true));
    radio->setFixedHeight(rowHeight);
    radio->setFocusPolicy(Qt::NoFocus);
    return radio;
}

} // namespace

void MultiPagePrintWidget::createPageRangeFrame()
{
    auto* caption = new QLabel(tr("Page Range:", "Page range label text."));
    caption->setFont(ApplicationFont::getWidgetFont(false));
    caption->setFixedHeight(rowHeight);
    createPageRadios();
    createPageListEdit();

    pageRangeFrame = new QFrame;
    pageRangeFrame->setObjectName(QStringLiteral("pageRangeFrame"));
    pageRangeFrame->setFixedWidth(width() - 10);
    auto* layout = new QVBoxLayout(pageRangeFrame);
    layout->setContentsMargins(0, 0, 0, 2);
    layout->setSpacing(0);
    layout->addWidget(caption);
    layout->addWidget(currentPageRadio);
    layout->addWidget(allPagesRadio);
    layout->addWidget(selectionRadio);
    layout->addWidget(pageListEdit);
    mainLayout->addWidget(pageRangeFrame);

    connect(pageRangeButtonGroup, SIGNAL(buttonClicked(QAbstractButton*)), this,
            SLOT(recordsRadioChangedSlot()));
    connect(pageListEdit, SIGNAL(textChanged(QString)), this, SLOT(listRangeParse()));
}

void MultiPagePrintWidget::createPageRadios()
{
    currentPageRadio = createRadio(QStringLiteral("currentPageRadio"),
                                   tr("Current Page", "Current page radio button text."));
    allPagesRadio = createRadio(QStringLiteral("allPagesRadio"),
                                tr("All Pages", "All pages radio button text."));
    selectionRadio = createRadio(QStringLiteral("selectionRadio"),
                                 tr("Selection:  ", "Select page range radio button text."));
    currentPageRadio->setChecked(true);

    pageRangeButtonGroup = new QButtonGroup(this);
    pageRangeButtonGroup->setObjectName(QStringLiteral("pageRangeButtonGroup"));
    pageRangeButtonGroup->addButton(currentPageRadio, 0);
    pageRangeButtonGroup->addButton(allPagesRadio, 1);
    pageRangeButtonGroup->addButton(selectionRadio, 2);
}

void MultiPagePrintWidget::createPageListEdit()
{
    pageListEdit = new JxLineEdit(nullptr);
    pageListEdit->setObjectName(QStringLiteral("pageListEdit"));
    pageListEdit->setFont(ApplicationFont::getWidgetFont(false));
    PrintPanels::setUpRecordListEdit(
        pageListEdit,
        tr("Enter a list of record numbers and/or ranges, separated by comma.",
           "Tool tip text for record list entry."),
        tr("Example:", "An example of a possible entry"));
}

void MultiPagePrintWidget::setPageInfo(int page, int count, bool pageRangeEnabled)
{
    currentPage = page;
    pageCount = count;
    pageRangeFrame->setEnabled(pageRangeEnabled);
    recordsRadioChangedSlot(true);
}

void MultiPagePrintWidget::updateCurrentRangeIndex(int sequenceCurrent)
{
    currentPage = PrintPanels::numberFromIndex(sequenceCurrent);
    checkRangeUpdate(false);
}

void MultiPagePrintWidget::recordsRadioChangedSlot(bool forceUpdate)
{
    // Unsigned, so that "no radio checked" (-1) enables the edit as the list radio (2) does.
    pageListEdit->setEnabled(static_cast<unsigned>(pageRangeButtonGroup->checkedId()) > 1U);
    checkRangeUpdate(forceUpdate);
}

void MultiPagePrintWidget::checkRangeUpdate(bool forceUpdate)
{
    const int oldStartPage = startPage;
    // A listener that hears of the list's new start page may delete the panel.
    const QPointer<MultiPagePrintWidget> guard(this);
    const bool reported = applyPageChoice();
    if (guard && (forceUpdate || (!reported && startPage != oldStartPage)))
        Q_EMIT startPageChangedSignal(startPage);
}

// Answers whether the start page changed and was reported, which only a typed list does.
bool MultiPagePrintWidget::applyPageChoice()
{
    if (selectionRadio->isChecked())
        return listRangeParse();
    const bool all = allPagesRadio->isChecked();
    startPage = all ? 1 : currentPage;
    endPage = all ? pageCount : currentPage;
    return false;
}

bool MultiPagePrintWidget::listRangeParse()
{
    const int oldStartPage = startPage;
    const auto [start, end] =
        PrintPanels::listedPages(pageListEdit->text(), currentPage, pageCount);
    startPage = start;
    endPage = end;
    if (startPage == oldStartPage)
        return false;
    Q_EMIT startPageChangedSignal(startPage);
    return true;
}
