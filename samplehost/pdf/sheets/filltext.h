// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_FILLTEXT_H
#define SAMPLEHOST_FILLTEXT_H

#include <qpdf/QPDFObjectHandle.hh>

#include <string>

namespace SampleHost {

/** The text that an appearance stream draws, without its lines, fillings and pictures. */
struct FillText
{
    /** The drawing operators that are left. */
    std::string content;
    /** Whether any of them shows text. */
    bool showsText = false;
};

/** Keeps the text of an appearance stream. Throws a std::exception when it cannot be read. */
FillText fillTextOf(QPDFObjectHandle appearance);

} // namespace SampleHost

#endif
