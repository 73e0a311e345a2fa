// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TEXTFIT_H
#define TEXTFIT_H

#include <QtCore/QStringList>

class QWidget;

/**
 * The visible texts of @p window that are cut off, by its controls or by what is around them, each
 * with what it needs and what it has: of labels, buttons, tabs, group boxes, combo boxes and the
 * placeholders of edits. Texts that a host gives are elided instead and do not count.
 */
QStringList clippedTexts(const QWidget& window);

/** How many texts clippedTexts() measures. */
int measuredTexts(const QWidget& window);

#endif
