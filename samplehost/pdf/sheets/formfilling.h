// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_FORMFILLING_H
#define SAMPLEHOST_FORMFILLING_H

namespace SampleHost {

class AnnotationPage;
class PdfSource;

/**
 * Adds what is filled in the form fields of a 0-based page, each at its place, and nothing else:
 * the text of text fields and choices as the document sets it, and the marks of ticked boxes.
 * Borders and backgrounds of the fields, the captions of push buttons and signatures are left out,
 * and so is a field that the document keeps from being printed.
 */
void addFilling(AnnotationPage& filling, PdfSource& source, int page);

} // namespace SampleHost

#endif
