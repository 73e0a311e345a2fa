// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_CONTROLREFUGE_H
#define PRINTPANELS_CONTROLREFUGE_H

#include <QtCore/QList>
#include <QtCore/QPointer>

class QObject;
class QWidget;

namespace PrintPanels {

// Lets a host delete a panel, or a parent of it, in a handler of one of the panel's own signals.
//
// A combo box, an edit or a check box goes on with itself when its signal returns, so it must not
// die with a panel that dies within that signal. The panel's destructor, in its body, where the
// children are still there, puts its controls into a hidden refuge that is deleted when control is
// back in the event loop. All of them, not only the sender: a mouse press that takes the focus from
// one control goes on with the next.

/** What a panel consists of so far: its direct child widgets, without what a host adds later. */
QList<QPointer<QWidget>> controlsOf(const QWidget* panel);

/**
 * To be called first in the destructor of a panel, which then emits nothing any more: while Qt
 * takes a window apart its edits lose the focus, and a handler would call a panel that is half
 * gone.
 *
 * With a @p sender the @p controls fall silent, too, leave the panel and outlive it.
 * @param sender the panel's own sender(): whose signal the panel hears right now, or null
 */
void leaveSilently(QWidget* panel, const QObject* sender, const QList<QPointer<QWidget>>& controls);

} // namespace PrintPanels

#endif
