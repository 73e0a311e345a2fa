// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/simulator/laminatorsimulator.h"

#include <printpanels-hostkit/colormenu.h>
#include <printpanels/printwidget.h>
#include <printpanels/sharedconstants.h>

namespace SampleHost {

namespace {

QStringList filmColors()
{
    return {SharedConstants::transparentName, QStringLiteral("#ffffff"), QStringLiteral("#ffff00")};
}

} // namespace

LaminatorSimulator::LaminatorSimulator(QObject* parent)
    : QObject(parent), m_film(SharedConstants::transparentName)
{
}

int LaminatorSimulator::tabIndex() const
{
    // After the ribbons and the supply.
    return m_twoRibbons ? 3 : 2;
}

void LaminatorSimulator::connectPanel(PrintWidget& panel)
{
    auto* menu = new ColorMenu;
    menu->setObjectName(QStringLiteral("laminateMenu"));
    menu->setColorPalette(filmColors(), QStringList());
    menu->setTransparentColorVisible(true);
    connect(menu, &ColorMenu::colorSignal, this, &LaminatorSimulator::setFilm);
    panel.addMenuToStack(tabIndex(), m_film, tr("Film"), tr("Laminating film"), menu);
    m_connections.append({&panel, menu});
}

void LaminatorSimulator::setFilm(const QString& color)
{
    if (color == m_film) {
        return;
    }
    m_film = color;
    for (const Connection& connection : std::as_const(m_connections)) {
        if (connection.panel != nullptr) {
            connection.panel->updateColorSelection(tabIndex(), m_film, connection.menu);
        }
    }
    Q_EMIT filmChanged(m_film);
}

} // namespace SampleHost
