// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "supplyprobe.h"

#include <colormenu.h>
#include <expandingtabbar.h>
#include <printpanels/printwidget.h>

#include <QtWidgets/QAbstractButton>

const QString ribbonGlyph = QStringLiteral("!");
const QString blankGlyph = QString(QChar(0xE92A));
const QString supplyGlyph = QString(QChar(0xE917));

ExpandingTabBar* colorTabs(const PrintWidget& panel)
{
    return part<ExpandingTabBar>(panel, "colorTabBar");
}

QStackedWidget* colorStack(const PrintWidget& panel)
{
    return part<QStackedWidget>(panel, "colorStack");
}

QLineEdit* widthEdit(const PrintWidget& panel)
{
    return part<QLineEdit>(panel, "supplyWidthEdit");
}

ColorMenu* colorMenu(const PrintWidget& panel, const char* name)
{
    return part<ColorMenu>(panel, name);
}

QString tab(const PrintWidget& panel, int index)
{
    const ExpandingTabBar* bar = colorTabs(panel);
    return bar->tabText(index) + u'|' + bar->tabColorRect(index) + u'|' + bar->tabToolTip(index);
}

QStringList tabs(const PrintWidget& panel)
{
    QStringList lines;
    for (int i = 0; i < colorTabs(panel)->count(); ++i)
        lines.append(tab(panel, i));
    return lines;
}

QString tabOf(const QString& glyph, const char* color, const char* toolTip)
{
    return glyph + u'|' + QString::fromLatin1(color) + u'|' + QString::fromLatin1(toolTip);
}

QStringList shownColors(const ColorMenu* menu)
{
    QStringList codes;
    const QList<QAbstractButton*> entries = menu->findChildren<QAbstractButton*>();
    for (const QAbstractButton* entry : entries) {
        if (!entry->isHidden())
            codes.append(entry->objectName());
    }
    return codes;
}

QString selectedColor(const ColorMenu* menu)
{
    const QList<QAbstractButton*> entries = menu->findChildren<QAbstractButton*>();
    for (const QAbstractButton* entry : entries) {
        if (entry->isChecked())
            return entry->objectName();
    }
    return QString();
}

QStringList stackPages(const PrintWidget& panel)
{
    QStringList names;
    for (int i = 0; i < colorStack(panel)->count(); ++i)
        names.append(colorStack(panel)->widget(i)->objectName());
    return names;
}

QStringList colors(std::initializer_list<const char*> codes)
{
    QStringList list;
    for (const char* code : codes)
        list.append(QString::fromLatin1(code));
    return list;
}

void showPlainSupply(PrintWidget& panel)
{
    panel.showSupplyInfo(colors({"#000000", "#ffffff"}), false, 4.0, 0, true);
}
