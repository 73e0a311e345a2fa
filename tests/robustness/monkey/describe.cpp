// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostilevalues.h"

#include <QtCore/QDebug>

namespace Monkey {

namespace {

QString quoted(const QString& text)
{
    constexpr qsizetype longest = 40;
    QString answer;
    QDebug(&answer).nospace() << text.left(longest);
    return text.size() > longest ? answer + QStringLiteral("... %1 in all").arg(text.size())
                                 : answer;
}

QString listed(const QStringList& texts)
{
    constexpr qsizetype most = 4;
    QStringList shown;
    for (const QString& text : texts.mid(0, most))
        shown.append(quoted(text));
    const QString answer = shown.join(QLatin1String(", "));
    return texts.size() > most ? QStringLiteral("{%1... %2 in all}").arg(answer).arg(texts.size())
                               : QStringLiteral("{%1}").arg(answer);
}

} // namespace

QString describe(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return quoted(value.toString());
    case QMetaType::QStringList:
        return listed(value.toStringList());
    case QMetaType::QImage: {
        const auto image = value.value<QImage>();
        return QStringLiteral("image %1x%2 of format %3, ratio %4")
            .arg(image.width())
            .arg(image.height())
            .arg(image.format())
            .arg(image.devicePixelRatio());
    }
    case QMetaType::QSizeF:
        return QStringLiteral("%1 x %2").arg(value.toSizeF().width()).arg(value.toSizeF().height());
    case QMetaType::QSize:
        return QStringLiteral("%1 x %2").arg(value.toSize().width()).arg(value.toSize().height());
    case QMetaType::UChar:
        return QString::number(value.toInt());
    default:
        break;
    }
    if (value.metaType().flags().testFlag(QMetaType::PointerToQObject))
        return value.value<QObject*>() ? QStringLiteral("an object") : QStringLiteral("null");
    return value.toString();
}

QString describe(const QVariantList& values)
{
    QStringList texts;
    for (const QVariant& value : values)
        texts.append(describe(value));
    return texts.join(QLatin1String(", "));
}

} // namespace Monkey
