// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/documentfaultfixture.h"
#include "samplehost/support/fulldisk.h"
#include "samplehost/support/hostprogram.h"
#include "support/stricttest.h"

#include <QtCore/QFileInfo>

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

namespace {

/** Makes something in a folder where a file cannot be written, and says what is wrong with it. */
struct Obstacle
{
    const char* name;
    /** The file to print to, in the folder. */
    QString file;
    /** The message, with %1 for the folder. */
    QString message;
    std::function<bool(const QString& folder)> build;
};

QString unwritable(const QString& file, const QString& reason)
{
    return QStringLiteral("The file \"%1/") + file + QStringLiteral("\" cannot be written: ") +
           reason + QLatin1Char('.');
}

bool makeLink(const QString& folder, const char* target)
{
    return QFile::link(QString::fromLatin1(target), folder + QStringLiteral("/out.pdf"));
}

QList<Obstacle> obstacles()
{
    const QString out = QStringLiteral("out.pdf");
    const QString tooLong(300, QLatin1Char('n'));
    const auto nothing = [](const QString&) { return true; };
    return {
        {"missing folder", QStringLiteral("missing/out.pdf"),
         QStringLiteral("The folder \"%1/missing\" does not exist. Choose another folder."),
         nothing},
        {"below a file", QStringLiteral("plain/out.pdf"),
         QStringLiteral("The folder \"%1/plain\" does not exist. Choose another folder."),
         [](const QString& folder) {
             return PdfSamples::write(folder + QStringLiteral("/plain"), "x");
         }},
        {"a folder", out, unwritable(out, QStringLiteral("it is a folder")),
         [](const QString& folder) { return QDir(folder).mkpath(QStringLiteral("out.pdf/kept")); }},
        {"a pipe", out, unwritable(out, QStringLiteral("it is not an ordinary file")),
         [](const QString& folder) {
             return mkfifo(QFile::encodeName(folder + QStringLiteral("/out.pdf")).constData(),
                           0666) == 0;
         }},
        {"a device", out, unwritable(out, QStringLiteral("it is not an ordinary file")),
         [](const QString& folder) { return makeLink(folder, "/dev/full"); }},
        {"a link to nowhere", out, unwritable(out, QStringLiteral("No such file or directory")),
         [](const QString& folder) { return makeLink(folder, "missing/out.pdf"); }},
        {"name too long", tooLong, unwritable(tooLong, QStringLiteral("File name too long")),
         nothing},
    };
}

} // namespace

Q_DECLARE_METATYPE(Obstacle)

/** Outputs that cannot be written, must not be replaced, or have odd names. */
class TestHostFaultsOutput : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void obstacle_data();
    void obstacle();
    void readOnlyDisk();
    void programMeetsObstacle_data();
    void programMeetsObstacle();
    void filesInUseAreKept_data();
    void filesInUseAreKept();
    void programKeepsFilesInUse_data();
    void programKeepsFilesInUse();
    void linksAreFollowed();
    void oddNames_data();
    void oddNames();
};

void TestHostFaultsOutput::obstacle_data()
{
    addColumns<Printout, Obstacle>("printout", "obstacle");
    const auto all = obstacles();
    for (const Obstacle& obstacle : all) {
        QTest::addRow("labels, %s", obstacle.name) << Printout::Labels << obstacle;
        QTest::addRow("catalogue item, %s", obstacle.name) << Printout::Item << obstacle;
        QTest::addRow("document, %s", obstacle.name) << Printout::Document << obstacle;
    }
}

void TestHostFaultsOutput::obstacle()
{
    QFETCH(Printout, printout);
    QFETCH(Obstacle, obstacle);
    FaultFixture host;
    const QString folder = host.path("way");
    QVERIFY(QDir().mkdir(folder) && obstacle.build(folder));
    host.window->settings().setOutputPath(folder + QLatin1Char('/') + obstacle.file);
    QVERIFY(host.choose(printout));
    const QString chosen = host.choices(printout);
    const QStringList names = namesIn(folder);
    const QFileInfo before(folder + QStringLiteral("/out.pdf"));

    QCOMPARE(host.print(printout), std::optional(Outcome::Failed));
    QCOMPARE(host.message, obstacle.message.arg(folder));
    QCOMPARE(host.shown, host.message);
    QCOMPARE(host.choices(printout), chosen);
    QCOMPARE(namesIn(folder), names);
    const QFileInfo after(folder + QStringLiteral("/out.pdf"));
    QCOMPARE(after.symLinkTarget(), before.symLinkTarget());
    QCOMPARE(after.isFile(), before.isFile());

    host.window->settings().setOutputPath(folder + QStringLiteral("/good.pdf"));
    QCOMPARE(host.print(printout), std::optional(Outcome::Completed));
    QCOMPARE(int(pdfPages(folder + QStringLiteral("/good.pdf")).size()),
             FaultFixture::pagesOf(printout));
}

// Root may write everywhere but here, and may not mount in every container.
void TestHostFaultsOutput::readOnlyDisk()
{
    FaultFixture host;
    const bool mounts = FullDisk::kinds().contains(FullDisk::Kind::FileSystem);
    if (!mounts && ::geteuid() == 0)
        QSKIP("Root writes everywhere, and nothing can be mounted here.");
    FullDisk disk(mounts ? FullDisk::Kind::FileSystem : FullDisk::Kind::SizeLimit,
                  host.path("disk"));
    QVERIFY(disk.isReady());
    host.window->settings().setOutputPath(disk.path("out.pdf"));
    QVERIFY(PdfSamples::write(disk.path("out.pdf"), "older"));
    QVERIFY(host.choose(Printout::Labels));
    QVERIFY(disk.setReadOnly(true));
    const auto outcome = host.print(Printout::Labels);
    QVERIFY(disk.setReadOnly(false));
    QCOMPARE(outcome, std::optional(Outcome::Failed));
    QVERIFY2(host.message.startsWith(
                 QStringLiteral("The file \"%1\" cannot be written: ").arg(disk.path("out.pdf"))),
             qPrintable(host.message));
    QVERIFY2(!host.message.contains(QStringLiteral("Unknown")), qPrintable(host.message));
    QCOMPARE(contentsOf(disk.path("out.pdf")), QByteArray("older"));
    QCOMPARE(namesIn(host.path("disk")), QStringList(QStringLiteral("out.pdf")));
    QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Completed));
}

void TestHostFaultsOutput::programMeetsObstacle_data()
{
    addColumns<QString, QString, Obstacle>("arguments", "option", "obstacle");
    const QString output = QStringLiteral("--output");
    const auto all = obstacles();
    for (const Obstacle& obstacle : all) {
        QTest::addRow("labels, %s", obstacle.name) << "--print 1-2" << output << obstacle;
        QTest::addRow("document, %s", obstacle.name)
            << "--document in.pdf --pages 2" << output << obstacle;
        QTest::addRow("picture, %s", obstacle.name) << "--metric"
                                                    << "--screenshot" << obstacle;
    }
}

void TestHostFaultsOutput::programMeetsObstacle()
{
    QFETCH(QString, arguments);
    QFETCH(QString, option);
    QFETCH(Obstacle, obstacle);
    const QTemporaryDir folder;
    const QString way = folder.filePath(QStringLiteral("way"));
    QVERIFY(QDir().mkdir(way) && obstacle.build(way));
    QVERIFY(PdfSamples::writeNumbered(folder.filePath(QStringLiteral("in.pdf")), 3));
    const QStringList names = namesIn(way);
    HostProgram program(folder.path());
    arguments += QStringLiteral(" --database chemicals.db");
    QCOMPARE(program.run(arguments.split(QLatin1Char(' ')) +
                         QStringList{option, way + QLatin1Char('/') + obstacle.file}),
             1);
    QCOMPARE(program.error, obstacle.message.arg(way) + QLatin1Char('\n'));
    QCOMPARE(program.out, QString());
    QCOMPARE(namesIn(way), names);
}

void TestHostFaultsOutput::filesInUseAreKept_data()
{
    addColumns<Printout, QString, QString>("printout", "file", "message");
    const QString data = QStringLiteral("Writing \"%1\" would replace the database of the labels. "
                                        "Choose another file.");
    const QString document =
        QStringLiteral("Printing to \"%1\" would replace the document itself. Choose another PDF "
                       "file in the preferences.");
    const std::pair<const char*, Printout> printouts[] = {{"labels", Printout::Labels},
                                                          {"catalogue item", Printout::Item},
                                                          {"document", Printout::Document}};
    for (const auto& [name, printout] : printouts) {
        if (printout == Printout::Document) {
            QTest::addRow("%s, database", name) << printout << "chemicals.db" << data;
        }
        QTest::addRow("%s, link to it", name) << printout << "link.db" << data;
        QTest::addRow("%s, document", name) << printout << "open.pdf" << document;
    }
}

void TestHostFaultsOutput::filesInUseAreKept()
{
    QFETCH(Printout, printout);
    QFETCH(QString, file);
    QFETCH(QString, message);
    FaultFixture host;
    QVERIFY(host.choose(printout));
    QVERIFY(host.openNumbered(FaultFixture::pagesOf(Printout::Document), "open.pdf"));
    host.window->setCurrentPage(host.pageOf(printout));
    QVERIFY(QFile::link(host.path("chemicals.db"), host.path("link.db")));
    const QString path = host.folder.filePath(file);
    const QByteArray contents = contentsOf(path);
    host.window->settings().setOutputPath(path);
    QCOMPARE(host.print(printout), std::optional(Outcome::Failed));
    QCOMPARE(host.message, message.arg(path));
    QCOMPARE(host.shown, host.message);
    QCOMPARE(contentsOf(path), contents);

    host.window->settings().setOutputPath(host.path("good.pdf"));
    QCOMPARE(host.print(printout), std::optional(Outcome::Completed));
}

void TestHostFaultsOutput::programKeepsFilesInUse_data()
{
    QTest::addColumn<QString>("arguments");
    addRow("document", "--document in.pdf --pages 2 --output chemicals.db");
    addRow("document over itself", "--document in.pdf --pages 2 --output in.pdf");
    addRow("picture of a document", "--document in.pdf --screenshot in.pdf");
}

void TestHostFaultsOutput::programKeepsFilesInUse()
{
    QFETCH(QString, arguments);
    const QTemporaryDir folder;
    const QString data = folder.filePath(QStringLiteral("chemicals.db"));
    const QString document = folder.filePath(QStringLiteral("in.pdf"));
    QVERIFY(PdfSamples::writeNumbered(document, 3));
    const QByteArray documentBefore = contentsOf(document);
    HostProgram program(folder.path());
    QCOMPARE(program.run(QStringLiteral("--database chemicals.db --screenshot some.png")), 0);
    const QByteArray dataBefore = contentsOf(data);

    QCOMPARE(program.run(QStringLiteral("--database chemicals.db ") + arguments), 1);
    QVERIFY2(program.error.contains(QStringLiteral(" would replace the ")),
             qPrintable(program.error));
    QCOMPARE(contentsOf(data), dataBefore);
    QCOMPARE(contentsOf(document), documentBefore);
}

void TestHostFaultsOutput::linksAreFollowed()
{
    FaultFixture host;
    QVERIFY(PdfSamples::write(host.path("real.pdf"), "older"));
    QVERIFY(QFile::link(QStringLiteral("real.pdf"), host.outputPath()));
    QVERIFY(host.choose(Printout::Labels));
    QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Completed));
    QVERIFY(QFileInfo(host.outputPath()).isSymLink());
    QCOMPARE(int(pdfPages(host.path("real.pdf")).size()), FaultFixture::pagesOf(Printout::Labels));
}

void TestHostFaultsOutput::oddNames_data()
{
    QTest::addColumn<QString>("name");
    addRow("blanks", "  a b  ");
    addRow("line break", "a\nb.pdf");
    addRow("quotes", "\"a'b`c$(d).pdf");
    addRow("place holders", "%1 %2 %s.pdf");
    addRow("other scripts", QString::fromUtf8("\u00e4\u6f22\U0001F3F7\u202E.pdf"));
    addRow("backslash", "a\\b.pdf");
    addRow("dash", "-rf");
    addRow("longest", QString(255, QLatin1Char('n')));
    addRow("looks like a temporary file", "out.pdf.XXXXXX");
}

void TestHostFaultsOutput::oddNames()
{
    QFETCH(QString, name);
    FaultFixture host;
    QVERIFY(QDir(host.folder.path()).mkdir(QStringLiteral("odd")));
    const QString path = host.path("odd/") + name;
    host.window->settings().setOutputPath(path);
    QVERIFY(host.choose(Printout::Labels));
    QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Completed));
    QCOMPARE(host.message, QStringLiteral("Printed 8 pages to ") + path);
    QCOMPARE(namesIn(host.path("odd")), QStringList(name));
}

QTEST_MAIN(TestHostFaultsOutput)

#include "tst_hostfaults_output.moc"
