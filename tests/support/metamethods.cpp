// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/metamethods.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaObject>

namespace {

QLatin1String kindName(QMetaMethod::MethodType kind)
{
    switch (kind) {
    case QMetaMethod::Signal:
        return QLatin1String("signal");
    case QMetaMethod::Slot:
        return QLatin1String("slot");
    case QMetaMethod::Constructor:
        return QLatin1String("constructor");
    case QMetaMethod::Method:
        break;
    }
    return QLatin1String("method");
}

QLatin1String accessName(QMetaMethod::Access access)
{
    switch (access) {
    case QMetaMethod::Private:
        return QLatin1String("private");
    case QMetaMethod::Protected:
        return QLatin1String("protected");
    case QMetaMethod::Public:
        break;
    }
    return QLatin1String("public");
}

QString parameters(const QMetaMethod& method)
{
    const QByteArrayList types = method.parameterTypes();
    const QByteArrayList names = method.parameterNames();
    QStringList texts;
    for (qsizetype i = 0; i < types.size(); ++i) {
        QString text = QString::fromLatin1(types.at(i));
        if (!names.at(i).isEmpty())
            text += QLatin1Char(' ') + QString::fromLatin1(names.at(i));
        texts.append(text);
    }
    return texts.join(QLatin1String(", "));
}

} // namespace

QStringList ownMethods(const QMetaObject& metaObject)
{
    QStringList lines;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        lines.append(QStringLiteral("%1 %2 %3 %4(%5)")
                         .arg(kindName(method.methodType()), accessName(method.access()),
                              QString::fromLatin1(method.typeName()),
                              QString::fromLatin1(method.name()), parameters(method)));
    }
    return lines;
}
