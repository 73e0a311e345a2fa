// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef RENDERER_H
#define RENDERER_H

#include <QtCore/QString>

/**
 * What decides, apart from our own code, how a panel looks: the versions of Qt and of the libraries
 * that shape and render text, and the font. A line each.
 */
QString rendererDescription();

#endif
