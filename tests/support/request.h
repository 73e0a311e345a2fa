// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef REQUEST_H
#define REQUEST_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QSignalSpy;

/** The three values of a print request. */
struct Request
{
    int start;
    int end;
    QString list;

    /** The request that a signal with these arguments makes. */
    static Request of(const QVariantList& arguments);

    friend bool operator==(const Request& a, const Request& b)
    {
        return a.start == b.start && a.end == b.end && a.list == b.list;
    }
};

/** For failure messages. */
char* toString(const Request& request);

/** The requests that @p spy recorded; takes them out of the spy. */
QList<Request> takeRequests(QSignalSpy& spy);

/** The first argument of every emission that @p spy recorded; takes them out of the spy. */
QList<int> takeNumbers(QSignalSpy& spy);

/** The same as texts. */
QStringList takeTexts(QSignalSpy& spy);

#endif
