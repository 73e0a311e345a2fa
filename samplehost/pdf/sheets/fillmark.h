// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_FILLMARK_H
#define SAMPLEHOST_FILLMARK_H

#include <qpdf/QPDFObjectHandle.hh>

#include <string>

namespace SampleHost {

/** How a ticked box is marked. */
enum class FillMark { Check, Cross, Dot };

/** The operators that draw a black mark in the middle of a box, whatever the box's own style. */
std::string fillMark(FillMark mark, const QPDFObjectHandle::Rectangle& box);

} // namespace SampleHost

#endif
