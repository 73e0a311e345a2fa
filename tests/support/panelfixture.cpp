// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/panelfixture.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>

#include <algorithm>

QLabel* labelWithText(const QWidget& window, const QString& text)
{
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

bool showPanel(QWidget& panel)
{
    panel.show();
    return QTest::qWaitForWindowExposed(&panel);
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

QString selectedColor(const QWidget* menu)
{
    const QList<QAbstractButton*> entries = menu->findChildren<QAbstractButton*>();
    for (const QAbstractButton* entry : entries) {
        if (entry->isChecked())
            return entry->objectName();
    }
    return QString();
}

QList<QPointer<QObject>> partsOf(QWidget* widget)
{
    QList<QPointer<QObject>> parts = {widget};
    const QObjectList children = widget->findChildren<QObject*>();
    for (QObject* child : children)
        parts.append(child);
    return parts;
}

bool areGone(const QList<QPointer<QObject>>& parts)
{
    return std::all_of(parts.begin(), parts.end(),
                       [](const QPointer<QObject>& part) { return part.isNull(); });
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
