// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PANELPROBE_H
#define PANELPROBE_H

#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtWidgets/QLabel>

class PrintWidget;
class QAbstractButton;
class QVBoxLayout;

/** The part of @p panel with this object name, or null when there is none of this kind. */
template <typename Part>
Part* part(const QWidget& panel, const char* name)
{
    return panel.findChild<Part*>(QLatin1String(name));
}

/** The label of @p panel that shows exactly @p text, or null. */
QLabel* labelWithText(const QWidget& panel, const QString& text);

/** The vertical layout of a whole panel. */
QVBoxLayout* mainLayout(const QWidget& panel);

/** Shows @p panel and waits until it is on the screen. */
bool showPanel(QWidget& panel);

/** A user's click on the left end of a button, where a radio button or check box has its indicator.
 */
void clickOn(QAbstractButton* button);

/** The three values of a request. */
struct Request
{
    int start;
    int end;
    QString list;

    friend bool operator==(const Request& a, const Request& b)
    {
        return a.start == b.start && a.end == b.end && a.list == b.list;
    }
};

/** What whatToPrint() makes of @p preset. */
Request whatToPrint(const PrintWidget& panel, Request preset);

/**
 * The first and last record as the panel keeps them. Reads them as those of "All Records", which is
 * checked for a moment without a click, so that nothing is classified anew.
 */
QPair<int, int> keptRange(PrintWidget& panel);

/** A dump of every child: class, name, hidden or not, enabled or not, text, tool tip. */
QStringList stateOf(const QWidget& panel);

/** For failure messages. */
char* toString(const Request& request);

#endif
