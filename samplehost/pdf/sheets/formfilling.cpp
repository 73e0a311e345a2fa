// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/formfilling.h"

#include "samplehost/pdf/sheets/annotationpage.h"
#include "samplehost/pdf/sheets/fillmark.h"
#include "samplehost/pdf/sheets/filltext.h"
#include "samplehost/pdf/sheets/pdfsource.h"

#include <qpdf/QPDFPageObjectHelper.hh>

#include <exception>

namespace SampleHost {

namespace {

using Widget = QPDFAnnotationObjectHelper;
using Field = QPDFFormFieldObjectHelper;

/** Whether a field comes out on paper. */
bool isPrinted(Widget widget)
{
    const int flags = widget.getFlags();
    return (flags & an_print) != 0 && (flags & (an_hidden | an_invisible)) == 0;
}

bool isTicked(Widget& widget, Field& field)
{
    const std::string state = widget.getAppearanceState();
    if (!state.empty()) {
        return state != "/Off";
    }
    QPDFObjectHandle value = field.getValue();
    return field.isCheckbox() && value.isName() && value.getName() != "/Off";
}

// The character that the field wants from the font of dingbats.
FillMark markOf(Widget& widget, Field& field)
{
    QPDFObjectHandle look = widget.getObjectHandle().getKey("/MK");
    QPDFObjectHandle caption =
        look.isDictionary() ? look.getKey("/CA") : QPDFObjectHandle::newNull();
    const std::string style = caption.isString() ? caption.getStringValue() : std::string();
    if (style == "l" || (style.empty() && field.isRadioButton())) {
        return FillMark::Dot;
    }
    return style == "8" ? FillMark::Cross : FillMark::Check;
}

// Adds the text that an appearance draws; false if it draws none.
bool addTextOf(AnnotationPage& filling, Widget& widget)
{
    QPDFObjectHandle appearance = widget.getAppearanceStream("/N");
    if (!appearance.isStream()) {
        return false;
    }
    const FillText text = fillTextOf(appearance);
    if (text.showsText) {
        QPDFObjectHandle textOnly = appearance.copyStream();
        const QPDFObjectHandle none = QPDFObjectHandle::newNull();
        textOnly.replaceStreamData(text.content, none, none);
        filling.add(widget, textOnly);
    }
    return text.showsText;
}

void addMark(AnnotationPage& filling, Widget& widget, Field& field)
{
    if (isTicked(widget, field) && !addTextOf(filling, widget)) {
        filling.draw(fillMark(markOf(widget, field), widget.getRect()));
    }
}

// All chosen values as one text.
QPDFObjectHandle joinedValue(Field& field)
{
    QPDFObjectHandle value = field.getValue();
    if (!value.isArray()) {
        return value;
    }
    std::string joined;
    for (QPDFObjectHandle& item : value.getArrayAsVector()) {
        if (item.isString()) {
            joined += (joined.empty() ? "" : ", ") + item.getUTF8Value();
        }
    }
    return QPDFObjectHandle::newUnicodeString(joined);
}

/**
 * A stand-in for a widget that shows its value in one line. A list box itself shows everything that
 * could have been chosen, and tells the choice by a coloured bar.
 */
Widget oneLineWidget(Widget& widget, Field& field)
{
    QPDFObjectHandle object = widget.getObjectHandle().shallowCopy();
    object.removeKey("/Parent");
    object.removeKey("/AP");
    object.removeKey("/AS");
    object.replaceKey("/FT", QPDFObjectHandle::newName("/Tx"));
    object.replaceKey("/Ff", QPDFObjectHandle::newInteger(0));
    object.replaceKey("/V", joinedValue(field));
    object.replaceKey("/DA", QPDFObjectHandle::newString(field.getDefaultAppearance()));
    object.replaceKey("/Q", QPDFObjectHandle::newInteger(field.getQuadding()));
    QPDF* owner = widget.getObjectHandle().getOwningQPDF();
    return Widget(owner != nullptr ? owner->makeIndirectObject(object) : object);
}

void addText(AnnotationPage& filling, Widget widget, Field field)
{
    const bool isListBox = field.isChoice() && (field.getFlags() & ff_ch_combo) == 0;
    const bool isSecret = field.isText() && (field.getFlags() & ff_tx_password) != 0;
    const bool hasLook = widget.getAppearanceStream("/N").isStream();
    if ((isListBox || !hasLook) && !isSecret) {
        // Drawn on the stand-in only: the page itself goes on to look as it does in the file.
        widget = oneLineWidget(widget, field);
        field = Field(widget.getObjectHandle());
        if (!field.getValueAsString().empty()) {
            drawField(field, widget);
        }
    }
    addTextOf(filling, widget);
}

void addField(AnnotationPage& filling, Widget widget, Field field)
{
    if (field.isCheckbox() || field.isRadioButton()) {
        addMark(filling, widget, field);
    } else if (field.isText() || field.isChoice()) {
        addText(filling, widget, field);
    }
}

} // namespace

void addFilling(AnnotationPage& filling, PdfSource& source, int page)
{
    const QPDFPageObjectHelper helper(source.page(page));
    for (const Widget& widget : source.form().getWidgetAnnotationsForPage(helper)) {
        const Field field = source.form().getFieldForAnnotation(widget);
        if (isPrinted(widget)) {
            addField(filling, widget, field);
        }
    }
}

} // namespace SampleHost
