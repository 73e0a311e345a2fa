// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PAGEPARTS_H
#define SAMPLEHOST_PAGEPARTS_H

#include <qpdf/QPDFAnnotationObjectHelper.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <string>
#include <vector>

namespace SampleHost {

class PdfSource;

/** A self-contained drawing (a form XObject) as it is to be written. */
struct PdfForm
{
    /** The name, slash included, by which the content refers to it. */
    std::string name;
    /** Everything about the stream but its length. */
    QPDFObjectHandle dictionary;
    /** The bytes of the stream, encoded as the dictionary says. */
    std::string data;
};

/** What is drawn of a page, in the page's own coordinates. */
struct PageParts
{
    /** The drawing operators; they refer to the forms by name. */
    std::string content;
    std::vector<PdfForm> forms;

    /** A name that no form has yet. */
    std::string nextName() const { return "/P" + std::to_string(forms.size()); }

    /**
     * Draws an annotation where it stands: content in place of the annotation's own appearance,
     * with the resources of that appearance. Nothing is added when the annotation is not printed
     * or has no appearance.
     */
    void addAppearance(QPDFAnnotationObjectHelper annotation, const std::string& appearance,
                       int turns);
};

/** Whether an annotation comes out on paper. */
bool isPrinted(QPDFAnnotationObjectHelper annotation);

/** The whole of a 0-based page, annotations and filled form fields included. */
PageParts wholePage(PdfSource& source, int page);

} // namespace SampleHost

#endif
