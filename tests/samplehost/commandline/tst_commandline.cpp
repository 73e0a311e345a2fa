// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/commandline.h"
#include "support/stricttest.h"

#include <QtCore/QDir>

using namespace SampleHost;
using Records = CommandLine::Records;

namespace {

CommandLine parse(const QString& line, const HostParts& parts = HostParts())
{
    QStringList arguments{QStringLiteral("samplehost")};
    arguments += line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return parseCommandLine(arguments, parts);
}

constexpr HostParts withoutDocuments{false, true};

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
    void replacesOnlyIfAsked_data();
    void replacesOnlyIfAsked();
    void testControlsFollowWhatNeedsThem();
    void reportsProblems_data();
    void reportsProblems();
    void recognisesWorkWithoutAUser_data();
    void recognisesWorkWithoutAUser();
    void appliesOnlyTheGivenOptions();
    void helpNamesEveryState();
    void helpNamesMissingParts_data();
    void helpNamesMissingParts();
    void helpLeavesOutWhatIsMissing();
    void whatIsMissingIsRefused_data();
    void whatIsMissingIsRefused();
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
    addColumns<QString, Records, int, bool>("line", "records", "current", "headless");

    addRow("all", "--all --output x.pdf", Records::All, 1, true);
    addRow("current", "--current 12 --output x.pdf", Records::Current, 12, true);
    addRow("picture", "--screenshot x.png", Records::None, 1, true);
    addRow("state", "--state supply", Records::None, 1, false);
    addRow("printer", "--all --printer P", Records::All, 1, true);
    // A list that no panel would take is the panel's to refuse.
    addRow("any list", "--print=-- --output x.pdf", Records::List, 1, true);
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

void TestCommandLine::replacesOnlyIfAsked_data()
{
    addColumns<QString, ReplacePolicy>("line", "policy");

    addRow("user", "--output out.pdf", ReplacePolicy::Ask);
    addRow("user, overwrite", "--overwrite", ReplacePolicy::Replace);
    addRow("no user", "--all --output out.pdf", ReplacePolicy::Refuse);
    addRow("no user, overwrite", "--all --output out.pdf --overwrite", ReplacePolicy::Replace);
    addRow("picture", "--screenshot out.png", ReplacePolicy::Refuse);
}

void TestCommandLine::replacesOnlyIfAsked()
{
    QFETCH(QString, line);
    const CommandLine command = parse(line);
    QCOMPARE(command.problem, QString());
    HostSettings settings;
    command.applyTo(settings);
    QTEST(settings.replacePolicy(), "policy");
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

void TestCommandLine::reportsProblems_data()
{
    addColumns<QString, QString>("line", "problem");

    addRow("two selections", "--all --print 1 --output x.pdf",
           "Only one of --print, --all and --current can be used.");
    addRow("two modes", "--sequence --replicate",
           "Only one of --sequence and --replicate can be used.");
    addRow("no target", "--print 1", "Where to? Add --output FILE.pdf or --printer NAME.");
    addRow("empty output", "--all --output=", "--output needs a file name.");
    addRow("empty picture", "--screenshot=", "--screenshot needs a file name.");
    addRow("no copies", "--copies 0", "--copies needs a number from 1 to 999, not \"0\".");
    addRow("too many copies", "--copies 1000",
           "--copies needs a number from 1 to 999, not \"1000\".");
    addRow("record 0", "--current 0 --output x.pdf",
           "--current needs a number from 1 to 2147483647, not \"0\".");
    addRow("one file twice", "--print 1 --output out.pdf --screenshot ./out.pdf",
           "--screenshot and --output need different files.");
    addRow("sheet", "--nup 2", "--nup needs rows x columns such as 2x3, not \"2\".");
    addRow("paper", "--paper A5", "--paper needs label, a4 or letter, not \"a5\".");
    addRow("state", "--state odd",
           "--state needs one of plain, list-nup, supply, pipe, "
           "test-controls, preview-portrait, preview-landscape, "
           "catalog, quickprint, document, multipage, not \"odd\".");
    addRow("port", "--port x", "--port needs a number from 1 to 65535, not \"x\".");
    addRow("two orientations", "--print 1 --preview --portrait --landscape --output x.pdf",
           "Only one of --portrait and --landscape can be used.");
    addRow("orientation of nothing", "--print 1 --portrait --output x.pdf",
           "--portrait and --landscape need --preview.");
    addRow("preview of nothing", "--preview --output x.pdf",
           "--preview needs --print, --all or --current.");
    addRow("preview without a target", "--preview --print 1",
           "Where to? Add --output FILE.pdf or --printer NAME.");
    addRow("catalogue without a target", "--catalog EXIT",
           "Where to? Add --output FILE.pdf or --printer NAME.");
    addRow("size of nothing", "--size 1x1", "--size needs --catalog NAME.");
    addRow("no item", "--catalog= --output x.pdf", "--catalog needs the name of an item.");
    addRow("half a size", "--catalog EXIT --size 10x --output x.pdf",
           "--size needs length x width such as 10x7, not \"10x\".");
    addRow("one size", "--catalog EXIT --size 10 --output x.pdf",
           "--size needs length x width such as 10x7, not \"10\".");
    addRow("item and records", "--catalog EXIT --all --output x.pdf",
           "--all cannot be used with --catalog.");
    addRow("item and sheet", "--catalog EXIT --nup 2x2 --output x.pdf",
           "--nup cannot be used with --catalog.");
    addRow("unknown", "--odd", "Unknown option 'odd'. --help lists the options.");
    addRow("stray word", "label.pdf", "\"label.pdf\" is not an option. --help lists the options.");
}

void TestCommandLine::reportsProblems()
{
    QFETCH(QString, line);
    QTEST(parse(line).problem, "problem");
}

void TestCommandLine::recognisesWorkWithoutAUser_data()
{
    addColumns<QByteArrayList, bool>("arguments", "headless");

    addRow("nothing", QByteArrayList{}, false);
    addRow("print", QByteArrayList{"--print", "1"}, true);
    addRow("joined", QByteArrayList{"--print=1"}, true);
    addRow("late", QByteArrayList{"--output", "x", "--all"}, true);
    addRow("picture", QByteArrayList{"--screenshot", "x"}, true);
    addRow("help", QByteArrayList{"-h"}, true);
    addRow("value", QByteArrayList{"--database", "all"}, false);
    addRow("other option", QByteArrayList{"--print-to-file"}, false);
    addRow("empty", QByteArrayList{"", "-", "--"}, false);
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

void TestCommandLine::appliesOnlyTheGivenOptions()
{
    HostSettings settings;
    const QString folder = QDir::rootPath() + QStringLiteral("tmp");
    settings.setOutputPath(folder + QStringLiteral("/a.pdf"));
    settings.setPaper(Paper::Letter);
    settings.setNup(NupLayout{3, 3});
    parse(QString()).applyTo(settings);
    QCOMPARE(settings.outputPath(), folder + QStringLiteral("/a.pdf"));
    QCOMPARE(settings.paper(), Paper::Letter);
    QCOMPARE(settings.nup().text(), QStringLiteral("3x3"));
    parse(QStringLiteral("--output %1/b.pdf --paper label --nup 1x1").arg(folder))
        .applyTo(settings);
    QCOMPARE(settings.outputPath(), folder + QStringLiteral("/b.pdf"));
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

void TestCommandLine::helpNamesMissingParts_data()
{
    addColumns<bool, bool, QString>("documents", "printQueues", "end");

    const QString noDocuments = QStringLiteral("This build has no PDF documents.\n");
    const QString noQueues = QStringLiteral(
        "This build has no print queues of CUPS: the system's own printing is used.\n");
    addRow("none", true, true, QString());
    addRow("documents", false, true, noDocuments);
    addRow("print queues", true, false, noQueues);
    addRow("both", false, false, noDocuments + noQueues);
}

void TestCommandLine::helpNamesMissingParts()
{
    QFETCH(bool, documents);
    QFETCH(bool, printQueues);
    QFETCH(QString, end);
    const QString help = commandLineHelp({documents, printQueues});
    QCOMPARE(help.count(QStringLiteral("This build")), end.count(QLatin1Char('\n')));
    QVERIFY2(end.isEmpty() || help.endsWith(QStringLiteral("\n\n") + end), qPrintable(help));
}

void TestCommandLine::helpLeavesOutWhatIsMissing()
{
    const QString help = commandLineHelp(withoutDocuments).simplified();
    const QString all = commandLineHelp().simplified();
    for (const char* text : {"--document", "--pages", "--all-pages", "--page ", "--fit", "--no-fit",
                             "--rotate180", "--form-fill", ", document", "multipage"}) {
        QVERIFY2(all.contains(QLatin1String(text)), text);
        QVERIFY2(!help.contains(QLatin1String(text)), text);
    }
    for (const char* text : {"--print ", "--catalog ", "--printer ", "quickprint"}) {
        QVERIFY2(help.contains(QLatin1String(text)), text);
    }
}

void TestCommandLine::whatIsMissingIsRefused_data()
{
    addColumns<QString, QString>("line", "problem");

    const QString option = QStringLiteral("--%1 cannot be used: this build has no PDF documents.");
    addRow("document", "--document x.pdf", option.arg(QStringLiteral("document")));
    addRow("pages", "--document x.pdf --pages 1 --output y.pdf",
           option.arg(QStringLiteral("document")));
    addRow("without the document", "--all-pages --output y.pdf",
           option.arg(QStringLiteral("all-pages")));
    addRow("beside labels", "--print 1 --fit --output y.pdf", option.arg(QStringLiteral("fit")));
    addRow("state", "--state multipage",
           "The state \"multipage\" cannot be shown: this build has no PDF documents.");
    addRow("unknown state", "--state odd",
           "--state needs one of plain, list-nup, supply, pipe, test-controls, "
           "preview-portrait, preview-landscape, catalog, quickprint, not \"odd\".");
    addRow("labels", "--print 1 --output y.pdf", QString());
}

void TestCommandLine::whatIsMissingIsRefused()
{
    QFETCH(QString, line);
    QTEST(parse(line, withoutDocuments).problem, "problem");
}

QTEST_MAIN(TestCommandLine)

#include "tst_commandline.moc"
