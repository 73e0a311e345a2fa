// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_OPTIONRADIO_H
#define PRINTPANELS_OPTIONRADIO_H

class QButtonGroup;
class QRadioButton;
class QString;

namespace PrintPanels {

/** The choices of records or pages, by their ids in the button group. */
enum SelectionId { CurrentId, AllId, ListId };

/** One of the choices of records or pages. The panel sets its height. */
QRadioButton* createOptionRadio(const QString& name, const QString& text);

/** Whether the checked choice of @p group enables the list edit: the list, or no choice at all. */
bool enablesListEdit(const QButtonGroup* group);

} // namespace PrintPanels

#endif
