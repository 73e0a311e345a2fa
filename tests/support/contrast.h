// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CONTRAST_H
#define CONTRAST_H

#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtGui/QColor>

class QComboBox;
class QImage;
class QPalette;
class QWidget;

/** The least contrast of text that people with low vision can read, by WCAG 2. */
constexpr double readableContrast = 4.5;

/** The contrast of two opaque colours by WCAG 2: 1 to 21. */
double contrastRatio(const QColor& a, const QColor& b);

/** The text in a place of a picture. */
struct TextContrast
{
    QString control;
    QColor text;
    QColor ground;
    double ratio = 0;
};

/** For failure messages: "the control: #ffffff on #f2f2f2, 1.12:1". */
QString description(const TextContrast& contrast);

/**
 * The text in @p place of @p picture: the colour that stands out most from the most frequent one,
 * which is the ground.
 */
TextContrast contrastIn(const QImage& picture, const QRect& place, const QString& control);

/** Where @p control shows its text, in its own coordinates; empty if it shows none. */
QRect textPlace(const QWidget* control);

/** The texts of all enabled controls that @p window shows now, as they are on the screen. */
QList<TextContrast> textContrasts(QWidget* window);

/** The text of one control of @p window, whether enabled or not. */
TextContrast textContrast(QWidget* window, const QWidget* control);

/** The items of the list that @p combo opens, the current one first. */
QList<TextContrast> listContrasts(QComboBox* combo);

/** The least of @p contrasts. */
TextContrast leastContrast(const QList<TextContrast>& contrasts);

/** A palette as dark hosts have it. */
QPalette darkPalette();

#endif
