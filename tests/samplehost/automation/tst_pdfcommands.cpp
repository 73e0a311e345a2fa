// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/commandline.h"
#include "samplehost/support/pdfoutput.h"
#include "samplehost/support/pdfsamples.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <memory>

using SampleHost::CommandLine;
using Pages = SampleHost::DocumentCommand::Pages;

/** Prints documents with the program itself, without a user and without a display. */
class TestPdfCommands : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsACommand();
    void complains_data();
    void complains();
    void needsNoDisplay();
    void printsPages_data();
    void printsPages();
    void printsNothingForPagesThatDoNotExist_data();
    void printsNothingForPagesThatDoNotExist();
    void failuresAreExplained_data();
    void failuresAreExplained();
    void optionsReachTheSheets();
    void printsWhatIsFilledIn();
    void barredDocument();
    void savesAPictureOfTheDialog();
    void savesPicturesOfTheStates_data();
    void savesPicturesOfTheStates();
    void helpNamesTheOptions();

private:
    /** Starts the program, arguments separated by blanks; its exit code, or -1. */
    int run(const QString& arguments);
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_out;
    QString m_error;
};

namespace {

CommandLine parse(const QString& line)
{
    return SampleHost::parseCommandLine(QStringList{QStringLiteral("samplehost")} +
                                        line.split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

} // namespace

void TestPdfCommands::init()
{
    StrictTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

int TestPdfCommands::run(const QString& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QString::fromLatin1(name));
    }
    environment.insert(QStringLiteral("HOME"), m_folder->path());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder->path());
    process.start(QStringLiteral(SAMPLEHOST_PROGRAM),
                  QStringList{QStringLiteral("--database"), path("chemicals.db")} +
                      arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    const bool ended = process.waitForFinished(60000);
    m_out = QString::fromLocal8Bit(process.readAllStandardOutput());
    m_error = QString::fromLocal8Bit(process.readAllStandardError());
    if (!ended) {
        process.kill();
        process.waitForFinished();
        return -1;
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void TestPdfCommands::readsACommand()
{
    const CommandLine command = parse(QStringLiteral(
        "--document in.pdf --pages 5-9,2 --output out.pdf --copies 3 --no-fit --rotate180 "
        "--form-fill"));
    QCOMPARE(command.problem, QString());
    QVERIFY(command.isHeadless());
    QCOMPARE(command.host.document, QStringLiteral("in.pdf"));
    QCOMPARE(command.document.file, QStringLiteral("in.pdf"));
    QCOMPARE(command.document.pages, Pages::List);
    QCOMPARE(command.document.list, QStringLiteral("5-9,2"));
    QCOMPARE(command.copies, 3);
    QCOMPARE(command.document.fitToPage, std::optional<bool>(false));
    QVERIFY(command.document.rotate180);
    QVERIFY(command.document.formFillOnly);

    const CommandLine shown = parse(QStringLiteral("--document in.pdf"));
    QCOMPARE(shown.problem, QString());
    QVERIFY(!shown.isHeadless());
    QCOMPARE(shown.document.pages, Pages::None);
    QCOMPARE(shown.document.fitToPage, std::nullopt);
    QCOMPARE(parse(QStringLiteral("--document a --page 7 --fit --output b")).document.page, 7);
}

void TestPdfCommands::complains_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("problem");

    QTest::newRow("no document") << QStringLiteral("--pages 1 --output o.pdf")
                                 << QStringLiteral("--pages needs --document FILE.pdf.");
    QTest::newRow("option alone") << QStringLiteral("--rotate180")
                                  << QStringLiteral("--rotate180 needs --document FILE.pdf.");
    QTest::newRow("no target") << QStringLiteral("--document d.pdf --all-pages")
                               << QStringLiteral(
                                      "Where to? Add --output FILE.pdf or --printer NAME.");
    QTest::newRow("two choices")
        << QStringLiteral("--document d.pdf --all-pages --page 1 --output o.pdf")
        << QStringLiteral("Only one of --pages, --all-pages and --page can be used.");
    QTest::newRow("fit or not") << QStringLiteral("--document d.pdf --fit --no-fit")
                                << QStringLiteral("Only one of --fit and --no-fit can be used.");
    QTest::newRow("labels and document")
        << QStringLiteral("--document d.pdf --all --output o.pdf")
        << QStringLiteral("--print, --all and --current are for labels; use --pages, --all-pages "
                          "or --page with --document.");
    QTest::newRow("page 0") << QStringLiteral("--document d.pdf --page 0 --output o.pdf")
                            << QStringLiteral(
                                   "--page needs a number from 1 to 2147483647, not \"0\".");
    QTest::newRow("no file name") << QStringLiteral("--document=")
                                  << QStringLiteral("--document needs a file name.");
}

void TestPdfCommands::complains()
{
    QFETCH(QString, line);
    QTEST(parse(line).problem, "problem");
    QCOMPARE(run(line), 2);
    QCOMPARE(m_out, QString());
}

void TestPdfCommands::needsNoDisplay()
{
    for (const char* option : {"--pages", "--all-pages", "--page", "--page=3"}) {
        const char* raw[] = {"samplehost", "--document", "x.pdf", option};
        QVERIFY2(SampleHost::looksHeadless(4, raw), option);
    }
    const char* raw[] = {"samplehost", "--document", "pages"};
    QVERIFY(!SampleHost::looksHeadless(3, raw));
}

void TestPdfCommands::printsPages_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("printed");

    QTest::newRow("list") << 12 << QStringLiteral("--pages 5-9,2")
                          << QStringLiteral("Page 5|Page 6|Page 7|Page 8|Page 9|Page 2");
    QTest::newRow("list with copies") << 12 << QStringLiteral("--pages 3,1 --copies 2")
                                      << QStringLiteral("Page 3|Page 1|Page 3|Page 1");
    QTest::newRow("beyond the last")
        << 12 << QStringLiteral("--pages 11-300,99") << QStringLiteral("Page 11|Page 12");
    QTest::newRow("page") << 300 << QStringLiteral("--page 277") << QStringLiteral("Page 277");
    QTest::newRow("all") << 3 << QStringLiteral("--all-pages")
                         << QStringLiteral("Page 1|Page 2|Page 3");
    QTest::newRow("single page") << 1 << QStringLiteral("--pages 1,1 --fit")
                                 << QStringLiteral("Page 1|Page 1");
}

void TestPdfCommands::printsPages()
{
    QFETCH(int, pages);
    QFETCH(QString, arguments);
    QFETCH(QString, printed);
    QVERIFY(PdfSamples::writeNumbered(path("in.pdf"), pages));
    QCOMPARE(run(QStringLiteral("--document in.pdf --output out.pdf ") + arguments), 0);
    QCOMPARE(m_error, QString());
    QCOMPARE(PdfOutput::texts(path("out.pdf")).join(QLatin1Char('|')), printed);
    const qsizetype count = printed.count(QLatin1Char('|')) + 1;
    QCOMPARE(m_out,
             (count == 1
                  ? QStringLiteral("Printed 1 page to %1\n").arg(path("out.pdf"))
                  : QStringLiteral("Printed %1 pages to %2\n").arg(count).arg(path("out.pdf"))));
}

void TestPdfCommands::printsNothingForPagesThatDoNotExist_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("reason");

    const QString none =
        QStringLiteral("The list \"%1\" names none of the 12 pages. Nothing is printed.\n");
    const QString takes = QStringLiteral("The list \"%1\" cannot be read: the panel takes no more "
                                         "than \"%2\" of it. Nothing is printed.\n");
    QTest::newRow("beyond the last")
        << QStringLiteral("--pages 13") << none.arg(QStringLiteral("13"));
    QTest::newRow("reversed") << QStringLiteral("--pages 5-2") << none.arg(QStringLiteral("5-2"));
    QTest::newRow("unfinished") << QStringLiteral("--pages 4,")
                                << QStringLiteral(
                                       "The list \"4,\" cannot be read. Nothing is printed.\n");
    QTest::newRow("zero") << QStringLiteral("--pages 0")
                          << takes.arg(QStringLiteral("0"), QString());
    QTest::newRow("letters") << QStringLiteral("--pages 2,x")
                             << takes.arg(QStringLiteral("2,x"), QStringLiteral("2,"));
    QTest::newRow("empty") << QStringLiteral("--pages=")
                           << QStringLiteral("The list is empty. Nothing is printed.\n");
    QTest::newRow("page") << QStringLiteral("--page 13")
                          << QStringLiteral(
                                 "There is no page 13 among the 12 pages. Nothing is printed.\n");
    QTest::newRow("no form") << QStringLiteral("--all-pages --form-fill")
                             << QStringLiteral(
                                    "The document has no form fields. Nothing is printed.\n");
}

void TestPdfCommands::printsNothingForPagesThatDoNotExist()
{
    QFETCH(QString, arguments);
    QVERIFY(PdfSamples::writeNumbered(path("in.pdf"), 12));
    QCOMPARE(
        run(QStringLiteral("--document in.pdf --output out.pdf --screenshot out.png ") + arguments),
        2);
    QTEST(m_error, "reason");
    QCOMPARE(m_out, QString());
    QVERIFY(!QFile::exists(path("out.pdf")));
    QVERIFY(!QFile::exists(path("out.png")));
}

void TestPdfCommands::failuresAreExplained_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("reason");

    QTest::newRow("missing") << QStringLiteral("--document gone.pdf --all-pages --output out.pdf")
                             << QStringLiteral("The file \"gone.pdf\" does not exist.\n");
    QTest::newRow("broken") << QStringLiteral("--document broken.pdf --page 1 --output out.pdf")
                            << QStringLiteral("The file \"broken.pdf\" is not a PDF document, or "
                                              "it is damaged.\n");
    QTest::newRow("encrypted") << QStringLiteral("--document locked.pdf --pages 1 --output out.pdf")
                               << QStringLiteral(
                                      "The file \"locked.pdf\" is protected by a password.\n");
    QTest::newRow("broken, picture")
        << QStringLiteral("--document broken.pdf --screenshot out.png")
        << QStringLiteral("The file \"broken.pdf\" is not a PDF document, or it is damaged.\n");
    QTest::newRow("folder") << QStringLiteral("--document in.pdf --page 1 --output no/out.pdf")
                            << QStringLiteral("The folder \"%1/no\" does not exist.\n");
    QTest::newRow("printer") << QStringLiteral("--document in.pdf --page 1 --printer Nobody")
                             << QStringLiteral("There is no printer \"Nobody\".\n");
    QTest::newRow("itself") << QStringLiteral("--document in.pdf --page 1 --output in.pdf")
                            << QStringLiteral(
                                   "Printing to \"%1/in.pdf\" would replace the document itself. "
                                   "Choose another PDF file in the preferences.\n");
}

void TestPdfCommands::failuresAreExplained()
{
    QFETCH(QString, arguments);
    QFETCH(QString, reason);
    QVERIFY(PdfSamples::writeNumbered(path("in.pdf"), 3));
    QVERIFY(PdfSamples::write(path("broken.pdf"), "%PDF-1.7\nnothing of the kind\n"));
    QVERIFY(PdfSamples::write(path("locked.pdf"),
                              PdfSamples::encrypted(PdfSamples::form(), "secret", true)));
    QCOMPARE(run(arguments), 1);
    QCOMPARE(m_error,
             reason.contains(QStringLiteral("%1")) ? reason.arg(m_folder->path()) : reason);
    QCOMPARE(m_out, QString());
    QVERIFY(!QFile::exists(path("out.pdf")));
    QVERIFY(!QFile::exists(path("out.png")));
    QCOMPARE(PdfOutput::texts(path("in.pdf")).size(), qsizetype(3));
}

void TestPdfCommands::optionsReachTheSheets()
{
    const PdfSamples::Page page{QSizeF(300, 400), "0 300 100 100 re f", {}};
    QVERIFY(PdfSamples::write(path("in.pdf"), PdfSamples::pages({page})));
    const QString command = QStringLiteral("--document in.pdf --page 1 --output out.pdf ");
    QCOMPARE(run(command), 0);
    QRectF ink = PdfOutput::ink(path("out.pdf"));
    QVERIFY2(PdfOutput::agree(ink, QRectF(0, 0, 100, 100)), PdfOutput::described(ink).constData());
    QCOMPARE(run(command + QStringLiteral("--rotate180")), 0);
    ink = PdfOutput::ink(path("out.pdf"));
    QVERIFY2(PdfOutput::agree(ink, QRectF(200, 300, 100, 100)),
             PdfOutput::described(ink).constData());
    QCOMPARE(run(command + QStringLiteral("--paper letter --no-fit")), 0);
    ink = PdfOutput::ink(path("out.pdf"));
    QVERIFY2(PdfOutput::agree(ink, QRectF(156, 196, 100, 100)),
             PdfOutput::described(ink).constData());
    QCOMPARE(run(command + QStringLiteral("--paper letter --fit")), 0);
    ink = PdfOutput::ink(path("out.pdf"));
    QVERIFY2(PdfOutput::agree(ink, QRectF(9, 0, 198, 198)), PdfOutput::described(ink).constData());
}

void TestPdfCommands::printsWhatIsFilledIn()
{
    QVERIFY(PdfSamples::write(path("in.pdf"), PdfSamples::form()));
    QCOMPARE(run(QStringLiteral("--document in.pdf --pages 3,2 --form-fill --output out.pdf")), 0);
    QCOMPARE(m_error, QString());
    QCOMPARE(PdfOutput::texts(path("out.pdf")),
             (QStringList{QStringLiteral("Third filled"), QString()}));
}

void TestPdfCommands::barredDocument()
{
    QVERIFY(PdfSamples::write(path("in.pdf"),
                              PdfSamples::encrypted(PdfSamples::form(), QByteArray(), false)));
    QCOMPARE(run(QStringLiteral("--document in.pdf --all-pages --output out.pdf")), 1);
    QCOMPARE(m_error, QStringLiteral("The document cannot be printed: the author of the document "
                                     "does not allow it.\n"));
    QVERIFY(!QFile::exists(path("out.pdf")));
}

void TestPdfCommands::savesAPictureOfTheDialog()
{
    QVERIFY(PdfSamples::writeNumbered(path("in.pdf"), 12));
    const QString picture = QStringLiteral("--document in.pdf --screenshot %1 ");
    QCOMPARE(
        run(picture.arg(QStringLiteral("a.png")) + QStringLiteral("--pages 7 --output out.pdf")),
        0);
    QCOMPARE(m_error, QString());
    QCOMPARE(m_out, QStringLiteral("Printed 1 page to %1\nSaved a picture of the window to %2\n")
                        .arg(path("out.pdf"), path("a.png")));
    QCOMPARE(QImage(path("a.png")).size(), QSize(1010, 540));
    QCOMPARE(run(picture.arg(QStringLiteral("b.png"))), 0);
    QCOMPARE(QImage(path("b.png")).size(), QSize(1010, 540));
    QVERIFY(QImage(path("a.png")) != QImage(path("b.png")));
}

void TestPdfCommands::savesPicturesOfTheStates_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<bool>("dialog");

    QTest::newRow("dialog") << QStringLiteral("--state multipage") << true;
    QTest::newRow("dialog, given document")
        << QStringLiteral("--state multipage --document in.pdf") << true;
    QTest::newRow("page") << QStringLiteral("--state document") << false;
    QTest::newRow("page, given document")
        << QStringLiteral("--state document --document in.pdf") << false;
}

void TestPdfCommands::savesPicturesOfTheStates()
{
    QFETCH(QString, arguments);
    QFETCH(bool, dialog);
    QVERIFY(PdfSamples::writeNumbered(path("in.pdf"), 12));
    QCOMPARE(run(arguments + QStringLiteral(" --screenshot out.png")), 0);
    QCOMPARE(m_error, QString());
    const QSize size = QImage(path("out.png")).size();
    QCOMPARE(size == QSize(1010, 540), dialog);
    QVERIFY(size.width() >= 1010);
}

void TestPdfCommands::helpNamesTheOptions()
{
    QCOMPARE(run(QStringLiteral("--help")), 0);
    for (const char* text :
         {"--document <file.pdf>", "--pages <list>", "--all-pages", "--page <number>", "--fit",
          "--no-fit", "--rotate180", "--form-fill", "multipage"}) {
        QVERIFY2(m_out.contains(QString::fromLatin1(text)), text);
    }
}

QTEST_MAIN(TestPdfCommands)

#include "tst_pdfcommands.moc"
