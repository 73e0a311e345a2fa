// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_RECORDLISTEDIT_H
#define PRINTPANELS_RECORDLISTEDIT_H

class JxLineEdit;
class QFont;
class QString;

namespace PrintPanels {

/**
 * The edit of a record or page list: accepts valid lists only, shows an example and starts
 * disabled. The panel translates the texts in its own context.
 * @param toolTip what to enter; the example follows on a line of its own
 * @param exampleLabel text in front of the example
 */
JxLineEdit* createRecordListEdit(const QString& name, const QFont& font, const QString& toolTip,
                                 const QString& exampleLabel);

} // namespace PrintPanels

#endif
