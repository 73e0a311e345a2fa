// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_MULTIPAGE_OPTIONSSECTION_H
#define PRINTPANELS_MULTIPAGE_OPTIONSSECTION_H

#include <QtCore/QCoreApplication>

class MultiPagePrintWidget;
class QCheckBox;
class QGridLayout;
class QPushButton;

namespace PrintPanels::MultiPage {

/** Form fill, fit to page, orientation, and the Print button. */
class OptionsSection
{
    Q_DECLARE_TR_FUNCTIONS(MultiPagePrintWidget)
    Q_DISABLE_COPY_MOVE(OptionsSection)

public:
    explicit OptionsSection(MultiPagePrintWidget* panel);

    /** Builds the orientation check box, which the caller puts below the printer selector. */
    QCheckBox* createOrientationCheck();
    /** Builds the other options and the Print button; the caller adds them to a layout. */
    QGridLayout* createOptionsLayout(bool fitToPage);

    void setPrintEnabled(bool enabled);
    void setFormFillOption(bool visible, bool checked);
    void set180OrientationVisible(bool visible);
    void set180OrientationCheck(bool orientation180);

private:
    MultiPagePrintWidget* const q;
    QCheckBox* formFillCheck = nullptr;
    QCheckBox* fitToPageCheck = nullptr;
    QCheckBox* orientationCheck = nullptr;
    QPushButton* printButton = nullptr;
};

} // namespace PrintPanels::MultiPage

#endif
