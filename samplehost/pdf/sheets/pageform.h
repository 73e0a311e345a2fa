// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PAGEFORM_H
#define SAMPLEHOST_PAGEFORM_H

#include <qpdf/QPDFObjectHandle.hh>

namespace SampleHost {

class PdfSource;

/**
 * A 0-based page without its annotations as a form XObject of the source, in the page's own
 * coordinates. Throws a std::exception when the page cannot be read.
 */
QPDFObjectHandle pageForm(PdfSource& source, int page);

} // namespace SampleHost

#endif
