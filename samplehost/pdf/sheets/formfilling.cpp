// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/formfilling.h"

#include "samplehost/pdf/sheets/annotationpage.h"
#include "samplehost/pdf/sheets/filltext.h"
#include "samplehost/pdf/sheets/pdfsource.h"

#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include <algorithm>
#include <cmath>

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

// The operators that draw the mark of a field in a square from 0, 0 to 1, 1.
std::string strokesOf(Widget& widget, Field& field)
{
    QPDFObjectHandle look = widget.getObjectHandle().getKey("/MK");
    QPDFObjectHandle caption =
        look.isDictionary() ? look.getKey("/CA") : QPDFObjectHandle::newNull();
    // The character that the field wants from the font of dingbats.
    const std::string style = caption.isString() ? caption.getStringValue() : std::string();
    if (style == "l" || (style.empty() && field.isRadioButton())) {
        // A line without length is a dot under a round pen.
        return "0.5 w 0.5 0.5 m 0.5 0.5 l S";
    }
    return style == "8" ? "0.12 w 0.2 0.2 m 0.8 0.8 l 0.2 0.8 m 0.8 0.2 l S"
                        : "0.14 w 0.2 0.5 m 0.42 0.22 l 0.8 0.8 l S";
}

// The operators that draw a black mark in the middle of a field, whatever the field's own style.
std::string markOf(Widget& widget, Field& field)
{
    const QPDFObjectHandle::Rectangle box = widget.getRect();
    const double side = std::min(std::abs(box.urx - box.llx), std::abs(box.ury - box.lly));
    const QPDFMatrix place(side, 0, 0, side, (box.llx + box.urx - side) / 2,
                           (box.lly + box.ury - side) / 2);
    return "q " + place.unparse() + " cm 0 G 1 J 1 j [] 0 d " + strokesOf(widget, field) + " Q\n";
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
        filling.draw(markOf(widget, field));
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
