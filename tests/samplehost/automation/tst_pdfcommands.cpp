// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/commandline.h"
#include "samplehost/support/pdfoutput.h"
#include "samplehost/support/pdfsamples.h"
#include "samplehost/support/programtest.h"

#include <QtCore/QDir>

using SampleHost::CommandLine;
using Pages = SampleHost::DocumentCommand::Pages;

/** Prints documents with the program itself, without a user and without a display. */
class TestPdfCommands : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsACommand();
    void reportsProblems_data();
    void reportsProblems();
    void needsNoDisplay();
    void printsPages_data();
    void printsPages();
    void printsNothingForPagesThatDoNotExist_data();
    void printsNothingForPagesThatDoNotExist();
    void failuresAreExplained_data();
    void failuresAreExplained();
    void optionsReachTheSheets();
    void printsWhatIsFilledIn();
    void documentThatMayNotBePrinted();
    void savesAPictureOfTheDialog();
    void savesPicturesOfTheStates_data();
    void savesPicturesOfTheStates();
    void helpNamesTheOptions();
};

namespace {

CommandLine parse(const QString& line)
{
    return SampleHost::parseCommandLine(QStringList{QStringLiteral("samplehost")} +
                                        line.split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

} // namespace

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

void TestPdfCommands::reportsProblems_data()
{
    addColumns<QString, QString>("line", "problem");

    addRow("no document", "--pages 1 --output o.pdf", "--pages needs --document FILE.pdf.");
    addRow("option alone", "--rotate180", "--rotate180 needs --document FILE.pdf.");
    addRow("no target", "--document d.pdf --all-pages",
           "Where to? Add --output FILE.pdf or --printer NAME.");
    addRow("two choices", "--document d.pdf --all-pages --page 1 --output o.pdf",
           "Only one of --pages, --all-pages and --page can be used.");
    addRow("fit or not", "--document d.pdf --fit --no-fit",
           "Only one of --fit and --no-fit can be used.");
    addRow("labels and document", "--document d.pdf --all --output o.pdf",
           "--print, --all and --current are for labels; use --pages, --all-pages "
           "or --page with --document.");
    addRow("page 0", "--document d.pdf --page 0 --output o.pdf",
           "--page needs a number from 1 to 2147483647, not \"0\".");
    addRow("no file name", "--document=", "--document needs a file name.");
}

void TestPdfCommands::reportsProblems()
{
    QFETCH(QString, line);
    QTEST(parse(line).problem, "problem");
    QCOMPARE(run(line), 2);
    QCOMPARE(out(), QString());
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
    addColumns<int, QString, QString>("pages", "arguments", "printed");

    addRow("list", 12, "--pages 5-9,2", "Page 5|Page 6|Page 7|Page 8|Page 9|Page 2");
    addRow("list with copies", 12, "--pages 3,1 --copies 2", "Page 3|Page 1|Page 3|Page 1");
    addRow("beyond the last", 12, "--pages 11-300,99", "Page 11|Page 12");
    addRow("page", 300, "--page 277", "Page 277");
    addRow("all", 3, "--all-pages", "Page 1|Page 2|Page 3");
    addRow("single page", 1, "--pages 1,1 --fit", "Page 1|Page 1");
}

void TestPdfCommands::printsPages()
{
    QFETCH(int, pages);
    QFETCH(QString, arguments);
    QFETCH(QString, printed);
    QVERIFY(PdfSamples::writeNumbered(path("in.pdf"), pages));
    QCOMPARE(run(QStringLiteral("--document in.pdf --output out.pdf ") + arguments), 0);
    QCOMPARE(error(), QString());
    QCOMPARE(PdfOutput::texts(path("out.pdf")).join(QLatin1Char('|')), printed);
    const qsizetype count = printed.count(QLatin1Char('|')) + 1;
    QCOMPARE(out(),
             (count == 1
                  ? QStringLiteral("Printed 1 page to %1\n").arg(path("out.pdf"))
                  : QStringLiteral("Printed %1 pages to %2\n").arg(count).arg(path("out.pdf"))));
}

void TestPdfCommands::printsNothingForPagesThatDoNotExist_data()
{
    addColumns<QString, QString>("arguments", "reason");

    const QString write =
        QStringLiteral("Write numbers and ranges such as 1,4-5. Nothing is printed.\n");
    addRow("beyond the last", "--pages 13",
           "The list \"13\" names none of the 12 pages: there is no page 13. Write numbers from 1 "
           "to 12. Nothing is printed.\n");
    addRow("reversed", "--pages 5-2",
           "The list \"5-2\" names none of the 12 pages: \"5-2\" runs backwards. Write 2-5. "
           "Nothing is printed.\n");
    addRow("unfinished", "--pages 4,",
           QStringLiteral("The list \"4,\" cannot be read: a page number is missing beside a "
                          "comma. ") +
               write);
    addRow("zero", "--pages 0",
           QStringLiteral("The list \"0\" cannot be read: \"0\" is not a page number. ") + write);
    addRow("letters", "--pages 2,x",
           QStringLiteral("The list \"2,x\" cannot be read: \"x\" is not a page number. ") + write);
    addRow("empty", "--pages=", QStringLiteral("The list is empty. ") + write);
    addRow("page", "--page 13", "There is no page 13; the last one is 12. Nothing is printed.\n");
    addRow("no form", "--all-pages --form-fill",
           "The document has no form fields. Print it without --form-fill. Nothing is printed.\n");
}

void TestPdfCommands::printsNothingForPagesThatDoNotExist()
{
    QFETCH(QString, arguments);
    QVERIFY(PdfSamples::writeNumbered(path("in.pdf"), 12));
    QCOMPARE(
        run(QStringLiteral("--document in.pdf --output out.pdf --screenshot out.png ") + arguments),
        2);
    QTEST(error(), "reason");
    QCOMPARE(out(), QString());
    QVERIFY(!QFile::exists(path("out.pdf")));
    QVERIFY(!QFile::exists(path("out.png")));
}

void TestPdfCommands::failuresAreExplained_data()
{
    addColumns<QString, QString>("arguments", "reason");

    addRow("missing", "--document gone.pdf --all-pages --output out.pdf",
           "The file \"gone.pdf\" does not exist.\n");
    addRow("broken", "--document broken.pdf --page 1 --output out.pdf",
           "The file \"broken.pdf\" is not a PDF document, or "
           "it is damaged. Open another file.\n");
    addRow("encrypted", "--document locked.pdf --pages 1 --output out.pdf",
           "The file \"locked.pdf\" is protected by a password. Open a copy without one.\n");
    addRow("broken, picture", "--document broken.pdf --screenshot out.png",
           "The file \"broken.pdf\" is not a PDF document, or it is damaged. Open another file.\n");
    addRow("folder", "--document in.pdf --page 1 --output no/out.pdf",
           "The folder \"%1/no\" does not exist. Choose another folder.\n");
    addRow("printer", "--document in.pdf --page 1 --printer Nobody",
           "There is no printer \"Nobody\". Choose one that the panel lists.\n");
    addRow("itself", "--document in.pdf --page 1 --output in.pdf",
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
    QCOMPARE(error(),
             reason.contains(QStringLiteral("%1")) ? reason.arg(m_folder->path()) : reason);
    QCOMPARE(out(), QString());
    QVERIFY(!QFile::exists(path("out.pdf")));
    QVERIFY(!QFile::exists(path("out.png")));
    QCOMPARE(PdfOutput::texts(path("in.pdf")).size(), qsizetype(3));
}

void TestPdfCommands::optionsReachTheSheets()
{
    const PdfSamples::Page page{QSizeF(300, 400), "0 300 100 100 re f", {}};
    QVERIFY(PdfSamples::write(path("in.pdf"), PdfSamples::pages({page})));
    const QString command =
        QStringLiteral("--document in.pdf --page 1 --output out.pdf --overwrite ");
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
    QCOMPARE(error(), QString());
    QCOMPARE(PdfOutput::texts(path("out.pdf")),
             (QStringList{QStringLiteral("Third filled"), QString()}));
}

void TestPdfCommands::documentThatMayNotBePrinted()
{
    QVERIFY(PdfSamples::write(path("in.pdf"),
                              PdfSamples::encrypted(PdfSamples::form(), QByteArray(), false)));
    QCOMPARE(run(QStringLiteral("--document in.pdf --all-pages --output out.pdf")), 1);
    QCOMPARE(error(), QStringLiteral("The document cannot be printed: the author of the document "
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
    QCOMPARE(error(), QString());
    QCOMPARE(out(), QStringLiteral("Printed 1 page to %1\nSaved a picture of the window to %2\n")
                        .arg(path("out.pdf"), path("a.png")));
    QCOMPARE(QImage(path("a.png")).size(), QSize(1010, 540));
    QCOMPARE(run(picture.arg(QStringLiteral("b.png"))), 0);
    QCOMPARE(QImage(path("b.png")).size(), QSize(1010, 540));
    QVERIFY(QImage(path("a.png")) != QImage(path("b.png")));
}

void TestPdfCommands::savesPicturesOfTheStates_data()
{
    addColumns<QString, bool>("arguments", "dialog");

    addRow("dialog", "--state multipage", true);
    addRow("dialog, given document", "--state multipage --document in.pdf", true);
    addRow("page", "--state document", false);
    addRow("page, given document", "--state document --document in.pdf", false);
}

void TestPdfCommands::savesPicturesOfTheStates()
{
    QFETCH(QString, arguments);
    QFETCH(bool, dialog);
    QVERIFY(PdfSamples::writeNumbered(path("in.pdf"), 12));
    QCOMPARE(run(arguments + QStringLiteral(" --screenshot out.png")), 0);
    QCOMPARE(error(), QString());
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
        QVERIFY2(out().contains(QString::fromLatin1(text)), text);
    }
}

QTEST_MAIN(TestPdfCommands)

#include "tst_pdfcommands.moc"
