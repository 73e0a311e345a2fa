// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/pdftest.h"

#include <QtCore/QTimer>
#include <QtPdf/QPdfDocument>
#include <QtTest/QSignalSpy>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

namespace {

QStringList numbered(const QList<int>& pages)
{
    QStringList texts;
    for (const int page : pages) {
        texts.append(QStringLiteral("Page %1").arg(page));
    }
    return texts;
}

QList<int> upTo(int last)
{
    QList<int> pages;
    for (int page = 1; page <= last; ++page) {
        pages.append(page);
    }
    return pages;
}

PdfPrintRequest range(int start, int end)
{
    PdfPrintRequest request;
    request.startPage = start;
    request.endPage = end;
    return request;
}

PdfPrintRequest list(const char* text, int copies = 1)
{
    PdfPrintRequest request = range(0, 0);
    request.pageList = QString::fromLatin1(text);
    request.copies = copies;
    return request;
}

} // namespace

class TestPdfJob : public PdfTest
{
    Q_OBJECT

private Q_SLOTS:
    void printsPages_data();
    void printsPages();
    void keepsEachPagesSize();
    void keepsFontsAndTitle();
    void keepsLayers();
    void keepsLayersOfAnnotations();
    void joinsContentsInParts();
    void printsVeryManySheets();
    void reportsProgress();
    void cancelLeavesNothing();
    void answersWhileTheFileIsWritten();
    void cancelDuringTheWritingLeavesNothing();
    void changeDuringTheWritingFailsTheJob();
    void cancelLeavesAnOlderFileAlone();
    void destructionLeavesNothing();
    void outlivesTheDocument();
    void printsOverItsOwnFile();
    void printsWhatNeedsNoPassword();
    void refusesWhatItsAuthorForbids();
    void explainsFailures_data();
    void explainsFailures();
    void damagedPageFailsTheJob();
    void closedDocumentFailsTheJob();

private:
    std::unique_ptr<PrintJob> longJob();
};

void TestPdfJob::printsPages_data()
{
    addColumns<int, PdfPrintRequest, QList<int>>("pageCount", "request", "expected");
    addRow("the only page", 1, range(1, 99999), QList<int>{1});
    addRow("current page", 12, range(7, 7), QList<int>{7});
    addRow("all of 12", 12, range(1, 12), upTo(12));
    addRow("all of 300", 300, range(1, 300), upTo(300));
    addRow("list in typed order with repetitions", 12, list("9,2,2,11-99,1,7-5"),
           QList<int>{9, 2, 2, 11, 12, 1});
    addRow("list of a long document", 300, list("300,1,150-152"),
           QList<int>{300, 1, 150, 151, 152});
    addRow("copies", 12, list("5,3", 3), QList<int>{5, 3, 5, 3, 5, 3});
}

void TestPdfJob::printsPages()
{
    QFETCH(int, pageCount);
    QFETCH(PdfPrintRequest, request);
    QFETCH(QList<int>, expected);
    QVERIFY(openNumbered(pageCount));
    QCOMPARE(pdfPrintProblem(m_document, request), QString());

    const auto printing = job(request);
    QCOMPARE(printing->pageCount(), qint64(expected.size()));
    QCOMPARE(printing->targetDescription(), m_output);
    QVERIFY(PdfOutput::completes(*printing));
    QCOMPARE(PdfOutput::texts(m_output), numbered(expected));
    QCOMPARE(filesLeft(), QStringList{QStringLiteral("output.pdf")});
}

void TestPdfJob::keepsEachPagesSize()
{
    QVERIFY(openNumbered(4));
    QVERIFY(print(list("4,1-3")));
    const QList<int> pages = {3, 0, 1, 2};
    for (int sheet = 0; sheet < 4; ++sheet) {
        QCOMPARE(PdfOutput::pageSize(m_output, sheet), PdfSamples::numberedSize(pages.at(sheet)));
        const QRectF printed = PdfOutput::ink(m_output, sheet);
        QVERIFY(PdfOutput::agree(printed, PdfOutput::ink(m_input, pages.at(sheet))));
    }
}

void TestPdfJob::keepsFontsAndTitle()
{
    QVERIFY(openNumbered(12));
    QVERIFY(print(range(1, 12)));
    QFile file(m_output);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QVERIFY(bytes.contains("/FontFile2"));
    // A font that twelve pages use is there once.
    QCOMPARE(bytes.count("/FontFile2"), qsizetype(1));

    QPdfDocument printed;
    QCOMPARE(printed.load(m_output), QPdfDocument::Error::None);
    QCOMPARE(printed.metaData(QPdfDocument::MetaDataField::Title).toString(),
             QStringLiteral("Numbered pages"));
    printed.close();

    const QString title = QStringLiteral("Z\u00FCrich (1) \\ \u6F22");
    QVERIFY(PdfOutput::completes(*makePdfFileJob(m_document, range(1, 1), m_output, title)));
    QCOMPARE(printed.load(m_output), QPdfDocument::Error::None);
    QCOMPARE(printed.metaData(QPdfDocument::MetaDataField::Title).toString(), title);
}

void TestPdfJob::keepsLayers()
{
    // A black layer that is shown and one that is hidden.
    PdfSamples::Bytes bytes;
    bytes.add("<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [ 5 0 R 6 0 R ] "
              "/D << /OFF [ 6 0 R ] >> >> >>");
    bytes.add("<< /Type /Pages /Count 1 /Kids [ 3 0 R ] >>");
    bytes.add("<< /Type /Page /Parent 2 0 R /MediaBox [ 0 0 100 100 ] /Contents 4 0 R "
              "/Resources << /Properties << /On 5 0 R /Off 6 0 R >> >> >>");
    bytes.addStream("/OC /On BDC 10 10 20 20 re f EMC /OC /Off BDC 60 60 20 20 re f EMC");
    bytes.add("<< /Type /OCG /Name (shown) >>");
    bytes.add("<< /Type /OCG /Name (hidden) >>");
    QVERIFY(open(bytes.file()));
    QVERIFY(print(range(1, 1)));
    const QRectF ink = PdfOutput::ink(m_output);
    QVERIFY2(PdfOutput::agree(ink, QRectF(10, 70, 20, 20)), PdfOutput::described(ink).constData());
}

void TestPdfJob::keepsLayersOfAnnotations()
{
    PdfSamples::Bytes bytes;
    bytes.add("<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [ 4 0 R 5 0 R ] "
              "/D << /OFF [ 5 0 R ] >> >> >>");
    bytes.add("<< /Type /Pages /Count 1 /Kids [ 3 0 R ] /MediaBox [ 0 0 100 100 ] >>");
    bytes.add("<< /Type /Page /Parent 2 0 R /Annots [ "
              "<< /Subtype /Stamp /F 4 /OC 4 0 R /Rect [ 10 10 30 30 ] /AP << /N 6 0 R >> >> "
              "<< /Subtype /Stamp /F 4 /OC 5 0 R /Rect [ 60 60 80 80 ] /AP << /N 6 0 R >> >> "
              "<< /Subtype /Stamp /F 0 /Rect [ 80 10 95 30 ] /AP << /N 6 0 R >> >> ] >>");
    bytes.add("<< /Type /OCG /Name (shown) >>");
    bytes.add("<< /Type /OCG /Name (hidden) >>");
    bytes.addStream("0 0 10 10 re f", "/Subtype /Form /BBox [ 0 0 10 10 ]");
    QVERIFY(open(bytes.file()));
    QVERIFY(print(range(1, 1)));
    QVERIFY(PdfOutput::agree(PdfOutput::ink(m_output, 0), QRectF(10, 70, 20, 20)));
}

void TestPdfJob::joinsContentsInParts()
{
    // Parts may end anywhere between two words.
    PdfSamples::Bytes bytes;
    bytes.add("<< /Type /Catalog /Pages 2 0 R >>");
    bytes.add("<< /Type /Pages /Count 2 /Kids [ 3 0 R 6 0 R ] /MediaBox [ 0 0 100 100 ] >>");
    bytes.add("<< /Type /Page /Parent 2 0 R /Contents [ 4 0 R 5 0 R ] >>");
    bytes.addStream("10 10 20");
    bytes.addStream("20 re f");
    bytes.add("<< /Type /Page /Parent 2 0 R >>");
    QVERIFY(open(bytes.file()));
    QVERIFY(print(range(1, 2)));
    QVERIFY(PdfOutput::agree(PdfOutput::ink(m_output, 0), QRectF(10, 70, 20, 20)));
    QVERIFY(PdfOutput::ink(m_output, 1).isEmpty());
    QCOMPARE(PdfOutput::pageSize(m_output, 1), QSizeF(100, 100));
}

void TestPdfJob::printsVeryManySheets()
{
    QVERIFY(openNumbered(12));
    PdfPrintRequest request = range(1, 12);
    request.copies = 999;
    QVERIFY(print(request));
    QPdfDocument printed;
    QCOMPARE(printed.load(m_output), QPdfDocument::Error::None);
    QCOMPARE(printed.pageCount(), 12 * 999);
    QCOMPARE(printed.getAllText(0).text().simplified(), QStringLiteral("Page 1"));
    QCOMPARE(printed.getAllText(11987).text().simplified(), QStringLiteral("Page 12"));
    // Copies refer to what the first copy brought along.
    QVERIFY(QFileInfo(m_output).size() < 5 * 1024 * 1024);
}

void TestPdfJob::reportsProgress()
{
    QVERIFY(openNumbered(300));
    PdfPrintRequest request = range(1, 300);
    request.copies = 40;
    const auto printing = job(request);
    QSignalSpy progress(printing.get(), &PrintJob::progressChanged);
    QVERIFY(PdfOutput::completes(*printing));
    QVERIFY(progress.size() >= 1);
    qint64 before = 0;
    for (const QList<QVariant>& step : progress) {
        QVERIFY(step.at(0).toLongLong() > before);
        QCOMPARE(step.at(1).toLongLong(), qint64(12000));
        before = step.at(0).toLongLong();
    }
    QCOMPARE(before, qint64(12000));
}

void TestPdfJob::cancelLeavesNothing()
{
    QVERIFY(openNumbered(300));
    PdfPrintRequest request = range(1, 300);
    // Enough that one slice of work cannot be all of it.
    request.copies = 999;
    const auto printing = job(request);
    QSignalSpy progress(printing.get(), &PrintJob::progressChanged);
    QSignalSpy finished(printing.get(), &PrintJob::finished);
    printing->start();
    QVERIFY(progress.wait());
    QVERIFY(printing->isRunning());
    QVERIFY(progress.constLast().at(0).toLongLong() > 0);
    QVERIFY(progress.constLast().at(0).toLongLong() < 300 * 999);
    QVERIFY(!QFile::exists(m_output));

    printing->cancel();
    QCOMPARE(finished.size(), qsizetype(1));
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QCOMPARE(finished.at(0).at(1).toString(), QString());
    QCOMPARE(filesLeft(), QStringList());

    // The document is none the worse for it.
    QVERIFY(print(list("300")));
    QCOMPARE(PdfOutput::texts(m_output), numbered({300}));
}

// Enough sheets that one slice of work cannot write them all.
std::unique_ptr<PrintJob> TestPdfJob::longJob()
{
    PdfPrintRequest request = range(1, 300);
    request.copies = 999;
    return job(request);
}

void TestPdfJob::answersWhileTheFileIsWritten()
{
    QVERIFY(openNumbered(300));
    const auto printing = longJob();
    QSignalSpy finished(printing.get(), &PrintJob::finished);
    bool allSheets = false;
    connect(printing.get(), &PrintJob::progressChanged, this,
            [&allSheets](qint64 done, qint64 count) { allSheets = done == count; });
    int answers = 0;
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&] { answers += allSheets ? 1 : 0; });
    user.start(0);
    printing->start();
    QVERIFY(finished.wait(60000));
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Completed);
    QVERIFY2(answers >= 3, qPrintable(QString::number(answers)));
}

void TestPdfJob::cancelDuringTheWritingLeavesNothing()
{
    QVERIFY(openNumbered(300));
    const auto printing = longJob();
    QSignalSpy finished(printing.get(), &PrintJob::finished);
    connect(printing.get(), &PrintJob::progressChanged, this, [&](qint64 done, qint64 count) {
        if (done == count) {
            QTimer::singleShot(0, printing.get(), &PrintJob::cancel);
        }
    });
    printing->start();
    QVERIFY(finished.wait(60000));
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QCOMPARE(filesLeft(), QStringList());
}

void TestPdfJob::changeDuringTheWritingFailsTheJob()
{
    QVERIFY(openNumbered(300));
    const auto printing = longJob();
    QFile input(m_input);
    connect(printing.get(), &PrintJob::progressChanged, this, [&](qint64 done, qint64 count) {
        if (done == count) {
            input.resize(100);
        }
    });
    const PdfOutput::End end = PdfOutput::run(*printing);
    QCOMPARE(end.outcome, Outcome::Failed);
    QCOMPARE(end.message, QStringLiteral("The file of the document was changed. Open it again to "
                                         "print it."));
    QCOMPARE(filesLeft(), QStringList());
}

void TestPdfJob::cancelLeavesAnOlderFileAlone()
{
    QVERIFY(openNumbered(12));
    QVERIFY(PdfSamples::write(m_output, "older"));
    const auto printing = job(range(1, 12));
    QSignalSpy finished(printing.get(), &PrintJob::finished);
    connect(printing.get(), &PrintJob::progressChanged, printing.get(), &PrintJob::cancel);
    printing->start();
    QVERIFY(finished.wait());
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Cancelled);
    QFile older(m_output);
    QVERIFY(older.open(QIODevice::ReadOnly));
    QCOMPARE(older.readAll(), QByteArray("older"));
    QCOMPARE(filesLeft(), QStringList{QStringLiteral("output.pdf")});
}

void TestPdfJob::destructionLeavesNothing()
{
    QVERIFY(openNumbered(300));
    PdfPrintRequest request = range(1, 300);
    request.copies = 999;
    auto printing = job(request);
    QSignalSpy progress(printing.get(), &PrintJob::progressChanged);
    printing->start();
    QVERIFY(progress.wait());
    printing.reset();
    QCOMPARE(filesLeft(), QStringList());
}

void TestPdfJob::outlivesTheDocument()
{
    QVERIFY(openNumbered(300));
    PdfPrintRequest request = range(1, 300);
    request.copies = 40;
    const auto printing = job(request);
    QSignalSpy progress(printing.get(), &PrintJob::progressChanged);
    QSignalSpy finished(printing.get(), &PrintJob::finished);
    printing->start();
    QVERIFY(progress.wait());
    m_document.close();
    QVERIFY(finished.wait(60000));
    QCOMPARE(finished.at(0).at(0).value<Outcome>(), Outcome::Completed);
    QPdfDocument printed;
    QCOMPARE(printed.load(m_output), QPdfDocument::Error::None);
    QCOMPARE(printed.pageCount(), 12000);
    QCOMPARE(printed.getAllText(11999).text().simplified(), QStringLiteral("Page 300"));
}

void TestPdfJob::printsOverItsOwnFile()
{
    QVERIFY(openNumbered(12));
    QVERIFY(PdfOutput::completes(*makePdfFileJob(m_document, list("12,3"), m_input)));
    QCOMPARE(PdfOutput::texts(m_input), numbered({12, 3}));
    // The open document is still the old one.
    QCOMPARE(m_document.pageCount(), 12);
    QVERIFY(print(list("5")));
    QCOMPARE(PdfOutput::texts(m_output), numbered({5}));
}

void TestPdfJob::printsWhatNeedsNoPassword()
{
    QVERIFY(open(PdfSamples::encrypted(PdfSamples::form(), QByteArray(), true)));
    QVERIFY(print(range(2, 2)));
    QCOMPARE(PdfOutput::texts(m_output), QStringList{QStringLiteral("Terms printed")});
}

void TestPdfJob::refusesWhatItsAuthorForbids()
{
    QVERIFY(open(PdfSamples::encrypted(PdfSamples::form(), QByteArray(), false)));
    const QString said =
        QStringLiteral("The author of the document does not allow it to be printed.");
    QCOMPARE(pdfPrintProblem(m_document, range(1, 1)), said);
    const PdfOutput::End end = PdfOutput::run(*job(range(1, 1)));
    QCOMPARE(end.outcome, Outcome::Failed);
    QCOMPARE(end.message, said);
    QCOMPARE(filesLeft(), QStringList());
}

void TestPdfJob::explainsFailures_data()
{
    addColumns<PdfPrintRequest, QString, QString>("request", "path", "message");
    addRow("no such page", range(13, 20), "output.pdf",
           "There is no such page. Nothing is printed.");
    addRow("reversed range", range(3, 2), "output.pdf",
           "There is no such page. Nothing is printed.");
    addRow("unreadable list", list("1;2"), "output.pdf",
           "The list \"1;2\" cannot be read: \"1;2\" is not a page number. Write numbers and "
           "ranges such as 1,4-5. Nothing is printed.");
    addRow("no such folder", range(1, 1), "no/output.pdf",
           "The folder \"%1/no\" does not exist. Choose another folder.");
    addRow("a folder", range(1, 1), "taken", "The file \"%1/taken\" cannot be written: ");
}

void TestPdfJob::explainsFailures()
{
    QFETCH(PdfPrintRequest, request);
    QFETCH(QString, path);
    QFETCH(QString, message);
    QVERIFY(openNumbered(12));
    const QDir out(m_folder->filePath(QStringLiteral("out")));
    QVERIFY(out.mkdir(QStringLiteral("taken")));
    m_output = out.filePath(path);
    const PdfOutput::End end = PdfOutput::run(*job(request));
    QVERIFY(end.ended);
    QCOMPARE(end.outcome, Outcome::Failed);
    QVERIFY2(end.message.startsWith(message.contains(QStringLiteral("%1")) ? message.arg(out.path())
                                                                           : message),
             qPrintable(end.message));
    QCOMPARE(filesLeft(), QStringList());
}

void TestPdfJob::damagedPageFailsTheJob()
{
    // The second page's parts are no streams that could be decoded.
    PdfSamples::Bytes bytes;
    bytes.add("<< /Type /Catalog /Pages 2 0 R >>");
    bytes.add("<< /Type /Pages /Count 2 /Kids [ 3 0 R 4 0 R ] /MediaBox [ 0 0 100 100 ] >>");
    bytes.add("<< /Type /Page /Parent 2 0 R >>");
    bytes.add("<< /Type /Page /Parent 2 0 R /Contents [ 5 0 R 5 0 R ] >>");
    bytes.addStream("no compressed data", "/Filter /FlateDecode");
    QVERIFY(open(bytes.file()));
    QVERIFY(print(range(1, 1)));
    QVERIFY(QFile::remove(m_output));
    const PdfOutput::End end = PdfOutput::run(*job(range(1, 2)));
    QCOMPARE(end.outcome, Outcome::Failed);
    QCOMPARE(end.message,
             QStringLiteral("Page 2 of the document is damaged and cannot be printed."));
    QCOMPARE(filesLeft(), QStringList());
}

void TestPdfJob::closedDocumentFailsTheJob()
{
    const QString said = QStringLiteral("No document is open. Nothing is printed.");
    QCOMPARE(pdfPrintProblem(m_document, range(1, 1)), said);
    const PdfOutput::End end = PdfOutput::run(*job(range(1, 1)));
    QCOMPARE(end.outcome, Outcome::Failed);
    QCOMPARE(end.message, said);
    QCOMPARE(filesLeft(), QStringList());
}

QTEST_MAIN(TestPdfJob)

#include "tst_pdfjob.moc"
