// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"

#include <colormenu.h>
#include <expandingtabbar.h>

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QComboBox>

const QString ribbonGlyph = QStringLiteral("!");
const QString blankGlyph = QString(QChar(0xE92A));
const QString supplyGlyph = QString(QChar(0xE917));

PrintPanelFixture::PrintPanelFixture(bool testControls, QWidget* parent)
    : PanelFixture(testControls, parent)
{
}

QComboBox* PrintPanelFixture::printerCombo() const
{
    return part<QComboBox>("PrinterListCombo");
}

QButtonGroup* PrintPanelFixture::recordsGroup() const
{
    return radio("currentRecordRadio")->group();
}

void PrintPanelFixture::uncheckRecords()
{
    recordsGroup()->setExclusive(false);
    for (const char* name : {"currentRecordRadio", "allRecordsRadio", "recordListRadio"})
        radio(name)->setChecked(false);
    recordsGroup()->setExclusive(true);
}

Request PrintPanelFixture::requestFrom(Request preset) const
{
    whatToPrint(preset.start, preset.end, preset.list);
    return preset;
}

QPair<int, int> PrintPanelFixture::keptRange()
{
    QAbstractButton* const checked = recordsGroup()->checkedButton();
    radio("allRecordsRadio")->setChecked(true);
    const Request all = requestFrom({-7, -7, QString()});
    if (checked)
        checked->setChecked(true);
    return {all.start, all.end};
}

ExpandingTabBar* PrintPanelFixture::colorTabs() const
{
    return part<ExpandingTabBar>("colorTabBar");
}

ColorMenu* PrintPanelFixture::colorMenu(const char* name) const
{
    return part<ColorMenu>(name);
}

QString PrintPanelFixture::tab(int index) const
{
    const ExpandingTabBar* bar = colorTabs();
    return bar->tabText(index) + u'|' + bar->tabColorRect(index) + u'|' + bar->tabToolTip(index);
}

QStringList PrintPanelFixture::tabs() const
{
    QStringList lines;
    for (int i = 0; i < colorTabs()->count(); ++i)
        lines.append(tab(i));
    return lines;
}

QStringList PrintPanelFixture::stackPages() const
{
    QStringList names;
    for (int i = 0; i < colorStack()->count(); ++i)
        names.append(colorStack()->widget(i)->objectName());
    return names;
}

void PrintPanelFixture::showPlainSupply()
{
    showSupplyInfo(colors({"#000000", "#ffffff"}), false, 4.0, 0, true);
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

QStringList colors(std::initializer_list<const char*> codes)
{
    QStringList list;
    for (const char* code : codes)
        list.append(QString::fromLatin1(code));
    return list;
}
