// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/pdfsource.h"

#include <qpdf/QPDFPageObjectHelper.hh>

#include <algorithm>
#include <cmath>
#include <exception>
#include <stdexcept>

namespace SampleHost {

namespace {

// Ten times what a PDF viewer has to support; a larger page is an error in the file.
constexpr qreal largestSide = 144000;

QRectF boxOf(QPDFObjectHandle page, const std::string& key)
{
    QPDFObjectHandle box = QPDFPageObjectHelper(page).getAttribute(key, false);
    if (!box.isRectangle()) {
        return QRectF();
    }
    const auto corners = box.getArrayAsRectangle();
    return QRectF(QPointF(corners.llx, corners.lly), QPointF(corners.urx, corners.ury))
        .normalized();
}

bool isUsable(const QRectF& box)
{
    return box.width() >= 1 && box.height() >= 1 && box.width() <= largestSide &&
           box.height() <= largestSide && std::abs(box.left()) <= largestSide &&
           std::abs(box.top()) <= largestSide;
}

QRectF visibleBox(const QPDFObjectHandle& page)
{
    const QRectF media = boxOf(page, "/MediaBox");
    const QRectF crop = boxOf(page, "/CropBox");
    const QRectF visible = isUsable(media) ? crop.intersected(media) : crop;
    if (isUsable(visible)) {
        return visible;
    }
    return isUsable(media) ? media : PageBox().visible;
}

int turnsOf(const QPDFObjectHandle& page)
{
    QPDFObjectHandle rotate = QPDFPageObjectHelper(page).getAttribute("/Rotate", false);
    if (!rotate.isInteger()) {
        return 0;
    }
    const int degrees = rotate.getIntValueAsInt() % 360;
    return degrees % 90 == 0 ? (degrees / 90 + 4) % 4 : 0;
}

qreal unitOf(QPDFObjectHandle page, const QRectF& visible)
{
    QPDFObjectHandle unit = page.getKey("/UserUnit");
    const qreal value = unit.isNumber() ? unit.getNumericValue() : 1;
    const bool usable = value > 0 && isUsable(QRectF(QPointF(), visible.size() * value));
    return usable ? value : 1;
}

} // namespace

QPDFObjectHandle::Rectangle rectangle(const QRectF& rect)
{
    return {rect.left(), rect.top(), rect.right(), rect.bottom()};
}

void drawField(QPDFFormFieldObjectHelper field, QPDFAnnotationObjectHelper widget)
{
    field.generateAppearance(widget);
    QPDFObjectHandle made = widget.getAppearanceStream("/N");
    QPDF* owner = made.isStream() ? made.getOwningQPDF() : nullptr;
    if (owner == nullptr) {
        return;
    }
    // What was made draws the value only the first time that it is read, so a plain one replaces
    // it.
    QPDFObjectHandle plain = QPDFObjectHandle::newStream(owner, made.getStreamData());
    QPDFObjectHandle dictionary = made.getDict().shallowCopy();
    for (const char* key : {"/Filter", "/DecodeParms", "/Length"}) {
        dictionary.removeKey(key);
    }
    plain.replaceDict(dictionary);
    widget.getAppearanceDictionary().replaceKey("/N", plain);
}

PdfSource::PdfSource(const QString& path) : m_file(path)
{
    if (!m_file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("the file cannot be read");
    }
    m_size = m_file.size();
    m_modified = m_file.fileTime(QFileDevice::FileModificationTime);
    m_pdf.setSuppressWarnings(true);
    m_pdf.processFile(QFile::encodeName(path).constData());
    m_pages = m_pdf.getAllPages();
    // This reads the form at once.
    m_form = std::make_unique<QPDFAcroFormDocumentHelper>(m_pdf);
    try {
        drawFilledFields();
    } catch (const std::exception&) {
        // A damaged form does not keep the pages from being read.
    }
}

// Some programs that fill forms leave it to the reader to draw what they filled in.
void PdfSource::drawFilledFields()
{
    if (!m_form->getNeedAppearances()) {
        return;
    }
    for (QPDFFormFieldObjectHelper& field : m_form->getFormFields()) {
        if (field.isCheckbox() || field.isRadioButton()) {
            // Lets the boxes follow the value.
            field.setV(field.getValue(), false);
        }
        const bool isSecret = field.isText() && (field.getFlags() & ff_tx_password) != 0;
        if (isSecret || !(field.isText() || field.isChoice())) {
            continue;
        }
        for (const QPDFAnnotationObjectHelper& widget : m_form->getAnnotationsForField(field)) {
            drawField(field, widget);
        }
    }
}

bool PdfSource::hasFormFields()
{
    const auto fields = m_form->getFormFields();
    return std::any_of(fields.cbegin(), fields.cend(), [](QPDFFormFieldObjectHelper field) {
        return field.isText() || field.isChoice() || field.isCheckbox() || field.isRadioButton();
    });
}

bool PdfSource::isIntact() const
{
    return m_file.size() == m_size &&
           m_file.fileTime(QFileDevice::FileModificationTime) == m_modified;
}

QPDFObjectHandle PdfSource::page(int page) const
{
    if (!isIntact()) {
        throw std::runtime_error("the file has changed");
    }
    return m_pages.at(std::size_t(page));
}

PageBox PdfSource::pageBox(int page) const
{
    PageBox box;
    try {
        const QPDFObjectHandle object = m_pages.at(std::size_t(page));
        box.visible = visibleBox(object);
        box.turns = turnsOf(object);
        box.unit = unitOf(object, box.visible);
    } catch (const std::exception&) {
        return PageBox();
    }
    return box;
}

QPDFObjectHandle PdfSource::catalogEntry(const std::string& key)
{
    QPDFObjectHandle catalog = m_pdf.getRoot();
    QPDFObjectHandle entry =
        catalog.isDictionary() ? catalog.getKey(key) : QPDFObjectHandle::newNull();
    return entry.isNull() || entry.isIndirect() ? entry : m_pdf.makeIndirectObject(entry);
}

} // namespace SampleHost
