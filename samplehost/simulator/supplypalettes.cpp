// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/simulator/supplypalettes.h"

#include <printpanels/sharedconstants.h>

#include <QtGui/QPainter>
#include <QtWidgets/QComboBox>

namespace SampleHost {

namespace {

QStringList codes(std::initializer_list<int> indices)
{
    QStringList list;
    for (const int index : indices) {
        list.append(SharedConstants::supplyColorCodes.at(index));
    }
    list.append(SharedConstants::transparentName);
    return list;
}

} // namespace

SupplyPalettes standardPalettes()
{
    return {codes({0, 1, 2, 3, 4, 5, 6, 7, 8}), codes({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10})};
}

SupplyPalettes safetyPalettes()
{
    using namespace SupplyColor;
    return {codes({white, black, red}), codes({white, red, orange, yellow, green, blue})};
}

QIcon colorIcon(const QString& code)
{
    constexpr int side = 14;
    constexpr QRect frame(0, 0, side - 1, side - 1);
    QPixmap pixmap(side, side);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), Qt::white);
    if (code == SharedConstants::supplyColorCodes.at(SupplyColor::clear)) {
        painter.fillRect(pixmap.rect(), QBrush(QColor(0xc6, 0xc6, 0xc6), Qt::Dense4Pattern));
    } else {
        painter.fillRect(pixmap.rect(), QColor(code));
    }
    painter.setPen(QColor(0x99, 0x98, 0x98));
    painter.drawRect(frame);
    painter.end();
    return QIcon(pixmap);
}

void fillColorCombo(QComboBox* combo, const QString& clearName)
{
    for (qsizetype i = 0; i < SharedConstants::supplyColorCodes.size(); ++i) {
        const QString code = SharedConstants::supplyColorCodes.at(i);
        const bool clear = i == SupplyColor::clear;
        combo->addItem(colorIcon(code), clear ? clearName : SharedConstants::supplyColorNames.at(i),
                       code);
    }
}

} // namespace SampleHost
