// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "panelprobe.h"

#include <printpanels/printwidget.h>

#include <QtTest/QTest>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

QLabel* labelWithText(const QWidget& panel, const QString& text)
{
    const QList<QLabel*> labels = panel.findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

QVBoxLayout* mainLayout(const QWidget& panel)
{
    return qobject_cast<QVBoxLayout*>(panel.layout());
}

bool showPanel(QWidget& panel)
{
    panel.show();
    return QTest::qWaitForWindowExposed(&panel);
}

void clickOn(QAbstractButton* button)
{
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(12, button->height() / 2));
}

Request whatToPrint(const PrintWidget& panel, Request preset)
{
    panel.whatToPrint(preset.start, preset.end, preset.list);
    return preset;
}

QPair<int, int> keptRange(PrintWidget& panel)
{
    QRadioButton* checked = nullptr;
    for (const char* name : {"currentRecordRadio", "allRecordsRadio", "recordListRadio"}) {
        auto* radio = part<QRadioButton>(panel, name);
        if (radio->isChecked())
            checked = radio;
    }
    part<QRadioButton>(panel, "allRecordsRadio")->setChecked(true);
    const Request all = whatToPrint(panel, {-7, -7, QString()});
    if (checked)
        checked->setChecked(true);
    return {all.start, all.end};
}

QStringList stateOf(const QWidget& panel)
{
    QStringList lines;
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
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

char* toString(const Request& request)
{
    return qstrdup(qPrintable(
        QStringLiteral("(%1, %2, \"%3\")").arg(request.start).arg(request.end).arg(request.list)));
}
