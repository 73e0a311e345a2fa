// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "world.h"

#include "subjects/subject.h"

namespace Monkey {

void World::fail(const QString& check, const QString& detail)
{
    if (hasFailed())
        return;
    m_failure = check + QStringLiteral(": ") + detail;
    trail.note(QStringLiteral("FAILS ") + m_failure);
}

void World::call(Subject& subject, QWidget& widget, const HostCall& hostCall)
{
    QVariantList arguments;
    const HostCall::Invocation invocation = hostCall.prepare(random, arguments);
    const QString who =
        m_depth > 0 ? QStringLiteral("  host, in its handler: ") : QStringLiteral("host: ");
    trail.note(who + QString::fromLatin1(hostCall.name()) + u'(' + describe(arguments) + u')');
    ++tally.hostCalls;
    subject.aboutToCall(hostCall.name(), arguments);
    const HostCall* const outer = m_underWay;
    m_underWay = &hostCall;
    ++m_depth;
    invocation(widget);
    --m_depth;
    m_underWay = outer;
}

} // namespace Monkey
