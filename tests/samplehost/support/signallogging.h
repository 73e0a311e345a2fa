// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SIGNALLOGGING_H
#define SIGNALLOGGING_H

#include "samplehost/window/eventlog.h"

#include <QtCore/QMetaMethod>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

/**
 * Emits every signal that the classes of @p panel add to QWidget, and checks that @p log, which
 * watches it under the name "A", gets a line for each. A signal that is added later must not be
 * forgotten.
 */
inline void checkThatEverySignalIsLogged(QWidget& panel, SampleHost::EventLog& log, int expected)
{
    const QMetaObject* metaObject = panel.metaObject();
    int signalCount = 0;
    for (int i = QWidget::staticMetaObject.methodCount(); i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        if (method.methodType() != QMetaMethod::Signal) {
            continue;
        }
        ++signalCount;
        QList<QVariant> values;
        QGenericArgument arguments[3];
        for (int a = 0; a < method.parameterCount(); ++a) {
            values.append(QVariant(method.parameterMetaType(a)));
        }
        for (int a = 0; a < method.parameterCount(); ++a) {
            arguments[a] = QGenericArgument(method.parameterMetaType(a).name(), values[a].data());
        }
        log.clear();
        QVERIFY2(
            method.invoke(&panel, Qt::DirectConnection, arguments[0], arguments[1], arguments[2]),
            method.methodSignature().constData());
        QCOMPARE(log.lines().size(), qsizetype(1));
        QVERIFY2(log.lines().at(0).startsWith(
                     QStringLiteral("A: ") + QString::fromLatin1(method.name()) + QLatin1Char('(')),
                 method.methodSignature().constData());
    }
    QCOMPARE(signalCount, expected);
}

#endif
