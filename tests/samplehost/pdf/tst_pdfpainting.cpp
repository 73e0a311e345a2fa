// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdftest.h"

#include <QtGui/QPageLayout>
#include <QtGui/QPdfWriter>
#include <QtTest/QSignalSpy>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

namespace {

constexpr qreal pointsPerMm = 72 / 25.4;

/** Black from 40 to 140 from the left and 520 to 570 from the top of a page of 400 by 600 points.
 */
PdfSamples::Page marked()
{
    return {QSizeF(400, 600), "0 g 40 30 100 50 re f", {}};
}

/** The same on a page of 600 by 400. */
PdfSamples::Page lying()
{
    return {QSizeF(600, 400), "0 g 40 30 100 50 re f", {}};
}

/** A PDF file in the place of a printer that cannot reach the edges of its paper. */
class NarrowTarget : public PdfTarget
{
public:
    NarrowTarget(const QString& path, const QMarginsF& marginsPoints)
        : PdfTarget(path), m_margins(marginsPoints)
    {
    }

    QPagedPaintDevice* open(const QSizeF& sheetMm, QString& problem) override
    {
        QPagedPaintDevice* device = PdfTarget::open(sheetMm, problem);
        if (device != nullptr) {
            QPageLayout layout(device->pageLayout().pageSize(), QPageLayout::Portrait, QMarginsF(),
                               QPageLayout::Point, m_margins);
            layout.setMode(QPageLayout::FullPageMode);
            device->setPageLayout(layout);
        }
        return device;
    }

private:
    QMarginsF m_margins;
};

} // namespace

class TestPdfPainting : public PdfTest
{
    Q_OBJECT

private Q_SLOTS:
    void paintsWhatTheFileShows_data();
    void paintsWhatTheFileShows();
    void turnsThePaper();
    void fillsThePrintableArea();
    void changesThePaperFromPageToPage();
    void ordersPages();
    void paintsOnlyTheFilling();
    void cancelLeavesNothing();
    void explainsFailures();

private:
    bool paint(const PdfPrintRequest& request);
};

bool TestPdfPainting::paint(const PdfPrintRequest& request)
{
    return PdfOutput::completes(
        *makePdfPrinterJob(m_document, request, std::make_unique<PdfTarget>(m_output)));
}

void TestPdfPainting::paintsWhatTheFileShows_data()
{
    addColumns<QSizeF, bool, bool, QRectF>("paper", "fit", "rotated180", "mark");
    const QSizeF large(800, 1500);
    addRow("own paper", QSizeF(), false, false, QRectF(40, 520, 100, 50));
    addRow("own paper, 180", QSizeF(), false, true, QRectF(260, 30, 100, 50));
    addRow("own size", large, false, false, QRectF(240, 970, 100, 50));
    addRow("fitted", large, true, false, QRectF(80, 1190, 200, 100));
    addRow("fitted, 180", large, true, true, QRectF(520, 210, 200, 100));
}

void TestPdfPainting::paintsWhatTheFileShows()
{
    QFETCH(QSizeF, paper);
    QFETCH(bool, fit);
    QFETCH(bool, rotated180);
    QFETCH(QRectF, mark);
    PdfPrintRequest request;
    request.paperMm = paper / pointsPerMm;
    request.fitToPage = fit;
    request.rotated180 = rotated180;
    QVERIFY(open(PdfSamples::pages({marked()})));
    QVERIFY(paint(request));
    const QSizeF sheet = PdfOutput::pageSize(m_output);
    const QSizeF expected = paper.isEmpty() ? QSizeF(400, 600) : paper;
    QVERIFY(qAbs(sheet.width() - expected.width()) <= 1);
    QVERIFY(qAbs(sheet.height() - expected.height()) <= 1);
    const QRectF ink = PdfOutput::ink(m_output);
    QVERIFY2(PdfOutput::agree(ink, mark), PdfOutput::described(ink).constData());
}

void TestPdfPainting::turnsThePaper()
{
    QVERIFY(open(PdfSamples::pages({marked(), lying(), marked()})));
    PdfPrintRequest request;
    request.startPage = 1;
    request.endPage = 3;
    request.paperMm = QSizeF(400, 600) / pointsPerMm;
    QVERIFY(paint(request));
    QCOMPARE(PdfOutput::pageSize(m_output, 0).toSize(), QSize(400, 600));
    QCOMPARE(PdfOutput::pageSize(m_output, 1).toSize(), QSize(600, 400));
    QCOMPARE(PdfOutput::pageSize(m_output, 2).toSize(), QSize(400, 600));
    QVERIFY(PdfOutput::agree(PdfOutput::ink(m_output, 0), QRectF(40, 520, 100, 50)));
    QVERIFY(PdfOutput::agree(PdfOutput::ink(m_output, 1), QRectF(40, 320, 100, 50)));
    QVERIFY(PdfOutput::agree(PdfOutput::ink(m_output, 2), QRectF(40, 520, 100, 50)));

    // A document that begins with a lying page.
    request.pageList = QStringLiteral("2");
    QVERIFY(paint(request));
    QCOMPARE(PdfOutput::pageSize(m_output).toSize(), QSize(600, 400));
    QVERIFY(PdfOutput::agree(PdfOutput::ink(m_output), QRectF(40, 320, 100, 50)));
}

void TestPdfPainting::fillsThePrintableArea()
{
    QVERIFY(open(PdfSamples::pages({marked()})));
    PdfPrintRequest request;
    request.paperMm = QSizeF(850, 1260) / pointsPerMm;
    request.fitToPage = true;
    auto target = std::make_unique<NarrowTarget>(m_output, QMarginsF(30, 40, 20, 20));
    QVERIFY(PdfOutput::completes(*makePdfPrinterJob(m_document, request, std::move(target))));
    // Twice the page, 30 from the left and 40 from the top.
    const QRectF ink = PdfOutput::ink(m_output);
    QVERIFY2(PdfOutput::agree(ink, QRectF(110, 1080, 200, 100)),
             PdfOutput::described(ink).constData());
}

void TestPdfPainting::changesThePaperFromPageToPage()
{
    QVERIFY(openNumbered(4));
    PdfPrintRequest request;
    request.pageList = QStringLiteral("4,1,3");
    QVERIFY(paint(request));
    const QList<int> pages = {3, 0, 2};
    for (int sheet = 0; sheet < 3; ++sheet) {
        QCOMPARE(PdfOutput::pageSize(m_output, sheet).toSize(),
                 PdfSamples::numberedSize(pages.at(sheet)).toSize());
        const QRectF ink = PdfOutput::ink(m_output, sheet);
        QVERIFY2(PdfOutput::agree(ink, PdfOutput::ink(m_input, pages.at(sheet))),
                 PdfOutput::described(ink).constData());
    }
}

void TestPdfPainting::ordersPages()
{
    // Each page has its mark further to the right.
    QList<PdfSamples::Page> pages;
    for (int page = 0; page < 5; ++page) {
        pages.append(
            {QSizeF(100, 100), "0 g " + QByteArray::number(10 + page * 15) + " 40 10 20 re f", {}});
    }
    QVERIFY(open(PdfSamples::pages(pages)));
    PdfPrintRequest request;
    request.pageList = QStringLiteral("5,2,2-3");
    request.copies = 2;
    QVERIFY(paint(request));
    const QList<int> expected = {5, 2, 2, 3, 5, 2, 2, 3};
    for (int sheet = 0; sheet < expected.size(); ++sheet) {
        const QRectF ink = PdfOutput::ink(m_output, sheet);
        const QRectF mark(10 + (expected.at(sheet) - 1) * 15, 40, 10, 20);
        QVERIFY2(PdfOutput::agree(ink, mark), PdfOutput::described(ink).constData());
    }
    QVERIFY(PdfOutput::pageSize(m_output, 8).isEmpty());
}

void TestPdfPainting::paintsOnlyTheFilling()
{
    QVERIFY(open(PdfSamples::form()));
    PdfPrintRequest request;
    request.startPage = 1;
    request.endPage = 2;
    request.formFillOnly = true;
    const QString file = m_folder->filePath(QStringLiteral("file.pdf"));
    QVERIFY(paint(request));
    QVERIFY(PdfOutput::completes(*makePdfFileJob(m_document, request, file)));
    const QRectF ink = PdfOutput::ink(m_output, 0);
    QVERIFY2(PdfOutput::agree(ink, PdfOutput::ink(file, 0)), PdfOutput::described(ink).constData());
    QVERIFY(PdfOutput::ink(m_output, 1).isEmpty());
}

void TestPdfPainting::cancelLeavesNothing()
{
    QVERIFY(openNumbered(300));
    PdfPrintRequest request;
    request.startPage = 1;
    request.endPage = 300;
    const auto job = makePdfPrinterJob(m_document, request, std::make_unique<PdfTarget>(m_output));
    QCOMPARE(job->pageCount(), qint64(300));
    QSignalSpy progress(job.get(), &PrintJob::progressChanged);
    QSignalSpy finished(job.get(), &PrintJob::finished);
    job->start();
    while (progress.size() < 3) {
        QVERIFY(progress.wait());
    }
    const qint64 done = progress.constLast().at(0).toLongLong();
    QVERIFY(done >= 3);
    QVERIFY(done < 300);
    job->cancel();
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QCOMPARE(filesLeft(), QStringList());
}

void TestPdfPainting::explainsFailures()
{
    QVERIFY(open(PdfSamples::pages({marked()})));
    PdfPrintRequest request;
    PdfOutput::End end = PdfOutput::run(*makePdfPrinterJob(
        m_document, request, std::make_unique<PrinterTarget>(QStringLiteral("No such printer"))));
    QCOMPARE(end.outcome, Outcome::Failed);
    QCOMPARE(end.message,
             QStringLiteral("The printer \"No such printer\" is not known to the system. "
                            "Choose another printer."));

    end = PdfOutput::run(*makePdfPrinterJob(m_document, request, nullptr));
    QCOMPARE(end.outcome, Outcome::Failed);
    QCOMPARE(end.message, QStringLiteral("There is nothing to print."));

    request.pageList = QStringLiteral("2");
    end = PdfOutput::run(
        *makePdfPrinterJob(m_document, request, std::make_unique<PdfTarget>(m_output)));
    QCOMPARE(end.outcome, Outcome::Failed);
    QCOMPARE(end.message, QStringLiteral("The list \"2\" does not name the only page: there is no "
                                         "page 2. Write 1. Nothing is printed."));
    QVERIFY(!QFile::exists(m_output));
}

QTEST_MAIN(TestPdfPainting)

#include "tst_pdfpainting.moc"
