// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/fillmark.h"

#include <qpdf/QPDFMatrix.hh>

#include <algorithm>
#include <cmath>

namespace SampleHost {

namespace {

// In a square from 0, 0 to 1, 1.
const char* strokes(FillMark mark)
{
    switch (mark) {
    case FillMark::Cross:
        return "0.12 w 0.2 0.2 m 0.8 0.8 l 0.2 0.8 m 0.8 0.2 l S";
    case FillMark::Dot:
        // A line without length is a dot under a round pen.
        return "0.5 w 0.5 0.5 m 0.5 0.5 l S";
    case FillMark::Check:
        break;
    }
    return "0.14 w 0.2 0.5 m 0.42 0.22 l 0.8 0.8 l S";
}

} // namespace

std::string fillMark(FillMark mark, const QPDFObjectHandle::Rectangle& box)
{
    const double side = std::min(std::abs(box.urx - box.llx), std::abs(box.ury - box.lly));
    const double left = (box.llx + box.urx - side) / 2;
    const double bottom = (box.lly + box.ury - side) / 2;
    const QPDFMatrix place(side, 0, 0, side, left, bottom);
    return "q " + place.unparse() + " cm 0 G 1 J 1 j [] 0 d " + strokes(mark) + " Q\n";
}

} // namespace SampleHost
