// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "colormenu.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QToolButton>

#include <utility>

namespace {
constexpr int columns = 6;
constexpr QSize swatchSize(35, 30);
const QString transparentCode = QStringLiteral("transparent");
} // namespace

ColorMenu::ColorMenu(QWidget* parent) : QWidget(parent)
{
    new QGridLayout(this);
}

void ColorMenu::setColorPalette(QList<QString> names, QList<QString> codes)
{
    for (QAbstractButton* swatch : std::as_const(m_swatches)) {
        layout()->removeWidget(swatch);
        swatch->hide();
        swatch->deleteLater(); // it may be the one that is being clicked
    }
    m_swatches.clear();
    for (const QString& code : codes.isEmpty() ? names : codes)
        m_swatches.append(createSwatch(code));
    setTransparentColorVisible(m_transparentVisible);
}

QAbstractButton* ColorMenu::createSwatch(const QString& code)
{
    QPixmap color(swatchSize);
    color.fill(QColor(code));
    auto* swatch = new QToolButton(this);
    swatch->setObjectName(code);
    swatch->setIcon(color);
    swatch->setIconSize(swatchSize);
    swatch->setCheckable(true);
    swatch->setStyleSheet(
        QStringLiteral("QToolButton { border: 1px solid #999898; padding: 2px; } "
                       "QToolButton:checked { border: 3px solid #fd7800; padding: 0; }"));
    swatch->setAutoExclusive(true);
    connect(swatch, &QToolButton::clicked, this, [this, code] { Q_EMIT colorSignal(code); });
    const int place = int(m_swatches.size());
    static_cast<QGridLayout*>(layout())->addWidget(swatch, place / columns, place % columns);
    return swatch;
}

void ColorMenu::updateSelectedColor(QString color)
{
    for (QAbstractButton* swatch : std::as_const(m_swatches)) {
        if (swatch->objectName() == color)
            swatch->setChecked(true);
    }
}

void ColorMenu::setTransparentColorVisible(bool visible)
{
    m_transparentVisible = visible;
    for (QAbstractButton* swatch : std::as_const(m_swatches))
        swatch->setVisible(visible || swatch->objectName() != transparentCode);
}
