// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/request.h"

#include <QtTest/QSignalSpy>

namespace {

/** What @p convert makes of the arguments of every emission. */
template <typename Value>
QList<Value> take(QSignalSpy& spy, Value (*convert)(const QVariantList&))
{
    QList<Value> values;
    while (!spy.isEmpty())
        values.append(convert(spy.takeFirst()));
    return values;
}

} // namespace

Request Request::of(const QVariantList& arguments)
{
    return {arguments.at(0).toInt(), arguments.at(1).toInt(), arguments.at(2).toString()};
}

char* toString(const Request& request)
{
    return qstrdup(qPrintable(
        QStringLiteral("(%1, %2, \"%3\")").arg(request.start).arg(request.end).arg(request.list)));
}

QList<Request> takeRequests(QSignalSpy& spy)
{
    return take<Request>(spy, Request::of);
}

QList<int> takeNumbers(QSignalSpy& spy)
{
    return take<int>(spy, [](const QVariantList& arguments) { return arguments.at(0).toInt(); });
}

QStringList takeTexts(QSignalSpy& spy)
{
    return take<QString>(spy,
                         [](const QVariantList& arguments) { return arguments.at(0).toString(); });
}
