// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipageprobe.h"

#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

QLabel* labelWithText(const QWidget& window, const QString& text)
{
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

bool showActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
}

void clickOn(QAbstractButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(12, button->height() / 2));
}

QString expectedSheet(const char* role)
{
    QFile file(QStringLiteral(EXPECTED_SHEETS "/%1.qss").arg(QLatin1String(role)));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                          : QStringLiteral("no such sheet");
}

QList<int> takeNumbers(QSignalSpy& spy)
{
    QList<int> numbers;
    while (!spy.isEmpty())
        numbers.append(spy.takeFirst().constFirst().toInt());
    return numbers;
}

QStringList takeTexts(QSignalSpy& spy)
{
    QStringList texts;
    while (!spy.isEmpty())
        texts.append(spy.takeFirst().constFirst().toString());
    return texts;
}

QList<Request> takeRequests(QSignalSpy& spy)
{
    QList<Request> requests;
    while (!spy.isEmpty()) {
        const QVariantList arguments = spy.takeFirst();
        requests.append(
            {arguments.at(0).toInt(), arguments.at(1).toInt(), arguments.at(2).toString()});
    }
    return requests;
}

char* toString(const Request& request)
{
    return qstrdup(qPrintable(
        QStringLiteral("(%1, %2, \"%3\")").arg(request.start).arg(request.end).arg(request.list)));
}

QStringList stateOf(const QWidget& window)
{
    QStringList lines;
    const QList<QWidget*> children = window.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        lines.append(
            QStringLiteral("%1 '%2' hidden:%3 enabled:%4 text:'%5' checked:%6 tip:'%7'")
                .arg(QString::fromLatin1(child->metaObject()->className()), child->objectName())
                .arg(child->isHidden())
                .arg(child->isEnabled())
                .arg(child->property("text").toString(), child->property("checked").toString(),
                     child->toolTip()));
    }
    return lines;
}
