// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdfdocument.h"
#include "samplehost/support/pdfsamples.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <memory>

using SampleHost::PdfDocument;

namespace {

QByteArray halfOf(const QByteArray& bytes)
{
    return bytes.left(bytes.size() / 2);
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** How many pixels are nearly black. */
int inkPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += qGray(image.pixel(x, y)) < 64 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

class TestPdfDocument : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void startsClosed();
    void opensDocuments_data();
    void opensDocuments();
    void explainsWhatCannotBeOpened_data();
    void explainsWhatCannotBeOpened();
    void failureClosesTheOldDocument();
    void opensAnotherDocument();
    void titleFallsBackToTheFileName();
    void tellsShownPageSizes_data();
    void tellsShownPageSizes();
    void fitsPagesIntoBounds();
    void rendersPages();
    void rendersFilledFields();
    void renderRefusesNonsense_data();
    void renderRefusesNonsense();
    void tellsFormFields_data();
    void tellsFormFields();
    void honoursTheAuthorsWish();

private:
    QString sample(const char* name, const QByteArray& bytes);

    std::unique_ptr<QTemporaryDir> m_folder;
    PdfDocument m_document;
    QString m_problem;
};

void TestPdfDocument::init()
{
    StrictTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_document.close();
    m_problem.clear();
}

QString TestPdfDocument::sample(const char* name, const QByteArray& bytes)
{
    const QString path = m_folder->filePath(QString::fromLatin1(name));
    return PdfSamples::write(path, bytes) ? path : QString();
}

void TestPdfDocument::startsClosed()
{
    const PdfDocument document;
    QVERIFY(!document.isOpen());
    QCOMPARE(document.pageCount(), 0);
    QCOMPARE(document.title(), QString());
    QCOMPARE(document.path(), QString());
    QVERIFY(document.pageSize(0).isEmpty());
    QVERIFY(document.fittedSize(0, QSize(100, 100)).isEmpty());
    QVERIFY(document.render(0, QSize(10, 10)).isNull());
    QVERIFY(!document.hasFormFields());
    QVERIFY(!document.allowsPrinting());
    QVERIFY(document.source() == nullptr);
}

void TestPdfDocument::opensDocuments_data()
{
    QTest::addColumn<int>("pages");
    addRow("1 page", 1);
    addRow("12 pages", 12);
    addRow("300 pages", 300);
}

void TestPdfDocument::opensDocuments()
{
    QFETCH(int, pages);
    const QString path = m_folder->filePath(QStringLiteral("numbered.pdf"));
    QVERIFY(PdfSamples::writeNumbered(path, pages));

    QVERIFY(m_document.open(path, m_problem));
    QCOMPARE(m_problem, QString());
    QVERIFY(m_document.isOpen());
    QCOMPARE(m_document.path(), path);
    QCOMPARE(m_document.title(), QStringLiteral("Numbered pages"));
    QCOMPARE(m_document.pageCount(), pages);
    QVERIFY(m_document.allowsPrinting());
    for (int page = 0; page < pages; ++page) {
        QCOMPARE(m_document.pageSize(page), PdfSamples::numberedSize(page));
    }
    QVERIFY(m_document.pageSize(-1).isEmpty());
    QVERIFY(m_document.pageSize(pages).isEmpty());
}

void TestPdfDocument::explainsWhatCannotBeOpened_data()
{
    const QString numbered = QDir::temp().filePath(QStringLiteral("tst_pdfdocument.pdf"));
    QVERIFY(PdfSamples::writeNumbered(numbered, 3));
    const QByteArray good = readAll(numbered);
    QVERIFY(QFile::remove(numbered));
    const QString damaged = QStringLiteral(
        "The file \"%1\" is not a PDF document, or it is damaged. Open another file.");

    addColumns<QByteArray, QString>("bytes", "problem");
    addRow("empty", QByteArray(), "The file \"%1\" is empty. Open another file.");
    addRow("garbage", QByteArray(5000, '\xA7'), damaged);
    addRow("a text", QByteArray("Dear customer,\n"), damaged);
    addRow("a header only", QByteArray("%PDF-1.7\n"), damaged);
    addRow("truncated", halfOf(good), damaged);
    addRow("without its first half", good.mid(good.size() / 2), damaged);
    addRow("password", PdfSamples::encrypted(PdfSamples::form(), "secret", true),
           "The file \"%1\" is protected by a password. Open a copy without one.");
    addRow("no pages", PdfSamples::pages({}), "The file \"%1\" has no pages. Open another file.");
}

void TestPdfDocument::explainsWhatCannotBeOpened()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);
    const QString path = sample("sample.pdf", bytes);

    QVERIFY(!m_document.open(path, m_problem));
    QCOMPARE(m_problem, problem.arg(path));
    QVERIFY(!m_document.isOpen());
    QCOMPARE(m_document.pageCount(), 0);
}

void TestPdfDocument::failureClosesTheOldDocument()
{
    QVERIFY(m_document.open(sample("form.pdf", PdfSamples::form()), m_problem));
    QVERIFY(m_document.hasFormFields());

    const QString missing = m_folder->filePath(QStringLiteral("missing.pdf"));
    QVERIFY(!m_document.open(missing, m_problem));
    QCOMPARE(m_problem, QStringLiteral("The file \"%1\" does not exist.").arg(missing));
    QVERIFY(!m_document.isOpen());
    QVERIFY(!m_document.hasFormFields());
    QCOMPARE(m_document.path(), QString());
    QVERIFY(m_document.render(0, QSize(10, 10)).isNull());

    QVERIFY(!m_document.open(m_folder->path(), m_problem));
    QCOMPARE(m_problem, QStringLiteral("The file \"%1\" cannot be read.").arg(m_folder->path()));
    QVERIFY(!m_document.open(QString(), m_problem));
    QCOMPARE(m_problem, QStringLiteral("The file \"\" does not exist."));
}

void TestPdfDocument::opensAnotherDocument()
{
    const QString numbered = m_folder->filePath(QStringLiteral("numbered.pdf"));
    QVERIFY(PdfSamples::writeNumbered(numbered, 12));
    QVERIFY(m_document.open(sample("form.pdf", PdfSamples::form()), m_problem));
    QCOMPARE(m_document.pageCount(), 3);
    QVERIFY(m_document.open(numbered, m_problem));
    QCOMPARE(m_document.pageCount(), 12);
    QVERIFY(!m_document.hasFormFields());
    m_document.close();
    m_document.close();
    QVERIFY(!m_document.isOpen());
}

void TestPdfDocument::titleFallsBackToTheFileName()
{
    QVERIFY(m_document.open(sample("untitled form.pdf", PdfSamples::form()), m_problem));
    QCOMPARE(m_document.title(), QStringLiteral("untitled form.pdf"));
}

void TestPdfDocument::tellsShownPageSizes_data()
{
    addColumns<QByteArray, QSizeF>("entries", "size");
    addRow("plain", QByteArray(), QSizeF(595, 842));
    addRow("turned left", QByteArray("/Rotate -90"), QSizeF(842, 595));
    addRow("upside down", QByteArray("/Rotate 180"), QSizeF(595, 842));
    addRow("turned twice around", QByteArray("/Rotate 810"), QSizeF(842, 595));
    addRow("cropped", QByteArray("/CropBox [ 100 200 400 600 ]"), QSizeF(300, 400));
    addRow("cropped and turned", QByteArray("/Rotate 270 /CropBox [ 100 200 400 600 ]"),
           QSizeF(400, 300));
    addRow("corners the other way round", QByteArray("/CropBox [ 400 600 100 200 ]"),
           QSizeF(300, 400));
    addRow("crop reaching beyond the page", QByteArray("/CropBox [ -100 0 300 9000 ]"),
           QSizeF(300, 842));
    addRow("crop beside the page", QByteArray("/CropBox [ 1000 1000 1100 1100 ]"),
           QSizeF(595, 842));
    addRow("crop without area", QByteArray("/CropBox [ 100 100 100 400 ]"), QSizeF(595, 842));
    addRow("crop of words", QByteArray("/CropBox [ /a /b /c /d ]"), QSizeF(595, 842));
    addRow("half a turn by words", QByteArray("/Rotate /Half"), QSizeF(595, 842));
    addRow("ten times the unit", QByteArray("/UserUnit 10"), QSizeF(5950, 8420));
    addRow("no unit", QByteArray("/UserUnit 0"), QSizeF(595, 842));
}

void TestPdfDocument::tellsShownPageSizes()
{
    QFETCH(QByteArray, entries);
    QFETCH(QSizeF, size);
    const PdfSamples::Page page{QSizeF(595, 842), PdfSamples::words("One", 120, 300), entries};
    QVERIFY(m_document.open(sample("page.pdf", PdfSamples::pages({page})), m_problem));
    QCOMPARE(m_document.pageSize(0), size);
}

void TestPdfDocument::fitsPagesIntoBounds()
{
    const QString path = m_folder->filePath(QStringLiteral("numbered.pdf"));
    QVERIFY(PdfSamples::writeNumbered(path, 4));
    QVERIFY(m_document.open(path, m_problem));
    QCOMPARE(m_document.fittedSize(0, QSize(1190, 10000)), QSize(1190, 1684));
    QCOMPARE(m_document.fittedSize(3, QSize(144, 144)), QSize(144, 108));
    QCOMPARE(m_document.fittedSize(3, QSize(1, 1)), QSize(1, 1));
    QVERIFY(m_document.fittedSize(4, QSize(100, 100)).isEmpty());
    QVERIFY(m_document.fittedSize(0, QSize(0, 100)).isEmpty());
}

void TestPdfDocument::rendersPages()
{
    const QByteArray left = "0 0 0 rg 0 0 50 200 re f";
    const QByteArray top = "1 0 0 rg 0 150 100 50 re f";
    QVERIFY(m_document.open(sample("pages.pdf", PdfSamples::pages({{QSizeF(100, 200), left, {}},
                                                                   {QSizeF(100, 200), top, {}}})),
                            m_problem));

    const QImage first = m_document.render(0, QSize(200, 400));
    QCOMPARE(first.size(), QSize(200, 400));
    QCOMPARE(first.pixelColor(50, 200), QColor(Qt::black));
    QCOMPARE(first.pixelColor(150, 200), QColor(Qt::white));
    QCOMPARE(first.hasAlphaChannel(), false);

    const QImage second = m_document.render(1, QSize(100, 200));
    QCOMPARE(second.pixelColor(50, 25), QColor(Qt::red));
    QCOMPARE(second.pixelColor(50, 100), QColor(Qt::white));

    // Stretched to whatever is asked for.
    const QImage wide = m_document.render(0, QSize(400, 20));
    QCOMPARE(wide.size(), QSize(400, 20));
    QCOMPARE(wide.pixelColor(100, 10), QColor(Qt::black));
    QCOMPARE(wide.pixelColor(300, 10), QColor(Qt::white));
}

void TestPdfDocument::rendersFilledFields()
{
    QVERIFY(m_document.open(sample("form.pdf", PdfSamples::form()), m_problem));
    const QImage page = m_document.render(0, QSize(1190, 1684));
    // The frame of the first field is red, its background grey.
    QCOMPARE(page.pixelColor(580, 260), QColor(204, 204, 204));
    QVERIFY(inkPixels(page) > 500);
}

void TestPdfDocument::renderRefusesNonsense_data()
{
    addColumns<int, QSize>("page", "size");
    addRow("page before the first", -1, QSize(10, 10));
    addRow("page after the last", 3, QSize(10, 10));
    addRow("no size", 0, QSize());
    addRow("no width", 0, QSize(0, 10));
    addRow("negative height", 0, QSize(10, -10));
    addRow("very wide", 0, QSize(PdfDocument::longestSide + 1, 1));
    addRow("very high", 0, QSize(1, 2147483647));
}

void TestPdfDocument::renderRefusesNonsense()
{
    QFETCH(int, page);
    QFETCH(QSize, size);
    QVERIFY(m_document.open(sample("form.pdf", PdfSamples::form()), m_problem));
    QVERIFY(m_document.render(page, size).isNull());
}

void TestPdfDocument::tellsFormFields_data()
{
    const auto documentWithField = [](const char* field) {
        PdfSamples::Bytes bytes;
        bytes.add("<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [ 4 0 R ] >> >>");
        bytes.add("<< /Type /Pages /Count 1 /Kids [ 3 0 R ] >>");
        bytes.add("<< /Type /Page /Parent 2 0 R /MediaBox [ 0 0 100 100 ] /Annots [ 4 0 R ] >>");
        bytes.add("<< /Subtype /Widget /Rect [ 0 0 50 20 ] /T (f) " + QByteArray(field) + " >>");
        return bytes.file();
    };
    addColumns<QByteArray, bool>("bytes", "fields");
    addRow("form", PdfSamples::form(), true);
    addRow("form without appearances", PdfSamples::formWithoutAppearances(), true);
    addRow("plain pages", PdfSamples::pages({{}, {}}), false);
    addRow("text", documentWithField("/FT /Tx"), true);
    addRow("choice", documentWithField("/FT /Ch"), true);
    addRow("check box", documentWithField("/FT /Btn"), true);
    addRow("radio button", documentWithField("/FT /Btn /Ff 32768"), true);
    addRow("push button", documentWithField("/FT /Btn /Ff 65536"), false);
    addRow("signature", documentWithField("/FT /Sig"), false);
    addRow("no type", documentWithField(""), false);
}

void TestPdfDocument::tellsFormFields()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, fields);
    QVERIFY(m_document.open(sample("sample.pdf", bytes), m_problem));
    QCOMPARE(m_document.hasFormFields(), fields);
}

void TestPdfDocument::honoursTheAuthorsWish()
{
    const QByteArray may = PdfSamples::encrypted(PdfSamples::form(), QByteArray(), true);
    QVERIFY(m_document.open(sample("may.pdf", may), m_problem));
    QVERIFY(m_document.allowsPrinting());
    QVERIFY(m_document.hasFormFields());

    const QByteArray mayNot = PdfSamples::encrypted(PdfSamples::form(), QByteArray(), false);
    QVERIFY(m_document.open(sample("maynot.pdf", mayNot), m_problem));
    QVERIFY(!m_document.allowsPrinting());
    QCOMPARE(m_document.render(0, QSize(100, 100)).size(), QSize(100, 100));
}

QTEST_MAIN(TestPdfDocument)

#include "tst_pdfdocument.moc"
