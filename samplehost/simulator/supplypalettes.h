// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_SUPPLYPALETTES_H
#define SAMPLEHOST_SUPPLYPALETTES_H

#include <QtCore/QStringList>
#include <QtGui/QIcon>

class QComboBox;

namespace SampleHost {

/** Indices into the shared palette of supply colours. */
namespace SupplyColor {
constexpr int white = 0;
constexpr int black = 1;
constexpr int red = 2;
constexpr int orange = 3;
constexpr int yellow = 4;
constexpr int green = 5;
constexpr int blue = 6;
constexpr int clear = 12;
} // namespace SupplyColor

/** The colour codes that a panel's menus offer. */
struct SupplyPalettes
{
    QStringList ribbons;
    QStringList supplies;
};

/** All colours that ribbons and supplies come in. */
SupplyPalettes standardPalettes();

/** The colours that safety signs use. */
SupplyPalettes safetyPalettes();

/** A swatch of a colour code; the code for "clear" is a checkered one. */
QIcon colorIcon(const QString& code);

/** Fills a combo box with the shared palette, codes as item data; "clear" is called clearName. */
void fillColorCombo(QComboBox* combo, const QString& clearName);

} // namespace SampleHost

#endif
