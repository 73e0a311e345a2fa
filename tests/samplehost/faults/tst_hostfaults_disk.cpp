// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/documentfaultfixture.h"
#include "samplehost/support/fulldisk.h"
#include "samplehost/support/hostprogram.h"
#include "support/stricttest.h"

#include <QtCore/QSettings>
#include <QtGui/QAction>
#include <QtWidgets/QStatusBar>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;
using Kind = FullDisk::Kind;

/** The host on a disk that is full, until the user makes room. */
class TestHostFaultsDisk : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void printing_data();
    void printing();
    void settings_data();
    void settings();
    void firstStart_data();
    void firstStart();
    void program_data();
    void program();
    void programsFirstStart_data();
    void programsFirstStart();

private:
    static void addKinds();
};

// A column for the kind of disk, and a row for each; the tests run on all that work here.
void TestHostFaultsDisk::addKinds()
{
    QTest::addColumn<Kind>("kind");
    const auto kinds = FullDisk::kinds();
    for (const Kind kind : kinds) {
        QTest::newRow(FullDisk::name(kind)) << kind;
    }
}

void TestHostFaultsDisk::printing_data()
{
    addColumns<Printout, Kind, int>("printout", "kind", "bytesLeft");
    const std::pair<const char*, Printout> printouts[] = {
        {"labels", Printout::Labels},      {"sheets", Printout::Sheets},
        {"test file", Printout::TestFile}, {"catalogue item", Printout::Item},
        {"document", Printout::Document},
    };
    const auto kinds = FullDisk::kinds();
    for (const auto& [name, printout] : printouts) {
        for (const Kind kind : kinds) {
            QTest::addRow("%s, %s, full", name, FullDisk::name(kind)) << printout << kind << 0;
            QTest::addRow("%s, %s, nearly", name, FullDisk::name(kind)) << printout << kind << 8192;
        }
    }
}

void TestHostFaultsDisk::printing()
{
    QFETCH(Printout, printout);
    QFETCH(Kind, kind);
    QFETCH(int, bytesLeft);
    FaultFixture host;
    FullDisk disk(kind, host.path("disk"));
    QVERIFY(disk.isReady());
    host.window->settings().setOutputPath(disk.path("out.pdf"));
    QVERIFY(host.choose(printout));
    const QString output = host.outputOf(printout);
    QVERIFY(printout == Printout::TestFile || PdfSamples::write(output, "older"));
    const QString chosen = host.choices(printout);

    QVERIFY(disk.fill(bytesLeft));
    const auto outcome = host.print(printout);
    disk.free();
    QCOMPARE(outcome, std::optional(Outcome::Failed));
    const QString reason = kind == Kind::FileSystem ? QStringLiteral("No space left on device")
                                                    : QStringLiteral("File too large");
    QCOMPARE(host.message,
             QStringLiteral("The file \"%1\" cannot be written: %2.").arg(output, reason));
    QCOMPARE(host.shown, host.message);
    QCOMPARE(host.choices(printout), chosen);
    if (printout == Printout::TestFile) {
        QCOMPARE(namesIn(QFileInfo(output).path()), QStringList());
    } else {
        QCOMPARE(namesIn(QFileInfo(output).path()), QStringList(QStringLiteral("out.pdf")));
        QCOMPARE(contentsOf(output), QByteArray("older"));
    }

    QCOMPARE(host.print(printout), std::optional(Outcome::Completed));
    QCOMPARE(host.shown, QString());
    QCOMPARE(int(pdfPages(output).size()), FaultFixture::pagesOf(printout));
}

void TestHostFaultsDisk::settings_data()
{
    addKinds();
}

void TestHostFaultsDisk::settings()
{
    QFETCH(Kind, kind);
    FaultFixture host;
    FullDisk disk(kind, host.path("disk"));
    QVERIFY(disk.isReady());
    QCoreApplication::setOrganizationName(QStringLiteral("printpanels-test"));
    QCoreApplication::setApplicationName(QString::fromLatin1(QTest::currentDataTag()).remove(u' '));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, disk.path("settings"));
    host.window->persistSettings();
    HostSettings& settings = host.window->settings();
    settings.setNup(NupLayout{1, 2});
    const QString file = QSettings().fileName();
    const QByteArray older = contentsOf(file);
    QVERIFY(older.contains("1x2"));

    QVERIFY(disk.fill());
    settings.setNup(NupLayout{2, 2});
    const QString message = host.window->statusBar()->currentMessage();
    const bool saved = host.window->saveSettings();
    disk.free();
    QCOMPARE(message, QStringLiteral("The settings cannot be kept for the next start. Check that "
                                     "your settings folder can be written."));
    QVERIFY(!saved);
    QCOMPARE(contentsOf(file), older);
    QCOMPARE(settings.nup(), (NupLayout{2, 2}));

    QVERIFY(host.window->saveSettings());
    QVERIFY(contentsOf(file).contains("2x2"));
}

void TestHostFaultsDisk::firstStart_data()
{
    addColumns<Kind, int>("kind", "bytesLeft");
    const auto kinds = FullDisk::kinds();
    for (const Kind kind : kinds) {
        for (const int left : {0, 4096, 16384}) {
            QTest::addRow("%s, %d bytes left", FullDisk::name(kind), left) << kind << left;
        }
    }
}

void TestHostFaultsDisk::firstStart()
{
    QFETCH(Kind, kind);
    QFETCH(int, bytesLeft);
    const QTemporaryDir folder;
    FullDisk disk(kind, folder.filePath(QStringLiteral("disk")));
    QVERIFY(disk.isReady());
    HostOptions options;
    options.dataSource.databaseName = disk.path("chemicals.db");
    QVERIFY(disk.fill(bytesLeft));
    MainWindow window(options);
    window.show();
    disk.free();
    const QString problem = window.dataSourceProblem();
    QVERIFY2(problem.startsWith(QStringLiteral("The database file %1 cannot be created: ")
                                    .arg(options.dataSource.databaseName)),
             qPrintable(problem));
    QVERIFY2(problem.contains(QStringLiteral("disk")), qPrintable(problem));
    QCOMPARE(window.statusBar()->currentMessage(), problem);
    QCOMPARE(namesIn(folder.filePath(QStringLiteral("disk"))), QStringList());

    window.findChild<QAction*>(QStringLiteral("reloadDataAction"))->trigger();
    QCOMPARE(window.dataSourceProblem(), QString());
    QVERIFY(window.labelPage().navigator().count() >= 40);
    QVERIFY(window.labelPage().findChild<QWidget*>(QStringLiteral("PrintButton"))->isEnabled());
    QCOMPARE(namesIn(folder.filePath(QStringLiteral("disk"))),
             QStringList(QStringLiteral("chemicals.db")));
}

void TestHostFaultsDisk::program_data()
{
    addColumns<Kind, QString, QString>("kind", "arguments", "file");
    const std::pair<const char*, const char*> commands[] = {
        {"--all --output disk/out", "disk/out"},
        {"--print 1-9 --nup 2x2 --sequence --output disk/out", "disk/out"},
        {"--print 3 --print-to-file --output disk/out", "disk/guest/logs/printTest_001.prn"},
        {"--catalog EYE_WASH_STATION --output disk/out", "disk/out"},
        {"--document in.pdf --all-pages --output disk/out", "disk/out"},
        {"--screenshot disk/out", "disk/out"},
    };
    const auto kinds = FullDisk::kinds();
    for (const auto& [arguments, file] : commands) {
        for (const Kind kind : kinds) {
            QTest::addRow("%s, %s", arguments, FullDisk::name(kind))
                << kind << QString::fromLatin1(arguments) << QString::fromLatin1(file);
        }
    }
}

void TestHostFaultsDisk::program()
{
    QFETCH(Kind, kind);
    QFETCH(QString, arguments);
    QFETCH(QString, file);
    const QTemporaryDir folder;
    FullDisk disk(kind, folder.filePath(QStringLiteral("disk")));
    QVERIFY(disk.isReady());
    QVERIFY(PdfSamples::writeNumbered(folder.filePath(QStringLiteral("in.pdf")), 3));
    QVERIFY(PdfSamples::write(disk.path("out"), "older"));
    arguments += QStringLiteral(" --overwrite --database chemicals.db");
    HostProgram program(folder.path());
    // So that the records are there; nothing else is written.
    QCOMPARE(program.run(QStringLiteral("--print 9999 --database chemicals.db --output x.pdf")), 2);

    QVERIFY(disk.fill());
    const int code = program.run(arguments);
    disk.free();
    QCOMPARE(code, 1);
    QVERIFY2(program.error.contains(QStringLiteral("%1\" cannot be written: ").arg(file)),
             qPrintable(program.error));
    QCOMPARE(program.error.count(QLatin1Char('\n')), qsizetype(1));
    QCOMPARE(program.out, QString());
    QCOMPARE(contentsOf(disk.path("out")), QByteArray("older"));
    QVERIFY(!QFile::exists(disk.path("guest/logs/printTest_001.prn")));

    QCOMPARE(program.run(arguments), 0);
    QVERIFY(contentsOf(folder.filePath(file)).size() > 1000);
}

void TestHostFaultsDisk::programsFirstStart_data()
{
    addKinds();
}

void TestHostFaultsDisk::programsFirstStart()
{
    QFETCH(Kind, kind);
    const QTemporaryDir folder;
    FullDisk disk(kind, folder.filePath(QStringLiteral("disk")));
    QVERIFY(disk.isReady());
    HostProgram program(folder.path());
    const QString arguments = QStringLiteral("--current 1 --database disk/db --output out.pdf");
    QVERIFY(disk.fill());
    const int code = program.run(arguments);
    disk.free();
    QCOMPARE(code, 1);
    QVERIFY2(program.error.startsWith(
                 QStringLiteral("The database file %1 cannot be created: ").arg(disk.path("db"))),
             qPrintable(program.error));
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("out.pdf"))));
    QCOMPARE(namesIn(folder.filePath(QStringLiteral("disk"))), QStringList());
    QCOMPARE(program.run(arguments), 0);
}

QTEST_MAIN(TestHostFaultsDisk)

#include "tst_hostfaults_disk.moc"
