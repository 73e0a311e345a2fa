// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pageparts.h"

#include "samplehost/pdf/pdfsource.h"

#include <qpdf/Buffer.hh>
#include <qpdf/Pl_Buffer.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include <QtCore/QByteArray>

#include <exception>
#include <utility>

namespace SampleHost {

namespace {

std::string textOf(const std::shared_ptr<Buffer>& buffer)
{
    return std::string(reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize());
}

void setDeflated(PdfForm& form, const std::string& content)
{
    // Qt puts the length in four bytes before the compressed data.
    const QByteArray packed =
        qCompress(reinterpret_cast<const uchar*>(content.data()), qsizetype(content.size()));
    form.data.assign(packed.constData() + 4, std::size_t(packed.size() - 4));
    form.dictionary.removeKey("/DecodeParms");
    form.dictionary.replaceKey("/Filter", QPDFObjectHandle::newName("/FlateDecode"));
}

void copyKey(QPDFObjectHandle from, QPDFObjectHandle to, const std::string& key)
{
    if (from.hasKey(key)) {
        to.replaceKey(key, from.getKey(key));
    }
}

QPDFObjectHandle newFormDictionary()
{
    QPDFObjectHandle dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    dictionary.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
    return dictionary;
}

QPDFObjectHandle pageDictionary(PdfSource& source, int page)
{
    QPDFObjectHandle object = source.page(page);
    const QRectF visible = source.pageBox(page).visible;
    QPDFObjectHandle dictionary = newFormDictionary();
    dictionary.replaceKey("/BBox",
                          QPDFObjectHandle::newArray(QPDFObjectHandle::Rectangle(
                              visible.left(), visible.top(), visible.right(), visible.bottom())));
    QPDFObjectHandle resources = QPDFPageObjectHelper(object).getAttribute("/Resources", false);
    dictionary.replaceKey("/Resources",
                          resources.isDictionary() ? resources : QPDFObjectHandle::newDictionary());
    // How the page blends its colours.
    copyKey(object, dictionary, "/Group");
    return dictionary;
}

void addPageItself(PageParts& parts, PdfSource& source, int page)
{
    PdfForm form{parts.nextName(), pageDictionary(source, page), std::string()};
    QPDFObjectHandle contents = source.page(page).getKey("/Contents");
    if (contents.isStream()) {
        form.data = textOf(contents.getRawStreamData());
        copyKey(contents.getDict(), form.dictionary, "/Filter");
        copyKey(contents.getDict(), form.dictionary, "/DecodeParms");
    } else {
        Pl_Buffer joined("page");
        QPDFPageObjectHelper(source.page(page)).pipeContents(&joined);
        setDeflated(form, textOf(joined.getBufferSharedPointer()));
    }
    parts.content += form.name + " Do\n";
    parts.forms.push_back(std::move(form));
}

void addAnnotation(PageParts& parts, QPDFAnnotationObjectHelper annotation, int turns)
{
    QPDFObjectHandle appearance = annotation.getAppearanceStream("/N");
    if (!appearance.isStream()) {
        return;
    }
    try {
        parts.addAppearance(annotation, textOf(appearance.getStreamData()), turns);
    } catch (const std::exception&) {
        // Viewers leave out an annotation whose appearance is damaged, and show the page.
    }
}

} // namespace

bool isPrinted(QPDFAnnotationObjectHelper annotation)
{
    const int flags = annotation.getFlags();
    return (flags & an_print) != 0 && (flags & (an_hidden | an_invisible)) == 0;
}

void PageParts::addAppearance(QPDFAnnotationObjectHelper annotation, const std::string& appearance,
                              int turns)
{
    const std::string name = nextName();
    const std::string drawing = annotation.getPageContentForAppearance(name, turns * 90, an_print);
    if (drawing.empty()) {
        return;
    }
    QPDFObjectHandle dictionary = newFormDictionary();
    QPDFObjectHandle original = annotation.getAppearanceStream("/N").getDict();
    for (const char* key : {"/BBox", "/Matrix", "/Resources", "/Group"}) {
        copyKey(original, dictionary, key);
    }
    // The layer that the annotation belongs to.
    copyKey(annotation.getObjectHandle(), dictionary, "/OC");
    PdfForm form{name, dictionary, std::string()};
    setDeflated(form, appearance);
    content += drawing;
    forms.push_back(std::move(form));
}

PageParts wholePage(PdfSource& source, int page)
{
    PageParts parts;
    addPageItself(parts, source, page);
    const int turns = source.pageBox(page).turns;
    QPDFPageObjectHelper helper(source.page(page));
    for (const QPDFAnnotationObjectHelper& annotation : helper.getAnnotations()) {
        addAnnotation(parts, annotation, turns);
    }
    return parts;
}

} // namespace SampleHost
