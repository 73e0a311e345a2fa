// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/editpalette.h"

#include <QtGui/QPalette>

#include <cmath>

namespace PrintPanels {

namespace {

/** The contrast that text needs to be read, by WCAG 2. */
constexpr double readable = 4.5;

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/** @p share of @p front, the rest of @p back. */
QColor mixed(const QColor& front, const QColor& back, double share)
{
    const auto mix = [share](float a, float b) { return float(share * a + (1 - share) * b); };
    return QColor::fromRgbF(mix(front.redF(), back.redF()), mix(front.greenF(), back.greenF()),
                            mix(front.blueF(), back.blueF()));
}

double contrast(const QColor& text, const QColor& ground)
{
    const double a = luminance(mixed(text, ground, text.alphaF())) + 0.05;
    const double b = luminance(ground) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

void addDisabledColors(QPalette& palette, const QPalette& shown)
{
    constexpr QPalette::ColorGroup disabled = QPalette::Disabled;
    const QColor enabledGround = shown.color(QPalette::Active, QPalette::Base);
    const QColor enabledText = shown.color(QPalette::Active, QPalette::Text);
    QColor ground = shown.color(disabled, QPalette::Base);
    if (ground == enabledGround)
        ground = shown.color(disabled, QPalette::Window);
    if (ground == enabledGround)
        ground = mixed(enabledText, ground, 0.15);
    palette.setColor(disabled, QPalette::Base, ground);
    QColor text = shown.color(disabled, QPalette::Text);
    if (text == enabledText)
        text = mixed(text, ground, 0.5);
    palette.setColor(disabled, QPalette::Text, text);
    const QColor example = shown.color(disabled, QPalette::PlaceholderText);
    if (contrast(example, ground) < contrast(text, ground))
        palette.setColor(disabled, QPalette::PlaceholderText, text);
}

void addEnabledColors(QPalette& palette, const QPalette& shown, QPalette::ColorGroup group)
{
    const QColor ground = shown.color(group, QPalette::Base);
    if (contrast(shown.color(group, QPalette::PlaceholderText), ground) < readable) {
        const QColor text = shown.color(group, QPalette::Text);
        const QColor paler = mixed(text, ground, 0.65);
        palette.setColor(group, QPalette::PlaceholderText,
                         contrast(paler, ground) < readable ? text : paler);
    }
    const QColor selection = shown.color(group, QPalette::Highlight);
    if (contrast(shown.color(group, QPalette::HighlightedText), selection) < readable) {
        const bool onDark = contrast(Qt::white, selection) > contrast(Qt::black, selection);
        palette.setColor(group, QPalette::HighlightedText, onDark ? Qt::white : Qt::black);
    }
}

} // namespace

QPalette editPalette(const QPalette& shown)
{
    QPalette palette;
    addDisabledColors(palette, shown);
    addEnabledColors(palette, shown, QPalette::Active);
    addEnabledColors(palette, shown, QPalette::Inactive);
    return palette;
}

} // namespace PrintPanels
