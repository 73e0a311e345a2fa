// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/lightpalette.h"

#include "foundation/widgets/palettekeeper.h"

#include <QtGui/QPalette>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>

namespace PrintPanels {

namespace {

struct Colors
{
    QPalette::ColorRole role;
    QRgb enabled;
    QRgb disabled;
};

// Every role, so that a host's palette shows through nowhere.
constexpr Colors lightColors[] = {
    {QPalette::WindowText, 0x060606, 0x848484},
    {QPalette::Button, 0xf2f2f2, 0xf2f2f2},
    {QPalette::Light, 0xffffff, 0xffffff},
    {QPalette::Midlight, 0xfafafa, 0xfafafa},
    {QPalette::Dark, 0x999898, 0x999898},
    {QPalette::Mid, 0xc6c6c6, 0xc6c6c6},
    {QPalette::Text, 0x060606, 0x848484},
    {QPalette::BrightText, 0xffffff, 0xffffff},
    {QPalette::ButtonText, 0x060606, 0x848484},
    {QPalette::Base, 0xffffff, 0xf2f2f2},
    {QPalette::Window, 0xf2f2f2, 0xf2f2f2},
    {QPalette::Shadow, 0x464646, 0x848484},
    {QPalette::Highlight, 0xfd7800, 0xd3d3d3},
    {QPalette::HighlightedText, 0x060606, 0x464646},
    {QPalette::Link, 0x0018a8, 0x848484},
    {QPalette::LinkVisited, 0x7238ab, 0x848484},
    {QPalette::AlternateBase, 0xfafafa, 0xf2f2f2},
    {QPalette::NoRole, 0x060606, 0x848484},
    {QPalette::ToolTipBase, 0xffffff, 0xffffff},
    {QPalette::ToolTipText, 0x060606, 0x848484},
    {QPalette::PlaceholderText, 0x666666, 0x848484},
};
static_assert(std::size(lightColors) == QPalette::NColorRoles);

QPalette lightPalette()
{
    QPalette palette;
    for (const Colors& colors : lightColors) {
        palette.setColor(QPalette::All, colors.role, QColor(colors.enabled));
        palette.setColor(QPalette::Disabled, colors.role, QColor(colors.disabled));
    }
    return palette;
}

} // namespace

void setLightPalette(QWidget* ground)
{
    new PaletteKeeper(ground, lightPalette());
}

void setLightPalette(QComboBox* combo)
{
    new PaletteKeeper(combo, lightPalette());
    new PaletteKeeper(combo->view(), lightPalette());
}

} // namespace PrintPanels
