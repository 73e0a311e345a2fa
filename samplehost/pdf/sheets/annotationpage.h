// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_ANNOTATIONPAGE_H
#define SAMPLEHOST_ANNOTATIONPAGE_H

#include <qpdf/QPDFAnnotationObjectHelper.hh>

#include <string>
#include <vector>

namespace SampleHost {

class PdfSource;

/**
 * A copy of a page that has annotations alone. They are reduced to what is drawn of them, so that
 * copying them to another document does not bring along a whole form.
 */
class AnnotationPage
{
public:
    /** A copy of a 0-based page without anything on it. */
    AnnotationPage(PdfSource& source, int page);

    /** Adds all annotations of the page, filled form fields included. */
    void addAll();

    /** Adds an annotation of the page that looks like appearance, which is a stream. */
    void add(QPDFAnnotationObjectHelper annotation, QPDFObjectHandle appearance);

    /** Adds operators that draw in the page's own coordinates. */
    void draw(const std::string& operators) { m_content += operators; }

    bool isEmpty() const { return m_annotations.empty() && m_content.empty(); }

    /** The page, as an object of the source that no page tree refers to. */
    QPDFObjectHandle object() const;

private:
    PdfSource& m_source;
    int m_page;
    std::string m_content;
    std::vector<QPDFObjectHandle> m_annotations;
};

} // namespace SampleHost

#endif
