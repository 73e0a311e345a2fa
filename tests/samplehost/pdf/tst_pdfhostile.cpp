// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdftest.h"

#include <QtCore/QRandomGenerator>
#include <QtPdf/QPdfDocument>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

namespace {

/** A document with some bytes changed, a piece taken out, or its end cut off. */
QByteArray damaged(const QByteArray& document, QRandomGenerator& random)
{
    QByteArray bytes = document;
    const int changes = random.bounded(1, 8);
    for (int i = 0; i < changes; ++i) {
        bytes[random.bounded(int(bytes.size()))] = char(random.bounded(256));
    }
    switch (random.bounded(4)) {
    case 0:
        bytes.truncate(random.bounded(1, int(bytes.size())));
        break;
    case 1:
        bytes.remove(random.bounded(int(bytes.size())), random.bounded(1, 200));
        break;
    default:
        break;
    }
    return bytes;
}

} // namespace

class TestPdfHostile : public PdfTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void survivesDamage_data();
    void survivesDamage();
    void survivesCircles_data();
    void survivesCircles();
    void survivesAFileThatChanges();

private:
    void useUp(PdfDocument& document);

    int m_printed = 0;
};

void TestPdfHostile::init()
{
    PdfTest::init();
    m_printed = 0;
}

/** Does everything that can be done with a document; what comes out of it must be sound. */
void TestPdfHostile::useUp(PdfDocument& document)
{
    PdfPrintRequest request;
    request.endPage = 5;
    for (const bool formFillOnly : {false, true}) {
        request.formFillOnly = formFillOnly;
        document.render(0, QSize(40, 50));
        previewPdfSheet(document, request, 0, QSize(40, 50));
        const PdfOutput::End end = PdfOutput::run(*makePdfFileJob(document, request, m_output));
        QVERIFY(end.ended);
        QCOMPARE(end.message.isEmpty(), end.outcome == Outcome::Completed);
        if (end.outcome == Outcome::Completed) {
            QPdfDocument printed;
            QCOMPARE(printed.load(m_output), QPdfDocument::Error::None);
            QCOMPARE(printed.pageCount(), std::min(5, document.pageCount()));
            ++m_printed;
        }
    }
}

void TestPdfHostile::survivesDamage_data()
{
    addColumns<bool, quint32>("form", "seed");
    for (quint32 seed = 1; seed <= 4; ++seed) {
        QTest::addRow("form, seed %u", seed) << true << seed;
        QTest::addRow("numbered pages, seed %u", seed) << false << seed;
    }
}

void TestPdfHostile::survivesDamage()
{
    QFETCH(bool, form);
    QFETCH(quint32, seed);
    QByteArray good = PdfSamples::form();
    if (!form) {
        QVERIFY(PdfSamples::writeNumbered(m_input, 3));
        QFile file(m_input);
        QVERIFY(file.open(QIODevice::ReadOnly));
        good = file.readAll();
    }
    QRandomGenerator random(seed);
    for (int round = 0; round < 40; ++round) {
        QVERIFY(PdfSamples::write(m_input, damaged(good, random)));
        PdfDocument document;
        QString problem;
        const bool opened = document.open(m_input, problem);
        QCOMPARE(problem.isEmpty(), opened);
        QCOMPARE(document.pageCount() > 0, opened);
        if (opened) {
            useUp(document);
        }
    }
    // Or the damage was such that nothing was tried at all.
    QVERIFY(m_printed > 0);
}

void TestPdfHostile::survivesCircles_data()
{
    addColumns<QByteArray, QByteArray, QByteArray>("resources", "field", "content");
    addRow("resources in a circle", QByteArray("<< /XObject 6 0 R /Self 6 0 R >>"), QByteArray(),
           QByteArray("/A Do"));
    addRow("pages among the resources", QByteArray("<< /Up 2 0 R /Page 3 0 R /Top 1 0 R >>"),
           QByteArray(), QByteArray());
    addRow("drawing of itself", QByteArray("<< /XObject << /A 5 0 R >> >>"), QByteArray(),
           QByteArray("/A Do"));
    addRow("field above itself", QByteArray("<< >>"), QByteArray("/Parent 4 0 R /Kids [ 4 0 R ]"),
           QByteArray());
    addRow("appearance of a page", QByteArray("<< >>"), QByteArray("/AP << /N 3 0 R >>"),
           QByteArray());
    addRow("appearance of itself", QByteArray("<< >>"), QByteArray("/AP << /N 5 0 R >> /AS /Yes"),
           QByteArray("/A Do"));
    addRow("fields of the wrong types", QByteArray("(text)"),
           QByteArray("/FT [ /Tx ] /Ff (x) /V << /A /B >> /DA 7 /MK [ ] /AP 3 /Rect [ 0 0 ]"),
           QByteArray());
    addRow("deeply nested", QByteArray(300, '[') + QByteArray(300, ']'), QByteArray(),
           QByteArray());
}

void TestPdfHostile::survivesCircles()
{
    QFETCH(QByteArray, resources);
    QFETCH(QByteArray, field);
    QFETCH(QByteArray, content);
    PdfSamples::Bytes bytes;
    bytes.add("<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [ 4 0 R ] >> >>");
    bytes.add("<< /Type /Pages /Count 1 /Kids [ 3 0 R ] >>");
    bytes.add("<< /Type /Page /Parent 2 0 R /MediaBox [ 0 0 100 100 ] /Annots [ 4 0 R ] "
              "/Resources 6 0 R /Contents 5 0 R >>");
    bytes.add("<< /Subtype /Widget /F 4 /FT /Tx /T (f) /V (x) /Rect [ 0 0 50 20 ] " + field +
              " >>");
    bytes.addStream(content, "/Type /XObject /Subtype /Form /BBox [ 0 0 9 9 ] /Resources 6 0 R");
    bytes.add(resources);
    QVERIFY(PdfSamples::write(m_input, bytes.file()));
    PdfDocument document;
    QString problem;
    if (document.open(m_input, problem)) {
        useUp(document);
    } else {
        QVERIFY(!problem.isEmpty());
    }
}

void TestPdfHostile::survivesAFileThatChanges()
{
    QVERIFY(openNumbered(12));
    QFile file(m_input);
    QVERIFY(file.resize(100));
    PdfPrintRequest request;
    request.startPage = 1;
    request.endPage = 12;
    const PdfOutput::End end = PdfOutput::run(*job(request));
    QCOMPARE(end.outcome, Outcome::Failed);
    QCOMPARE(end.message, QStringLiteral("The file of the document was changed. Open it again to "
                                         "print it."));
    QVERIFY(!QFile::exists(m_output));
    m_document.render(3, QSize(40, 50));
}

QTEST_MAIN(TestPdfHostile)

#include "tst_pdfhostile.moc"
