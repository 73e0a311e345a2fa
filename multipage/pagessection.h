// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_MULTIPAGE_PAGESSECTION_H
#define PRINTPANELS_MULTIPAGE_PAGESSECTION_H

#include <QtCore/QCoreApplication>

class JxLineEdit;
class MultiPagePrintWidget;
class QButtonGroup;
class QFrame;
class QRadioButton;

namespace PrintPanels::MultiPage {

/** The pages to print: the current one, all, or a typed list. */
class PagesSection
{
    Q_DECLARE_TR_FUNCTIONS(MultiPagePrintWidget)
    Q_DISABLE_COPY_MOVE(PagesSection)

public:
    explicit PagesSection(MultiPagePrintWidget* panel);

    /** Builds the section; the caller adds it to a layout. */
    QFrame* createPageRangeFrame();

    void setPageInfo(int page, int count, bool pageRangeEnabled);
    void updateCurrentRangeIndex(int sequenceCurrent);
    void recordsRadioChangedSlot(bool forceUpdate);
    void checkRangeUpdate(bool forceUpdate);
    bool listRangeParse();
    /** Asks the host to print the choice. */
    void emitRequest();

private:
    void createPageRadios();
    JxLineEdit* createPageListEdit() const;
    bool applyPageChoice();

    MultiPagePrintWidget* const q;
    int startPage = 1;
    int endPage = 1;
    int pageCount = 99999;
    int currentPage = 1;
    QFrame* pageRangeFrame = nullptr;
    QRadioButton* currentPageRadio = nullptr;
    QRadioButton* allPagesRadio = nullptr;
    QRadioButton* selectionRadio = nullptr;
    QButtonGroup* pageRangeButtonGroup = nullptr;
    JxLineEdit* pageListEdit = nullptr;
};

} // namespace PrintPanels::MultiPage

#endif
