// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PAGECONTROLS_H
#define SAMPLEHOST_PAGECONTROLS_H

class QAbstractButton;
class QComboBox;
class QLineEdit;

namespace SampleHost {

/** The controls of a page that the window's actions operate; null where the page has none. */
struct PageControls
{
    QAbstractButton* print = nullptr;
    QAbstractButton* preview = nullptr;
    /** What is printed: the current record or page, all, or those in a list. */
    QAbstractButton* current = nullptr;
    QAbstractButton* all = nullptr;
    QAbstractButton* list = nullptr;
    QLineEdit* listEdit = nullptr;
    QComboBox* printers = nullptr;
};

} // namespace SampleHost

#endif
