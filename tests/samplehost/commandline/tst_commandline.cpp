// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/commandline.h"
#include "support/stricttest.h"

using namespace SampleHost;
using Records = CommandLine::Records;

namespace {

CommandLine parse(const QString& line)
{
    QStringList arguments{QStringLiteral("samplehost")};
    arguments += line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return parseCommandLine(arguments);
}

} // namespace

class TestCommandLine : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingStartsTheWindow();
    void readsAListJob();
    void readsAPreview();
    void readsACatalogueItem();
    void readsRecords_data();
    void readsRecords();
    void readsTheDataSource();
    void testControlsFollowWhatNeedsThem();
    void complains_data();
    void complains();
    void recognisesWorkWithoutAUser_data();
    void recognisesWorkWithoutAUser();
    void appliesOnlyWhatWasSaid();
    void helpNamesEveryState();
};

void TestCommandLine::nothingStartsTheWindow()
{
    const CommandLine command = parse(QString());
    QCOMPARE(command.problem, QString());
    QVERIFY(!command.isHeadless());
    QVERIFY(!command.host.testControls);
    QCOMPARE(command.host.dataSource.driver, QStringLiteral("QSQLITE"));
    QCOMPARE(command.host.dataSource.table, QStringLiteral("chemicals"));
}

void TestCommandLine::readsAListJob()
{
    const CommandLine command = parse(QStringLiteral(
        "--print 1,4-5 --output out.pdf --nup 2x3 --sequence --copies 7 --paper A4 --background"));
    QCOMPARE(command.problem, QString());
    QVERIFY(command.isHeadless());
    QCOMPARE(command.records, Records::List);
    QCOMPARE(command.list, QStringLiteral("1,4-5"));
    QCOMPARE(command.output, QStringLiteral("out.pdf"));
    QCOMPARE(command.nup.value_or(NupLayout{}).text(), QStringLiteral("2x3"));
    QCOMPARE(command.nupMode, NupMode::Sequencing);
    QCOMPARE(command.copies, 7);
    QCOMPARE(command.paper, Paper::A4);
    QVERIFY(command.userBackground);
    QVERIFY(!command.printToFile);
}

void TestCommandLine::readsAPreview()
{
    const CommandLine command =
        parse(QStringLiteral("--preview --landscape --metric --current 3 --screenshot x.png"));
    QCOMPARE(command.problem, QString());
    QVERIFY(command.preview);
    QVERIFY(command.metric);
    QCOMPARE(command.portrait, false);
    QVERIFY(!command.hasTarget());
    QCOMPARE(parse(QStringLiteral("--preview --portrait --all --output x.pdf")).portrait, true);
    QVERIFY(!parse(QStringLiteral("--preview --all --output x.pdf")).portrait.has_value());
    HostSettings settings;
    command.applyTo(settings);
    QVERIFY(settings.isMetric());
}

void TestCommandLine::readsACatalogueItem()
{
    const CommandLine command =
        parse(QStringLiteral("--catalog EXIT --size 2.5Xnan --copies 4 --output x.pdf"));
    QCOMPARE(command.problem, QString());
    QVERIFY(command.isHeadless());
    QCOMPARE(command.catalog.item, QStringLiteral("EXIT"));
    QVERIFY(command.catalog.hasSize());
    QCOMPARE(command.catalog.length, QStringLiteral("2.5"));
    QCOMPARE(command.catalog.width, QStringLiteral("nan"));
    QCOMPARE(command.copies, 4);
    QVERIFY(!parse(QStringLiteral("--catalog EXIT --output x.pdf")).catalog.hasSize());
    QCOMPARE(parse(QStringLiteral("--catalog EXIT --screenshot x.png")).problem, QString());
}

void TestCommandLine::readsRecords_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Records>("records");
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("headless");

    QTest::newRow("all") << QStringLiteral("--all --output x.pdf") << Records::All << 1 << true;
    QTest::newRow("current") << QStringLiteral("--current 12 --output x.pdf") << Records::Current
                             << 12 << true;
    QTest::newRow("picture") << QStringLiteral("--screenshot x.png") << Records::None << 1 << true;
    QTest::newRow("state") << QStringLiteral("--state supply") << Records::None << 1 << false;
    QTest::newRow("printer") << QStringLiteral("--all --printer P") << Records::All << 1 << true;
    // A list that no panel would take is the panel's to refuse.
    QTest::newRow("any list") << QStringLiteral("--print=-- --output x.pdf") << Records::List << 1
                              << true;
}

void TestCommandLine::readsRecords()
{
    QFETCH(QString, line);
    const CommandLine command = parse(line);
    QCOMPARE(command.problem, QString());
    QTEST(command.records, "records");
    QTEST(command.currentRecord, "current");
    QTEST(command.isHeadless(), "headless");
}

void TestCommandLine::readsTheDataSource()
{
    qputenv("SAMPLEHOST_PASSWORD", "secret");
    const CommandLine command = parse(QStringLiteral(
        "--driver QPSQL --host db --port 5433 --database lab --user me --table stock"));
    qunsetenv("SAMPLEHOST_PASSWORD");
    QCOMPARE(command.problem, QString());
    const DataSourceOptions& source = command.host.dataSource;
    QCOMPARE(source.driver, QStringLiteral("QPSQL"));
    QCOMPARE(source.hostName, QStringLiteral("db"));
    QCOMPARE(source.port, 5433);
    QCOMPARE(source.databaseName, QStringLiteral("lab"));
    QCOMPARE(source.userName, QStringLiteral("me"));
    QCOMPARE(source.password, QStringLiteral("secret"));
    QCOMPARE(source.table, QStringLiteral("stock"));
}

void TestCommandLine::testControlsFollowWhatNeedsThem()
{
    QVERIFY(parse(QStringLiteral("--test-controls")).host.testControls);
    QVERIFY(parse(QStringLiteral("--print-to-file")).host.testControls);
    QVERIFY(parse(QStringLiteral("--state test-controls")).host.testControls);
    QVERIFY(!parse(QStringLiteral("--state plain")).host.testControls);
}

void TestCommandLine::complains_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("problem");

    QTest::newRow("two selections")
        << QStringLiteral("--all --print 1 --output x.pdf")
        << QStringLiteral("Only one of --print, --all and --current can be used.");
    QTest::newRow("two modes") << QStringLiteral("--sequence --replicate")
                               << QStringLiteral(
                                      "Only one of --sequence and --replicate can be used.");
    QTest::newRow("no target") << QStringLiteral("--print 1")
                               << QStringLiteral(
                                      "Where to? Add --output FILE.pdf or --printer NAME.");
    QTest::newRow("empty output") << QStringLiteral("--all --output=")
                                  << QStringLiteral("--output needs a file name.");
    QTest::newRow("empty picture")
        << QStringLiteral("--screenshot=") << QStringLiteral("--screenshot needs a file name.");
    QTest::newRow("no copies") << QStringLiteral("--copies 0")
                               << QStringLiteral(
                                      "--copies needs a number from 1 to 999, not \"0\".");
    QTest::newRow("too many copies")
        << QStringLiteral("--copies 1000")
        << QStringLiteral("--copies needs a number from 1 to 999, not \"1000\".");
    QTest::newRow("record 0") << QStringLiteral("--current 0 --output x.pdf")
                              << QStringLiteral(
                                     "--current needs a number from 1 to 2147483647, not \"0\".");
    QTest::newRow("sheet") << QStringLiteral("--nup 2")
                           << QStringLiteral("--nup needs rows x columns such as 2x3, not \"2\".");
    QTest::newRow("paper") << QStringLiteral("--paper A5")
                           << QStringLiteral("--paper needs label, a4 or letter, not \"a5\".");
    QTest::newRow("state") << QStringLiteral("--state odd")
                           << QStringLiteral(
                                  "--state needs one of plain, list-nup, supply, pipe, "
                                  "test-controls, preview-portrait, preview-landscape, "
                                  "catalog, quickprint, document, multipage, not \"odd\".");
    QTest::newRow("port") << QStringLiteral("--port x")
                          << QStringLiteral("--port needs a number from 1 to 65535, not \"x\".");
    QTest::newRow("two orientations")
        << QStringLiteral("--print 1 --preview --portrait --landscape --output x.pdf")
        << QStringLiteral("Only one of --portrait and --landscape can be used.");
    QTest::newRow("orientation of nothing")
        << QStringLiteral("--print 1 --portrait --output x.pdf")
        << QStringLiteral("--portrait and --landscape need --preview.");
    QTest::newRow("preview of nothing")
        << QStringLiteral("--preview --output x.pdf")
        << QStringLiteral("--preview needs --print, --all or --current.");
    QTest::newRow("preview without a target")
        << QStringLiteral("--preview --print 1")
        << QStringLiteral("Where to? Add --output FILE.pdf or --printer NAME.");
    QTest::newRow("catalogue without a target")
        << QStringLiteral("--catalog EXIT")
        << QStringLiteral("Where to? Add --output FILE.pdf or --printer NAME.");
    QTest::newRow("size of nothing")
        << QStringLiteral("--size 1x1") << QStringLiteral("--size needs --catalog NAME.");
    QTest::newRow("no item") << QStringLiteral("--catalog= --output x.pdf")
                             << QStringLiteral("--catalog needs the name of an item.");
    QTest::newRow("half a size") << QStringLiteral("--catalog EXIT --size 10x --output x.pdf")
                                 << QStringLiteral(
                                        "--size needs length x width such as 10x7, not \"10x\".");
    QTest::newRow("one size") << QStringLiteral("--catalog EXIT --size 10 --output x.pdf")
                              << QStringLiteral(
                                     "--size needs length x width such as 10x7, not \"10\".");
    QTest::newRow("item and records") << QStringLiteral("--catalog EXIT --all --output x.pdf")
                                      << QStringLiteral("--all cannot be used with --catalog.");
    QTest::newRow("item and sheet") << QStringLiteral("--catalog EXIT --nup 2x2 --output x.pdf")
                                    << QStringLiteral("--nup cannot be used with --catalog.");
    QTest::newRow("unknown") << QStringLiteral("--odd") << QStringLiteral("Unknown option 'odd'.");
    QTest::newRow("stray word") << QStringLiteral("label.pdf")
                                << QStringLiteral("\"label.pdf\" is not an option.");
}

void TestCommandLine::complains()
{
    QFETCH(QString, line);
    QTEST(parse(line).problem, "problem");
}

void TestCommandLine::recognisesWorkWithoutAUser_data()
{
    QTest::addColumn<QByteArrayList>("arguments");
    QTest::addColumn<bool>("headless");

    QTest::newRow("nothing") << QByteArrayList{} << false;
    QTest::newRow("print") << QByteArrayList{"--print", "1"} << true;
    QTest::newRow("joined") << QByteArrayList{"--print=1"} << true;
    QTest::newRow("late") << QByteArrayList{"--output", "x", "--all"} << true;
    QTest::newRow("picture") << QByteArrayList{"--screenshot", "x"} << true;
    QTest::newRow("help") << QByteArrayList{"-h"} << true;
    QTest::newRow("value") << QByteArrayList{"--database", "all"} << false;
    QTest::newRow("other option") << QByteArrayList{"--print-to-file"} << false;
    QTest::newRow("empty") << QByteArrayList{"", "-", "--"} << false;
}

void TestCommandLine::recognisesWorkWithoutAUser()
{
    QFETCH(QByteArrayList, arguments);
    QList<const char*> raw{"samplehost"};
    for (const QByteArray& argument : std::as_const(arguments)) {
        raw.append(argument.constData());
    }
    QTEST(looksHeadless(int(raw.size()), raw.constData()), "headless");
}

void TestCommandLine::appliesOnlyWhatWasSaid()
{
    HostSettings settings;
    settings.setOutputPath(QStringLiteral("/tmp/a.pdf"));
    settings.setPaper(Paper::Letter);
    settings.setNup(NupLayout{3, 3});
    parse(QString()).applyTo(settings);
    QCOMPARE(settings.outputPath(), QStringLiteral("/tmp/a.pdf"));
    QCOMPARE(settings.paper(), Paper::Letter);
    QCOMPARE(settings.nup().text(), QStringLiteral("3x3"));
    parse(QStringLiteral("--output /tmp/b.pdf --paper label --nup 1x1")).applyTo(settings);
    QCOMPARE(settings.outputPath(), QStringLiteral("/tmp/b.pdf"));
    QCOMPARE(settings.paper(), Paper::LabelSize);
    QCOMPARE(settings.nup().text(), QStringLiteral("1x1"));
}

void TestCommandLine::helpNamesEveryState()
{
    const QString help = commandLineHelp().simplified();
    QVERIFY(help.contains(QStringLiteral("--print <list>")));
    const QStringList states = demoStateNames();
    QCOMPARE(states.size(), qsizetype(11));
    for (const QString& state : states) {
        QVERIFY2(help.contains(state), qPrintable(state));
    }
}

QTEST_MAIN(TestCommandLine)

#include "tst_commandline.moc"
