// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef COMPARISON_H
#define COMPARISON_H

#include <QtGui/QImage>

/// How a picture is compared with the expected one.
/// @{
enum class Tolerance {
    /** Every pixel is the same. */
    None,
    /**
     * For other versions of the font renderer, which shade the edges of glyphs otherwise or move
     * them by a pixel. See roughCell and the constants beside it.
     */
    Rough
};

/** Side of the squares that rough comparison looks at, in units of length. They overlap by half. */
constexpr int roughCell = 16;
/** So many of 256 pixels of a square may differ. */
constexpr int roughCellLimit = 16;
/** A pixel differs if nothing of its colour is so near in the other picture, in units of length. */
constexpr int roughShift = 1;
/** Colours are the same if none of their channels differs by more, of 255. */
constexpr int roughChannel = 64;
/// @}

struct Comparison
{
    bool passes = false;
    /** What differs, if it does not pass. */
    QString message;
    /** The expected picture in grey with the differing pixels in red, if it does not pass. */
    QImage difference;
};

/** Compares two pictures with @p ratio pixels for a unit of length. */
Comparison compare(const QImage& expected, const QImage& actual, int ratio, Tolerance tolerance);

#endif
