// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/hostfixture.h"
#include "support/stricttest.h"

#include <QtCore/QProcess>

/** Runs the program as its users do, without a display. */
class TestSampleHost : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void printsTheTypedList();
    void printsLists_data();
    void printsLists();
    void printsNothingForListsThatNameNothing_data();
    void printsNothingForListsThatNameNothing();
    void printsCurrentAndAll();
    void savesPicturesOfEveryState_data();
    void savesPicturesOfEveryState();
    void printsAndSavesAPicture();
    void printsToAFile();
    void failuresAreExplained_data();
    void failuresAreExplained();
    void noteOnAModeThatIsNotOffered();
    void needsNoDisplayWhateverTheEnvironmentSays();

private:
    /** Starts the program with the database and waits for its end; its exit code, or -1. */
    int run(const QStringList& arguments);
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    QStringList recordsPrinted() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcessEnvironment m_environment;
    QString m_out;
    QString m_error;
};

void TestSampleHost::init()
{
    StrictTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.remove(QStringLiteral("DISPLAY"));
    m_environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    m_environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    m_environment.insert(QStringLiteral("HOME"), m_folder->path());
}

int TestSampleHost::run(const QStringList& arguments)
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(m_folder->path());
    process.start(QStringLiteral(SAMPLEHOST_PROGRAM),
                  QStringList{QStringLiteral("--database"), path("chemicals.db")} + arguments);
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

// The pages of out.pdf as 1-based record numbers, "?" for a page of no known record.
QStringList TestSampleHost::recordsPrinted() const
{
    SampleHost::DataSourceOptions options;
    options.databaseName = path("chemicals.db");
    const auto source = SampleHost::RecordSource::open(options);
    const QStringList pages = pdfPages(path("out.pdf"));
    QStringList records;
    for (const QString& page : pages) {
        QString found = QStringLiteral("?");
        for (int i = 0; source && i < source->count(); ++i) {
            if (page.startsWith(source->record(i)->name + QStringLiteral(" CAS "))) {
                found = QString::number(i + 1);
            }
        }
        records.append(found);
    }
    return records;
}

void TestSampleHost::printsTheTypedList()
{
    QCOMPARE(run({QStringLiteral("--print"), QStringLiteral("1,4-5"), QStringLiteral("--output"),
                  QStringLiteral("out.pdf")}),
             0);
    QCOMPARE(m_error, QString());
    QCOMPARE(m_out, QStringLiteral("Printed 3 pages to %1\n").arg(path("out.pdf")));
    QCOMPARE(recordsPrinted(),
             (QStringList{QStringLiteral("1"), QStringLiteral("4"), QStringLiteral("5")}));
}

void TestSampleHost::printsLists_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("records");

    QTest::newRow("typed order") << QStringLiteral("--print 3,1-2") << QStringLiteral("3 1 2");
    QTest::newRow("repeated") << QStringLiteral("--print 2,2,1-2") << QStringLiteral("2 2 1 2");
    QTest::newRow("reversed range") << QStringLiteral("--print 3,9-8,4") << QStringLiteral("3 4");
    QTest::newRow("beyond the last")
        << QStringLiteral("--print 9000-9999,7") << QStringLiteral("7");
    QTest::newRow("copies") << QStringLiteral("--print 5,4 --copies 2")
                            << QStringLiteral("5 5 4 4");
    // The text of a sheet begins with its first label.
    QTest::newRow("replicating") << QStringLiteral("--print 1-3 --nup 2x2 --replicate")
                                 << QStringLiteral("1 2 3");
    QTest::newRow("sequencing") << QStringLiteral("--print 1-5 --nup 2x2 --sequence")
                                << QStringLiteral("1 5");
    QTest::newRow("sequencing, copies")
        << QStringLiteral("--print 1-5 --nup 2x2 --sequence --copies 2")
        << QStringLiteral("1 5 1 5");
}

void TestSampleHost::printsLists()
{
    QFETCH(QString, arguments);
    QFETCH(QString, records);
    QCOMPARE(run(arguments.split(QLatin1Char(' ')) +
                 QStringList{QStringLiteral("--output"), path("out.pdf")}),
             0);
    QCOMPARE(m_error, QString());
    QCOMPARE(recordsPrinted().join(QLatin1Char(' ')), records);
}

void TestSampleHost::printsNothingForListsThatNameNothing_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("reason");

    const QString unreadable = QStringLiteral("The list \"%1\" cannot be read");
    QTest::newRow("unfinished") << QStringLiteral("1,") << unreadable;
    QTest::newRow("unfinished range") << QStringLiteral("4-") << unreadable;
    QTest::newRow("zero") << QStringLiteral("0") << unreadable;
    QTest::newRow("five digits") << QStringLiteral("12345") << unreadable;
    QTest::newRow("blank inside") << QStringLiteral("1, 2") << unreadable;
    QTest::newRow("letters") << QStringLiteral("all") << unreadable;
    QTest::newRow("twice a range") << QStringLiteral("1-2-3") << unreadable;
    QTest::newRow("line break") << QStringLiteral("1\n2") << unreadable;
    QTest::newRow("reversed") << QStringLiteral("5-4")
                              << QStringLiteral("The list \"%1\" names none of the ");
    QTest::newRow("beyond the last")
        << QStringLiteral("9999") << QStringLiteral("The list \"%1\" names none of the ");
    QTest::newRow("empty") << QString() << QStringLiteral("The list is empty.");
}

void TestSampleHost::printsNothingForListsThatNameNothing()
{
    QFETCH(QString, list);
    QFETCH(QString, reason);
    if (reason.contains(QStringLiteral("%1"))) {
        reason = reason.arg(list);
    }
    QCOMPARE(run({QStringLiteral("--print"), list, QStringLiteral("--output"), path("out.pdf"),
                  QStringLiteral("--screenshot"), path("out.png")}),
             2);
    QVERIFY2(m_error.startsWith(reason), qPrintable(m_error));
    QVERIFY2(m_error.endsWith(QStringLiteral("Nothing is printed.\n")), qPrintable(m_error));
    QCOMPARE(m_out, QString());
    QVERIFY(!QFile::exists(path("out.pdf")));
}

void TestSampleHost::printsCurrentAndAll()
{
    const QStringList output{QStringLiteral("--output"), path("out.pdf")};
    QCOMPARE(run(QStringList{QStringLiteral("--current"), QStringLiteral("6")} + output), 0);
    QCOMPARE(recordsPrinted(), QStringList{QStringLiteral("6")});
    QCOMPARE(run(QStringList{QStringLiteral("--all")} + output), 0);
    const QStringList all = recordsPrinted();
    QVERIFY(all.size() >= 40);
    for (qsizetype i = 0; i < all.size(); ++i) {
        QCOMPARE(all.at(i), QString::number(i + 1));
    }
    QCOMPARE(run(QStringList{QStringLiteral("--current"), QStringLiteral("9999")} + output), 2);
    QVERIFY(m_error.startsWith(QStringLiteral("There is no record 9999 among the ")));
}

void TestSampleHost::savesPicturesOfEveryState_data()
{
    QTest::addColumn<QString>("state");
    for (const char* state :
         {"plain", "list-nup", "supply", "pipe", "test-controls", "catalog", "quickprint"}) {
        QTest::newRow(state) << QString::fromLatin1(state);
    }
}

void TestSampleHost::savesPicturesOfEveryState()
{
    QFETCH(QString, state);
    QCOMPARE(
        run({QStringLiteral("--screenshot"), path("out.png"), QStringLiteral("--state"), state}),
        0);
    QCOMPARE(m_error, QString());
    const QImage picture(path("out.png"));
    QVERIFY(picture.width() >= 1100);
    QVERIFY(picture.height() >= 760);
    if (state != QLatin1String("plain")) {
        QCOMPARE(run({QStringLiteral("--screenshot"), path("plain.png")}), 0);
        QVERIFY(QImage(path("plain.png")) != picture);
    }
}

void TestSampleHost::printsAndSavesAPicture()
{
    QCOMPARE(run({QStringLiteral("--print"), QStringLiteral("2"), QStringLiteral("--output"),
                  path("out.pdf"), QStringLiteral("--screenshot"), path("out.png")}),
             0);
    QCOMPARE(recordsPrinted(), QStringList{QStringLiteral("2")});
    QVERIFY(!QImage(path("out.png")).isNull());
    QCOMPARE(m_out.count(QLatin1Char('\n')), qsizetype(2));
}

void TestSampleHost::printsToAFile()
{
    QCOMPARE(run({QStringLiteral("--print"), QStringLiteral("2"), QStringLiteral("--output"),
                  path("out.pdf"), QStringLiteral("--print-to-file")}),
             0);
    QVERIFY(!QFile::exists(path("out.pdf")));
    QCOMPARE(pdfPages(path("guest/logs/printTest_001.prn")).size(), qsizetype(1));
}

void TestSampleHost::failuresAreExplained_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("reason");

    QTest::newRow("folder") << QStringLiteral("--all --output missing/out.pdf") << 1
                            << QStringLiteral("The folder \"%1/missing\" does not exist.\n");
    QTest::newRow("output is a folder") << QStringLiteral("--all --output ./") << 1
                                        << QStringLiteral("\"./\" is not the name of a file.\n");
    QTest::newRow("printer") << QStringLiteral("--all --printer Nobody") << 1
                             << QStringLiteral("There is no printer \"Nobody\".\n");
    QTest::newRow("picture") << QStringLiteral("--screenshot missing/out.png") << 1
                             << QStringLiteral("The folder \"%1/missing\" does not exist.\n");
    QTest::newRow("driver") << QStringLiteral("--driver NOSUCH --all --output out.pdf") << 1
                            << QString();
    QTest::newRow("option") << QStringLiteral("--odd") << 2
                            << QStringLiteral("Unknown option 'odd'.\n");
}

void TestSampleHost::failuresAreExplained()
{
    QFETCH(QString, arguments);
    QFETCH(QString, reason);
    QTEST(run(arguments.split(QLatin1Char(' '))), "code");
    QVERIFY(!m_error.isEmpty());
    if (!reason.isEmpty()) {
        QCOMPARE(m_error, reason.replace(QStringLiteral("%1"), m_folder->path()));
    }
    QVERIFY(!QFile::exists(path("out.pdf")));
}

void TestSampleHost::noteOnAModeThatIsNotOffered()
{
    QCOMPARE(run({QStringLiteral("--print"), QStringLiteral("2"), QStringLiteral("--nup"),
                  QStringLiteral("2x2"), QStringLiteral("--sequence"), QStringLiteral("--output"),
                  path("out.pdf")}),
             0);
    QCOMPARE(m_error, QStringLiteral("The panel offers no N-up choice for this request; "
                                     "--sequence has no effect.\n"));
    QCOMPARE(recordsPrinted(), QStringList{QStringLiteral("2")});
}

void TestSampleHost::needsNoDisplayWhateverTheEnvironmentSays()
{
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    m_environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4711"));
    QCOMPARE(run({QStringLiteral("--print"), QStringLiteral("1"), QStringLiteral("--output"),
                  path("out.pdf")}),
             0);
    QCOMPARE(recordsPrinted(), QStringList{QStringLiteral("1")});
    QCOMPARE(run({QStringLiteral("--help")}), 0);
    QVERIFY(m_out.contains(QStringLiteral("--screenshot <file.png>")));
    QCOMPARE(run({QStringLiteral("--version")}), 0);
    QVERIFY(m_out.startsWith(QStringLiteral("samplehost ")));
}

QTEST_MAIN(TestSampleHost)

#include "tst_samplehost.moc"
