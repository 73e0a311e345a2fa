// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipage/pagessection.h"

#include "foundation/hostkit.h"
#include "foundation/onebased.h"
#include "foundation/widgets/caption.h"
#include "foundation/widgets/fittedfont.h"
#include "foundation/widgets/metrics.h"
#include "foundation/widgets/optionradio.h"
#include "foundation/widgets/recordlistedit.h"
#include "multipage/pagerange.h"

#include <printpanels/multipageprintwidget.h>

#include <QtCore/QPointer>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

namespace PrintPanels::MultiPage {

namespace {

QRadioButton* createPageRadio(const QString& name, const QString& text)
{
    QRadioButton* radio = createOptionRadio(name, text);
    radio->setFixedHeight(rowHeight);
    return radio;
}

} // namespace

PagesSection::PagesSection(MultiPagePrintWidget* panel) : q(panel) {}

QFrame* PagesSection::createPageRangeFrame()
{
    QLabel* caption = createCaption(tr("Page Range:", "Page range label text."));
    caption->setFont(ApplicationFont::getWidgetFont(false));
    caption->setFixedHeight(rowHeight);
    createPageRadios();
    pageListEdit = createPageListEdit();
    pageListEdit->setAccessibleName(
        tr("List of Pages", "Name of the page list entry for screen readers."));

    pageRangeFrame = new QFrame;
    pageRangeFrame->setObjectName(QStringLiteral("pageRangeFrame"));
    pageRangeFrame->setFixedWidth(q->width() - 10);
    for (QWidget* control :
         QWidgetList{caption, currentPageRadio, allPagesRadio, selectionRadio, pageListEdit})
        fitText(control, pageRangeFrame->width());
    auto* layout = new QVBoxLayout(pageRangeFrame);
    layout->setContentsMargins(0, 0, 0, 2);
    layout->setSpacing(0);
    layout->addWidget(caption);
    layout->addWidget(currentPageRadio);
    layout->addWidget(allPagesRadio);
    layout->addWidget(selectionRadio);
    layout->addWidget(pageListEdit);

    QObject::connect(pageRangeButtonGroup, SIGNAL(buttonClicked(QAbstractButton*)), q,
                     SLOT(recordsRadioChangedSlot()));
    QObject::connect(pageListEdit, SIGNAL(textChanged(QString)), q, SLOT(listRangeParse()));
    return pageRangeFrame;
}

void PagesSection::createPageRadios()
{
    currentPageRadio = createPageRadio(QStringLiteral("currentPageRadio"),
                                       tr("Current Page", "Current page radio button text."));
    allPagesRadio = createPageRadio(QStringLiteral("allPagesRadio"),
                                    tr("All Pages", "All pages radio button text."));
    selectionRadio = createPageRadio(QStringLiteral("selectionRadio"),
                                     tr("Selection:  ", "Select page range radio button text."));
    currentPageRadio->setChecked(true);

    pageRangeButtonGroup = new QButtonGroup(q);
    pageRangeButtonGroup->setObjectName(QStringLiteral("pageRangeButtonGroup"));
    pageRangeButtonGroup->addButton(currentPageRadio, CurrentId);
    pageRangeButtonGroup->addButton(allPagesRadio, AllId);
    pageRangeButtonGroup->addButton(selectionRadio, ListId);
}

JxLineEdit* PagesSection::createPageListEdit() const
{
    return createRecordListEdit(
        QStringLiteral("pageListEdit"), ApplicationFont::getWidgetFont(false),
        tr("Enter a list of record numbers and/or ranges, separated by comma.",
           "Tool tip text for record list entry."),
        tr("Example:", "An example of a possible entry"));
}

void PagesSection::setPageInfo(int page, int count, bool pageRangeEnabled)
{
    currentPage = page;
    pageCount = count;
    pageRangeFrame->setEnabled(pageRangeEnabled);
    recordsRadioChangedSlot(true);
}

void PagesSection::updateCurrentRangeIndex(int sequenceCurrent)
{
    currentPage = oneBased(sequenceCurrent);
    checkRangeUpdate(false);
}

void PagesSection::recordsRadioChangedSlot(bool forceUpdate)
{
    pageListEdit->setEnabled(enablesListEdit(pageRangeButtonGroup));
    checkRangeUpdate(forceUpdate);
}

void PagesSection::checkRangeUpdate(bool forceUpdate)
{
    const int oldStartPage = startPage;
    // The handler of a click on a choice may delete the panel when the list reports its start page.
    const QPointer<MultiPagePrintWidget> panel(q);
    const bool reported = applyPageChoice();
    if (panel && (forceUpdate || (!reported && startPage != oldStartPage)))
        Q_EMIT q->startPageChangedSignal(startPage);
}

// Returns whether the start page changed and was reported, which only a typed list does.
bool PagesSection::applyPageChoice()
{
    if (selectionRadio->isChecked())
        return listRangeParse();
    const bool all = allPagesRadio->isChecked();
    startPage = all ? 1 : currentPage;
    endPage = all ? pageCount : currentPage;
    return false;
}

bool PagesSection::listRangeParse()
{
    const int oldStartPage = startPage;
    const auto [start, end] = listedPages(pageListEdit->text(), currentPage, pageCount);
    startPage = start;
    endPage = end;
    if (startPage == oldStartPage)
        return false;
    Q_EMIT q->startPageChangedSignal(startPage);
    return true;
}

void PagesSection::emitRequest()
{
    const bool selection = selectionRadio->isChecked();
    const QString list = selection ? pageListEdit->text() : QString();
    if (!list.isEmpty()) {
        Q_EMIT q->widgetPrintSignal(0, 0, list);
    } else if (selection) {
        Q_EMIT q->widgetPrintSignal(currentPage, currentPage, QString());
    } else {
        applyPageChoice();
        Q_EMIT q->widgetPrintSignal(startPage, endPage, QString());
    }
}

} // namespace PrintPanels::MultiPage
