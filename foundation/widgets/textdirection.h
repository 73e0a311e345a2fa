// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_TEXTDIRECTION_H
#define PRINTPANELS_TEXTDIRECTION_H

#include <QtCore/QString>
#include <QtCore/Qt>

class QAbstractSpinBox;
class QLabel;
class QLineEdit;
class QWidget;

namespace PrintPanels {

/** The end of a line where text begins in @p widget's layout, whichever way the text itself runs.
 */
Qt::Alignment startOfLine(const QWidget* widget);

/** The direction in which @p text is read, as a flag for painting it. */
int readingDirection(const QString& text);

/** @p text with marks around it that keep its direction, where the layout of @p widget differs. */
QString isolated(const QString& text, const QWidget* widget);

/** @p numbers with marks around them, if they follow an @p introduction from right to left. */
QString numbersAfter(const QString& introduction, const QString& numbers);

/**
 * Keep what a control shows at the start of its line in layouts of either direction. Qt goes by the
 * direction of the text, so that a number or an English text would stay on the left.
 */
void alignToStart(QLabel* label);
void alignToStart(QLineEdit* edit);
void alignToStart(QAbstractSpinBox* spinBox);

} // namespace PrintPanels

#endif
