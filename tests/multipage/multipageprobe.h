// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MULTIPAGEPROBE_H
#define MULTIPAGEPROBE_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QAbstractButton;
class QLabel;
class QSignalSpy;

/** The part of @p window with this object name, or null when there is none of this kind. */
template <typename Part>
Part* part(const QWidget& window, const char* name)
{
    return window.findChild<Part*>(QLatin1String(name));
}

/** The label of @p window that shows exactly @p text, or null. */
QLabel* labelWithText(const QWidget& window, const QString& text);

/** Shows @p window, activates it and waits until it has the keyboard. */
bool showActive(QWidget& window);

/** A user's click on the left end of a button, where a radio button or check box has its indicator.
 */
void clickOn(QAbstractButton* button);

/** The text of a sheet by its role. */
QString expectedSheet(const char* role);

/** The first argument of every emission that @p spy saw, as numbers; takes them out of the spy. */
QList<int> takeNumbers(QSignalSpy& spy);

/** The same as texts. */
QStringList takeTexts(QSignalSpy& spy);

/** A print request. */
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

/** The requests that @p spy saw; takes them out of the spy. */
QList<Request> takeRequests(QSignalSpy& spy);

/** For failure messages. */
char* toString(const Request& request);

/** Text, visibility and state of every named child, to see whether anything changed. */
QStringList stateOf(const QWidget& window);

#endif
