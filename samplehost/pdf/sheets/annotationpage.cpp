// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/annotationpage.h"

#include "samplehost/pdf/sheets/pdfsource.h"

#include <qpdf/QPDFPageObjectHelper.hh>

namespace SampleHost {

namespace {

/** A form XObject like an appearance stream, with the keys that a form XObject has. */
QPDFObjectHandle newForm(QPDFObjectHandle appearance)
{
    QPDFObjectHandle form = appearance.copyStream();
    form.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    form.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
    return form;
}

} // namespace

AnnotationPage::AnnotationPage(PdfSource& source, int page) : m_source(source), m_page(page) {}

void AnnotationPage::addAll()
{
    QPDFPageObjectHelper helper(m_source.page(m_page));
    for (QPDFAnnotationObjectHelper& annotation : helper.getAnnotations()) {
        QPDFObjectHandle appearance = annotation.getAppearanceStream("/N");
        if (appearance.isStream()) {
            add(annotation, appearance);
        }
    }
}

void AnnotationPage::add(QPDFAnnotationObjectHelper annotation, QPDFObjectHandle appearance)
{
    QPDFObjectHandle form = newForm(appearance);
    // The layer that the annotation belongs to; flattening does not keep it.
    const QPDFObjectHandle layer = annotation.getObjectHandle().getKey("/OC");
    if (!QPDFObjectHandle(layer).isNull()) {
        form.getDict().replaceKey("/OC", layer);
    }
    QPDFObjectHandle reduced = QPDFObjectHandle::parse("<< /Type /Annot /Subtype /Stamp >>");
    reduced.replaceKey("/Rect", QPDFObjectHandle::newArray(annotation.getRect()));
    reduced.replaceKey("/F", QPDFObjectHandle::newInteger(annotation.getFlags()));
    reduced.replaceKey("/AP", QPDFObjectHandle::newDictionary({{"/N", form}}));
    m_annotations.push_back(reduced);
}

QPDFObjectHandle AnnotationPage::object() const
{
    QPDF& document = m_source.document();
    QPDFObjectHandle page = QPDFObjectHandle::parse("<< /Type /Page /Resources << >> >>");
    const PageBox box = m_source.pageBox(m_page);
    page.replaceKey("/MediaBox", QPDFObjectHandle::newArray(rectangle(box.visible)));
    // Some annotations stay upright on a page that is turned.
    page.replaceKey("/Rotate", QPDFObjectHandle::newInteger(box.turns * 90));
    page.replaceKey("/Contents", document.newStream(m_content));
    page.replaceKey("/Annots", QPDFObjectHandle::newArray(m_annotations));
    return document.makeIndirectObject(page);
}

} // namespace SampleHost
