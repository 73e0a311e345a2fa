// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/documentfaultfixture.h"
#include "samplehost/support/hostprogram.h"
#include "support/stricttest.h"

#include <QtPdf/QPdfDocument>
#include <QtPdf/QPdfSelection>
#include <QtWidgets/QStatusBar>

#include <functional>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

namespace {

/** A document of one page whose dictionary has these entries. */
QByteArray withPage(const QByteArray& entries)
{
    PdfSamples::Bytes bytes;
    bytes.add("<< /Type /Catalog /Pages 2 0 R >>");
    bytes.add("<< /Type /Pages /Count 1 /Kids [ 3 0 R ] >>");
    bytes.add("<< /Type /Page /Parent 2 0 R /Contents 4 0 R " + entries + " >>");
    bytes.addStream("0 0 m 50 50 l S");
    return bytes.file();
}

/** A document whose pages have these children. */
QByteArray withKids(const QByteArray& kids)
{
    PdfSamples::Bytes bytes;
    bytes.add("<< /Type /Catalog /Pages 2 0 R >>");
    bytes.add("<< /Type /Pages /Count 3 /Kids [ " + kids + " ] >>");
    bytes.add("<< /Type /Page /Parent 2 0 R /MediaBox [ 0 0 100 100 ] >>");
    bytes.add("<< /Type /Pages /Parent 2 0 R /Count 1 /Kids [ 2 0 R ] >>");
    return bytes.file();
}

/** Changes a file in its place, as a program does that writes over it. */
bool overwrite(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.resize(0) && file.write(bytes) == bytes.size();
}

} // namespace

/** Documents that are broken, absurd or change while the host has them open. */
class TestHostFaultsDocument : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void brokenDocumentIsRefused_data();
    void brokenDocumentIsRefused();
    void programRefusesABrokenDocument_data();
    void programRefusesABrokenDocument();
    void absurdPageIsShownAndPrinted_data();
    void absurdPageIsShownAndPrinted();
    void openDocumentOutlivesItsFile_data();
    void openDocumentOutlivesItsFile();
    void changedDocumentIsNotPrinted_data();
    void changedDocumentIsNotPrinted();
    void tenThousandPages();

private:
    static void addBroken();
};

void TestHostFaultsDocument::addBroken()
{
    addColumns<QByteArray, QString>("bytes", "problem");
    const QString damaged = QStringLiteral(
        "The file \"%1\" is not a PDF document, or it is damaged. Open another file.");
    const QByteArray good = PdfSamples::form();
    addRow("empty", QByteArray(), "The file \"%1\" is empty. Open another file.");
    addRow("garbage", QByteArray(5000, '\xA7'), damaged);
    addRow("null bytes", QByteArray(5000, '\0'), damaged);
    addRow("truncated", good.left(good.size() / 3), damaged);
    addRow("password", PdfSamples::encrypted(good, "secret", true),
           "The file \"%1\" is protected by a password. Open a copy without one.");
    addRow("no pages", PdfSamples::pages({}), "The file \"%1\" has no pages. Open another file.");
    addRow("pages among themselves", withKids("4 0 R 4 0 R 2 0 R"), QString());
}

void TestHostFaultsDocument::brokenDocumentIsRefused_data()
{
    addBroken();
}

void TestHostFaultsDocument::brokenDocumentIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);
    FaultFixture host;
    QVERIFY(host.choose(Printout::Document));
    const QString chosen = host.choices(Printout::Document);
    QVERIFY(PdfSamples::write(host.path("broken.pdf"), bytes));
    QVERIFY(!host.page().open(host.path("broken.pdf")));
    const QString said = host.shownMessage();
    QVERIFY(said.contains(host.path("broken.pdf")));
    QVERIFY(problem.isEmpty() || said == problem.arg(host.path("broken.pdf")));
    delete host.window->findChild<QMessageBox*>(QStringLiteral("messageBox"));
    // The document that was open still is, with all that was chosen for it.
    QCOMPARE(host.choices(Printout::Document), chosen);
    QCOMPARE(host.print(Printout::Document), std::optional(Outcome::Completed));
    QCOMPARE(int(pdfPages(host.outputPath()).size()), FaultFixture::pagesOf(Printout::Document));
}

void TestHostFaultsDocument::programRefusesABrokenDocument_data()
{
    addBroken();
}

void TestHostFaultsDocument::programRefusesABrokenDocument()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir folder;
    QVERIFY(PdfSamples::write(folder.filePath(QStringLiteral("in.pdf")), bytes));
    HostProgram program(folder.path());
    QCOMPARE(program.run(QStringLiteral("--document in.pdf --all-pages --output out.pdf "
                                        "--database chemicals.db")),
             1);
    QVERIFY2(program.error.startsWith(QStringLiteral("The file \"in.pdf\" ")),
             qPrintable(program.error));
    QCOMPARE(program.error.count(QLatin1Char('\n')), qsizetype(1));
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("out.pdf"))));
}

void TestHostFaultsDocument::absurdPageIsShownAndPrinted_data()
{
    QTest::addColumn<QByteArray>("entries");
    addRow("no box", QByteArray());
    addRow("nothing", QByteArray("/MediaBox [ 0 0 0 0 ]"));
    addRow("a line", QByteArray("/MediaBox [ 0 0 500 0 ]"));
    addRow("inside out", QByteArray("/MediaBox [ 300 200 0 0 ]"));
    addRow("huge", QByteArray("/MediaBox [ 0 0 1e30 1e30 ]"));
    addRow("huge digits", QByteArray("/MediaBox [ 0 0 99999999999999999999 9 ]"));
    addRow("far away", QByteArray("/MediaBox [ 2000000000 2000000000 2000000100 "
                                  "2000000100 ]"));
    addRow("largest", QByteArray("/MediaBox [ 0 0 144000 144000 ]"));
    addRow("a thread", QByteArray("/MediaBox [ 0 0 144000 1 ]"));
    addRow("no numbers", QByteArray("/MediaBox [ /NaN (x) null [ ] ]"));
    addRow("words", QByteArray("/MediaBox [ nan inf -inf nan ]"));
    addRow("cropped to nothing",
           QByteArray("/MediaBox [ 0 0 100 100 ] /CropBox [ 500 500 600 600 ]"));
    addRow("units", QByteArray("/MediaBox [ 0 0 100 100 ] /UserUnit 1e9"));
    addRow("turned oddly", QByteArray("/MediaBox [ 0 0 100 100 ] /Rotate 2147483647"));
    addRow("page above itself", QByteArray("/MediaBox [ 0 0 9 9 ] /Kids [ 3 0 R ]"));
}

void TestHostFaultsDocument::absurdPageIsShownAndPrinted()
{
    QFETCH(QByteArray, entries);
    FaultFixture host;
    if (!host.openBytes(withPage(entries))) {
        QVERIFY(!host.shownMessage().isEmpty());
        return;
    }
    const QSizeF size = host.page().document()->pageSize(0);
    QVERIFY(size.width() >= 1 && size.width() <= 144000);
    QVERIFY(size.height() >= 1 && size.height() <= 144000);
    QVERIFY(!host.window->grab().isNull());
    QVERIFY(host.showDialog());
    QVERIFY(!host.previewPicture().isNull());
    const auto outcome = host.print(Printout::Document);
    QVERIFY(outcome);
    QCOMPARE(*outcome == Outcome::Completed, QFile::exists(host.outputPath()));
    QCOMPARE(host.shown.isEmpty(), *outcome == Outcome::Completed);
}

void TestHostFaultsDocument::openDocumentOutlivesItsFile_data()
{
    using Change = std::function<bool(const QString&)>;
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) { addRow(name, change); };
    row("deleted", [](const QString& path) { return QFile::remove(path); });
    row("replaced", [](const QString& path) {
        return QFile::remove(path) && PdfSamples::writeNumbered(path, 2);
    });
    row("a folder", [](const QString& path) { return QFile::remove(path) && QDir().mkdir(path); });
}

void TestHostFaultsDocument::openDocumentOutlivesItsFile()
{
    QFETCH(std::function<bool(const QString&)>, change);
    FaultFixture host;
    QVERIFY(host.choose(Printout::Document));
    QVERIFY(change(host.path("in.pdf")));
    QCOMPARE(host.print(Printout::Document), std::optional(Outcome::Completed));
    QCOMPARE(int(pdfPages(host.outputPath()).size()), FaultFixture::pagesOf(Printout::Document));
}

void TestHostFaultsDocument::changedDocumentIsNotPrinted_data()
{
    QTest::addColumn<QByteArray>("bytes");
    addRow("emptied", QByteArray());
    addRow("cut off", PdfSamples::form().left(300));
    addRow("garbage", QByteArray(90000, '\xA7'));
    addRow("another document", PdfSamples::form());
}

void TestHostFaultsDocument::changedDocumentIsNotPrinted()
{
    QFETCH(QByteArray, bytes);
    FaultFixture host;
    QVERIFY(host.choose(Printout::Document));
    QVERIFY(PdfSamples::write(host.outputPath(), "older"));
    const QByteArray good = contentsOf(host.path("in.pdf"));
    const QString chosen = host.choices(Printout::Document);
    QVERIFY(overwrite(host.path("in.pdf"), bytes));
    // Looking at other pages of it does no harm.
    host.navigator().setCurrentIndex(7);
    QVERIFY(!host.window->grab().isNull());
    QVERIFY(!host.previewPicture().isNull());

    QCOMPARE(host.print(Printout::Document), std::optional(Outcome::Failed));
    QCOMPARE(host.message, QStringLiteral("The file of the document was changed. Open it again to "
                                          "print it."));
    QCOMPARE(host.shown, host.message);
    QCOMPARE(contentsOf(host.outputPath()), QByteArray("older"));
    QCOMPARE(host.choices(Printout::Document), chosen);

    QVERIFY(overwrite(host.path("in.pdf"), good));
    QVERIFY(host.page().open(host.path("in.pdf")));
    QCOMPARE(host.print(Printout::Document), std::optional(Outcome::Completed));
}

void TestHostFaultsDocument::tenThousandPages()
{
    FaultFixture host;
    constexpr int pages = 10000;
    QVERIFY(host.openNumbered(pages));
    QCOMPARE(host.navigator().count(), pages);
    QVERIFY(host.showDialog());
    host.press("lastRecordButton");
    QCOMPARE(host.preview().shownPage(), pages);
    host.press("allPagesRadio");
    QCOMPARE(host.print(Printout::Document), std::optional(Outcome::Completed));
    QPdfDocument printed;
    QCOMPARE(printed.load(host.outputPath()), QPdfDocument::Error::None);
    QCOMPARE(printed.pageCount(), pages);
    QVERIFY(printed.getAllText(pages - 1).text().contains(QStringLiteral("Page 10000")));
}

QTEST_MAIN(TestHostFaultsDocument)

#include "tst_hostfaults_document.moc"
