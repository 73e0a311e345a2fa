// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/pdfsamples.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <QtCore/QFile>
#include <QtGui/QFont>
#include <QtGui/QPageLayout>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

namespace PdfSamples {

namespace {

QByteArray number(qreal value)
{
    return QByteArray::number(value, 'f', 2);
}

QByteArray reference(int object)
{
    return QByteArray::number(object) + " 0 R";
}

const QByteArray fontResource = "/Font << /F1 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica "
                                "/Encoding /WinAnsiEncoding >> >>";

/** Builds the form; every field is a widget of a page at the same time. */
class FormBuilder
{
public:
    explicit FormBuilder(bool appearances) : m_appearances(appearances)
    {
        m_bytes.add("<< /Type /Catalog /Pages 2 0 R /AcroForm 3 0 R >>");
        m_bytes.add("<< /Type /Pages /Count 3 /Kids [ 4 0 R 5 0 R 6 0 R ] >>");
        // The objects from 3 to 6 are known only at the end.
    }

    QByteArray file();

private:
    void addFirstPageFields();
    void addButtons();
    void addThirdPageFields();
    int add(const QByteArray& text)
    {
        return m_later.append(text), firstField + int(m_later.size()) - 1;
    }
    int addStream(const QByteArray& content, const QByteArray& entries);
    int appearance(const QByteArray& size, const QByteArray& text);
    void field(QList<int>& page, const QByteArray& rect, const QByteArray& entries, int appearance,
               const QByteArray& flags = "4");

    static constexpr int firstField = 7;
    bool m_appearances;
    Bytes m_bytes;
    QList<QByteArray> m_later;
    QList<int> m_first;
    QList<int> m_third;
};

int FormBuilder::addStream(const QByteArray& content, const QByteArray& entries)
{
    return add("<< " + entries + " /Length " + QByteArray::number(content.size()) +
               " >>\nstream\n" + content + "\nendstream");
}

// A grey field with a red frame, an image, and the text.
int FormBuilder::appearance(const QByteArray& size, const QByteArray& text)
{
    const QByteArray content = "0.8 g 0 0 " + size + " re f 1 0 0 RG 0 0 " + size + " re S " +
                               "q 9 0 0 9 100 2 cm BI /W 1 /H 1 /CS /G /BPC 8 ID \x10 EI Q "
                               "/Tx BMC q 1 1 150 18 re W n BT 0 0 1 rg /F1 12 Tf 2 5 Td (" +
                               text + ") Tj ET Q EMC";
    return addStream(content, "/Type /XObject /Subtype /Form /BBox [ 0 0 " + size +
                                  " ] /Resources << " + fontResource + " >>");
}

void FormBuilder::field(QList<int>& page, const QByteArray& rect, const QByteArray& entries,
                        int appearance, const QByteArray& flags)
{
    QByteArray text = "<< /Type /Annot /Subtype /Widget /Rect [ " + rect + " ] /F " + flags +
                      " /DA (/F1 12 Tf 0 g) " + entries;
    if (appearance != 0 && m_appearances) {
        text += " /AP << /N " + reference(appearance) + " >>";
    }
    page.append(add(text + " >>"));
}

void FormBuilder::addFirstPageFields()
{
    const QByteArray size = "200 20";
    field(m_first, "100 700 300 720", "/FT /Tx /T (name) /V (Alice filled)",
          appearance(size, "Alice filled"));
    field(m_first, "100 660 300 680", "/FT /Tx /T (plain) /V (Plain filled)", 0);
    field(m_first, "100 620 300 640",
          "/FT /Ch /Ff 131072 /T (colour) /Opt [ (Red filled) (Blue) ] /V (Red filled)",
          appearance(size, "Red filled"));
    field(m_first, "100 520 300 600",
          "/FT /Ch /Ff 2097152 /T (sizes) /Opt [ (Small) (Medium filled) (Large filled) ] "
          "/V [ (Medium filled) (Large filled) ]",
          appearance("200 80", "Small Medium Large"));
    field(m_first, "100 480 300 500", "/FT /Tx /T (hidden) /V (Hidden)", appearance(size, "Hidden"),
          "6");
    field(m_first, "100 440 300 460", "/FT /Tx /T (screen) /V (Screen)", appearance(size, "Screen"),
          "0");
    field(m_first, "100 400 300 420", "/FT /Tx /Ff 8192 /T (secret) /V (Secret)", 0);
    field(m_first, "100 360 300 380", "/FT /Tx /T (empty)", appearance(size, ""));
    field(m_first, "100 320 300 340", "/FT /Btn /Ff 65536 /T (push)", appearance(size, "Push me"));
    field(m_first, "100 280 300 300", "/FT /Sig /T (signature)", appearance(size, "Signed"));
}

// A ticked box with a mark of strokes, one with a mark of letters, and an empty one.
void FormBuilder::addButtons()
{
    const QByteArray form =
        "/Type /XObject /Subtype /Form /BBox [ 0 0 20 20 ] /Resources << " + fontResource + " >>";
    const int strokes = addStream("1 0 0 RG 0 0 20 20 re S 0 G 4 4 m 16 16 l S", form);
    const int letters =
        addStream("1 0 0 RG 0 0 20 20 re S BT 0 g /F1 12 Tf 5 5 Td (Xfilled) Tj ET", form);
    const int off = addStream("1 0 0 RG 0 0 20 20 re S", form);
    const auto box = [this, off](const QByteArray& rect, const QByteArray& name, int on,
                                 const QByteArray& state) {
        const QByteArray shown = m_appearances ? " /AS /" + state : QByteArray();
        field(m_first, rect,
              "/FT /Btn /T (" + name + ") /V /" + state + shown + " /AP << /N << /Yes " +
                  reference(on) + " /Off " + reference(off) + " >> >>",
              0);
    };
    box("400 700 420 720", "strokes", strokes, "Yes");
    box("400 660 420 680", "letters", letters, "Yes");
    box("400 620 420 640", "unticked", letters, "Off");
}

void FormBuilder::addThirdPageFields()
{
    field(m_third, "100 700 300 720", "/FT /Tx /T (third) /V (Third filled)",
          appearance("200 20", "Third filled"));
}

QByteArray FormBuilder::file()
{
    addFirstPageFields();
    addButtons();
    addThirdPageFields();
    const auto list = [](const QList<int>& objects) {
        QByteArray text = "[";
        for (const int object : objects) {
            text += ' ' + reference(object);
        }
        return text + " ]";
    };
    const QByteArray printed = "0 1 0 rg 50 750 300 10 re f 0 g " + words("Order printed", 50, 780);
    const int first = addStream(printed, QByteArray());
    const int second = addStream(words("Terms printed", 50, 780), QByteArray());
    const QByteArray page =
        "<< /Type /Page /Parent 2 0 R /MediaBox [ 0 0 595 842 ] /Resources << " + fontResource +
        " >> ";
    m_bytes.add("<< /Fields " + list(m_first + m_third) + " /DA (/F1 12 Tf 0 g) /DR << " +
                fontResource + " >>" + (m_appearances ? "" : " /NeedAppearances true") + " >>");
    m_bytes.add(page + "/Contents " + reference(first) + " /Annots " + list(m_first) + " >>");
    m_bytes.add(page + "/Contents " + reference(second) + " >>");
    m_bytes.add(page + "/Rotate 90 /Contents " + reference(second) + " /Annots " + list(m_third) +
                " >>");
    for (const QByteArray& text : m_later) {
        m_bytes.add(text);
    }
    return m_bytes.file();
}

} // namespace

int Bytes::add(const QByteArray& text)
{
    m_objects.append(text);
    return int(m_objects.size());
}

int Bytes::addStream(const QByteArray& content, const QByteArray& entries)
{
    return add("<< " + entries + " /Length " + QByteArray::number(content.size()) +
               " >>\nstream\n" + content + "\nendstream");
}

QByteArray Bytes::file() const
{
    QByteArray file = "%PDF-1.7\n";
    QByteArray table =
        "xref\n0 " + QByteArray::number(m_objects.size() + 1) + "\n0000000000 65535 f \n";
    for (qsizetype i = 0; i < m_objects.size(); ++i) {
        table += QByteArray::number(file.size()).rightJustified(10, '0') + " 00000 n \n";
        file += QByteArray::number(i + 1) + " 0 obj\n" + m_objects.at(i) + "\nendobj\n";
    }
    const QByteArray start = QByteArray::number(file.size());
    return file + table + "trailer\n<< /Size " + QByteArray::number(m_objects.size() + 1) +
           " /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
}

QByteArray words(const char* text, int x, int y, int fontSize)
{
    return "BT /F1 " + QByteArray::number(fontSize) + " Tf " + QByteArray::number(x) + ' ' +
           QByteArray::number(y) + " Td (" + text + ") Tj ET ";
}

QByteArray pages(const QList<Page>& pages)
{
    Bytes bytes;
    bytes.add("<< /Type /Catalog /Pages 2 0 R >>");
    QByteArray kids;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        kids += ' ' + reference(int(3 + 2 * i));
    }
    bytes.add("<< /Type /Pages /Count " + QByteArray::number(pages.size()) + " /Kids [" + kids +
              " ] >>");
    for (const Page& page : pages) {
        const int content = 4 + 2 * int(&page - pages.constData());
        bytes.add("<< /Type /Page /Parent 2 0 R /MediaBox [ 0 0 " + number(page.size.width()) +
                  ' ' + number(page.size.height()) + " ] /Resources << " + fontResource +
                  " >> /Contents " + reference(content) + ' ' + page.entries + " >>");
        bytes.addStream(page.content);
    }
    return bytes.file();
}

QByteArray form()
{
    return FormBuilder(true).file();
}

QByteArray formWithoutAppearances()
{
    return FormBuilder(false).file();
}

QSizeF numberedSize(int page0)
{
    static const QList<QSizeF> sizes = {QSizeF(595, 842), QSizeF(612, 792), QSizeF(595, 420),
                                        QSizeF(288, 216)};
    return sizes.at(page0 % sizes.size());
}

bool writeNumbered(const QString& path, int pages)
{
    QPdfWriter writer(path);
    writer.setTitle(QStringLiteral("Numbered pages"));
    writer.setResolution(72);
    QPainter painter;
    for (int page = 0; page < pages; ++page) {
        writer.setPageSize(
            QPageSize(numberedSize(page), QPageSize::Point, QString(), QPageSize::ExactMatch));
        writer.setPageMargins(QMarginsF());
        if (page == 0 ? !painter.begin(&writer) : !writer.newPage()) {
            return false;
        }
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(40);
        painter.setFont(font);
        painter.drawText(QRectF(QPointF(), numberedSize(page)), Qt::AlignCenter,
                         QStringLiteral("Page %1").arg(page + 1));
    }
    return painter.end();
}

bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray encrypted(const QByteArray& document, const QByteArray& userPassword, bool mayPrint)
{
    QPDF pdf;
    pdf.processMemoryFile("sample", document.constData(), std::size_t(document.size()));
    QPDFWriter writer(pdf);
    writer.setOutputMemory();
    writer.setR6EncryptionParameters(userPassword.constData(), "owner", true, true, true, true,
                                     true, true, mayPrint ? qpdf_r3p_full : qpdf_r3p_none, true);
    writer.write();
    const auto buffer = writer.getBufferSharedPointer();
    return QByteArray(reinterpret_cast<const char*>(buffer->getBuffer()),
                      qsizetype(buffer->getSize()));
}

} // namespace PdfSamples
