// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_MULTIPAGE_COPIESSECTION_H
#define PRINTPANELS_MULTIPAGE_COPIESSECTION_H

#include <QtCore/QCoreApplication>

class JxLineEdit;
class MultiPagePrintWidget;
class QBoxLayout;
class QFrame;
class QPushButton;

namespace PrintPanels::MultiPage {

/** The number of copies with its step buttons. */
class CopiesSection
{
    Q_DECLARE_TR_FUNCTIONS(MultiPagePrintWidget)
    Q_DISABLE_COPY_MOVE(CopiesSection)

public:
    explicit CopiesSection(MultiPagePrintWidget* panel);

    /** Builds the section; the caller adds it to a layout. */
    QFrame* createCopiesFrame();

    void setNumberOfCopies(int copies);
    int getNumberOfCopies() const;
    void decreaseCopyCount();
    void increaseCopyCount();

private:
    QBoxLayout* createCopiesRow(int width);

    MultiPagePrintWidget* const q;
    JxLineEdit* copiesEdit = nullptr;
    QPushButton* plusButton = nullptr;
    QPushButton* minusButton = nullptr;
};

} // namespace PrintPanels::MultiPage

#endif
