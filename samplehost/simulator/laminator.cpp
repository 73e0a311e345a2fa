// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/simulator/laminator.h"

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

Laminator::Laminator(QObject* parent) : QObject(parent), m_film(SharedConstants::transparentName) {}

Laminator::~Laminator() = default;

int Laminator::tabIndex() const
{
    // After the ribbons and the supply.
    return m_twoRibbons ? 3 : 2;
}

void Laminator::fit(PrintWidget& panel)
{
    auto* menu = new ColorMenu;
    menu->setObjectName(QStringLiteral("laminateMenu"));
    menu->setColorPalette(filmColors(), QStringList());
    menu->setTransparentColorVisible(true);
    connect(menu, &ColorMenu::colorSignal, this, &Laminator::setFilm);
    panel.addMenuToStack(tabIndex(), m_film, tr("Film"), tr("Laminating film"), menu);
    m_fittings.append({&panel, menu});
}

void Laminator::setFilm(const QString& color)
{
    if (color == m_film) {
        return;
    }
    m_film = color;
    for (const Fitting& fitting : std::as_const(m_fittings)) {
        if (fitting.panel != nullptr) {
            fitting.panel->updateColorSelection(tabIndex(), m_film, fitting.menu);
        }
    }
    Q_EMIT filmChanged(m_film);
}

} // namespace SampleHost
