// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/pageform.h"

#include "samplehost/pdf/sheets/pdfsource.h"

#include <qpdf/Pl_Buffer.hh>
#include <qpdf/Pl_Flate.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

namespace SampleHost {

namespace {

/**
 * What the page draws. A single stream is copied as it is encoded, which qpdf's own form XObject
 * would decode; several have to be joined, and show here if they are damaged.
 */
QPDFObjectHandle contentsOf(PdfSource& source, QPDFObjectHandle page)
{
    QPDFObjectHandle contents = page.getKey("/Contents");
    if (!contents.isStream()) {
        Pl_Buffer joined("page");
        Pl_Flate deflate("page", &joined, Pl_Flate::a_deflate);
        QPDFPageObjectHelper(page).pipeContents(&deflate);
        QPDFObjectHandle stream = source.document().newStream(joined.getBufferSharedPointer());
        stream.getDict().replaceKey("/Filter", QPDFObjectHandle::newName("/FlateDecode"));
        return stream;
    }
    QPDFObjectHandle copy = contents.copyStream();
    for (const std::string& key : contents.getDict().getKeys()) {
        if (key != "/Filter" && key != "/DecodeParms" && key != "/Length") {
            copy.getDict().removeKey(key);
        }
    }
    return copy;
}

} // namespace

QPDFObjectHandle pageForm(PdfSource& source, int page)
{
    QPDFObjectHandle object = source.page(page);
    QPDFObjectHandle form = contentsOf(source, object);
    QPDFObjectHandle entries = form.getDict();
    entries.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    entries.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
    entries.replaceKey("/BBox",
                       QPDFObjectHandle::newArray(rectangle(source.pageBox(page).visible)));
    const QPDFObjectHandle resources =
        QPDFPageObjectHelper(object).getAttribute("/Resources", false);
    entries.replaceKey("/Resources", QPDFObjectHandle(resources).isDictionary()
                                         ? resources
                                         : QPDFObjectHandle::newDictionary());
    // How the page blends its colours; a null removes the key.
    entries.replaceKey("/Group", object.getKey("/Group"));
    return form;
}

} // namespace SampleHost
