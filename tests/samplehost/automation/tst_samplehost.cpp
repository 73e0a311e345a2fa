// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/hostfixture.h"
#include "samplehost/support/labelprints.h"
#include "samplehost/support/programtest.h"

#include <QtCore/QOperatingSystemVersion>

/** Runs the program as its users do, without a display. */
class TestSampleHost : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
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
    void keepsFilesOfEarlierRuns_data();
    void keepsFilesOfEarlierRuns();
    void failuresAreExplained_data();
    void failuresAreExplained();
    void noteOnAModeThatIsNotOffered();
    void needsNoDisplayWhateverTheEnvironmentSays();
    void namesThePartsThatItLacks();
    void refusesDocumentsThatItLacks();

private:
    QStringList recordsPrinted() const;
    bool writeDocument() const;
};

namespace {

/** How many records the database has that the program creates. */
QString recordCount()
{
    return QString::number(SampleHost::ChemicalSeed::load().size());
}

} // namespace

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

bool TestSampleHost::writeDocument() const
{
    QFile file(path("in.pdf"));
    const QByteArray document =
        printPdf(QSizeF(100, 80), 300, [](QPainter& painter, const QRectF& page) {
            painter.drawText(page, QStringLiteral("Printed."));
        });
    return file.open(QIODevice::WriteOnly) && file.write(document) == document.size();
}

void TestSampleHost::printsTheTypedList()
{
    QCOMPARE(run(QStringLiteral("--print 1,4-5 --output out.pdf")), 0);
    QCOMPARE(error(), QString());
    QCOMPARE(out(), QStringLiteral("Printed 3 pages to %1\n").arg(shown("out.pdf")));
    QCOMPARE(recordsPrinted(),
             (QStringList{QStringLiteral("1"), QStringLiteral("4"), QStringLiteral("5")}));
}

void TestSampleHost::printsLists_data()
{
    addColumns<QString, QString>("arguments", "records");

    addRow("typed order", "--print 3,1-2", "3 1 2");
    addRow("repeated", "--print 2,2,1-2", "2 2 1 2");
    addRow("reversed range", "--print 3,9-8,4", "3 4");
    addRow("beyond the last", "--print 9000-9999,7", "7");
    addRow("copies", "--print 5,4 --copies 2", "5 5 4 4");
    // The text of a sheet begins with its first label.
    addRow("replicating", "--print 1-3 --nup 2x2 --replicate", "1 2 3");
    addRow("sequencing", "--print 1-5 --nup 2x2 --sequence", "1 5");
    addRow("sequencing, copies", "--print 1-5 --nup 2x2 --sequence --copies 2", "1 5 1 5");
}

void TestSampleHost::printsLists()
{
    QFETCH(QString, arguments);
    QFETCH(QString, records);
    QCOMPARE(run(arguments + QStringLiteral(" --output out.pdf")), 0);
    QCOMPARE(error(), QString());
    QCOMPARE(recordsPrinted().join(QLatin1Char(' ')), records);
}

void TestSampleHost::printsNothingForListsThatNameNothing_data()
{
    addColumns<QString, QString>("list", "reason");

    const auto unreadable = [](const char* wrong) {
        return QStringLiteral("The list \"%1\" cannot be read: ") + QString::fromLatin1(wrong) +
               QStringLiteral(". Write numbers and ranges such as 1,4-5. ");
    };
    addRow("unfinished", "1,", unreadable("a record number is missing beside a comma"));
    addRow("unfinished range", "4-", unreadable("\"4-\" is not a range of records"));
    addRow("zero", "0", unreadable("\"0\" is not a record number"));
    addRow("five digits", "12345", unreadable("\"12345\" is not a record number"));
    addRow("blank inside", "1, 2", unreadable("\" 2\" is not a record number"));
    addRow("letters", "1,x,3", unreadable("\"x\" is not a record number"));
    addRow("twice a range", "1-2-3", unreadable("\"1-2-3\" is not a range of records"));
    addRow("line break", "1\n2", unreadable("\"1\n2\" is not a record number"));
    const QString none = QStringLiteral("The list \"%1\" names none of the ") + recordCount() +
                         QStringLiteral(" records: ");
    addRow("reversed", "5-4", none + QStringLiteral("\"5-4\" runs backwards. Write 4-5. "));
    addRow("beyond the last", "9999",
           none + QStringLiteral("there is no record 9999. Write numbers from 1 to ") +
               recordCount() + QStringLiteral(". "));
    addRow("empty", QString(), "The list is empty.");
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
    QVERIFY2(error().startsWith(reason), qPrintable(error()));
    QVERIFY2(error().endsWith(QStringLiteral("Nothing is printed.\n")), qPrintable(error()));
    QCOMPARE(out(), QString());
    QVERIFY(!QFile::exists(path("out.pdf")));
}

void TestSampleHost::printsCurrentAndAll()
{
    const QStringList output{QStringLiteral("--output"), path("out.pdf")};
    QCOMPARE(run(QStringList{QStringLiteral("--current"), QStringLiteral("6")} + output), 0);
    QCOMPARE(recordsPrinted(), QStringList{QStringLiteral("6")});
    QCOMPARE(run(QStringList{QStringLiteral("--all"), QStringLiteral("--overwrite")} + output), 0);
    const QStringList all = recordsPrinted();
    QVERIFY(all.size() >= 40);
    for (qsizetype i = 0; i < all.size(); ++i) {
        QCOMPARE(all.at(i), QString::number(i + 1));
    }
    QCOMPARE(run(QStringList{QStringLiteral("--current"), QStringLiteral("9999")} + output), 2);
    QVERIFY(error().startsWith(QStringLiteral("There is no record 9999; the last one is ") +
                               recordCount() + QStringLiteral(". ")));
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
    QCOMPARE(error(), QString());
    const QImage picture(path("out.png"));
    QVERIFY(picture.width() >= 1100);
    QVERIFY(picture.height() >= 760);
    if (state != QLatin1String("plain")) {
        QCOMPARE(run(QStringLiteral("--screenshot plain.png")), 0);
        QVERIFY(QImage(path("plain.png")) != picture);
    }
}

void TestSampleHost::printsAndSavesAPicture()
{
    QCOMPARE(run(QStringLiteral("--print 2 --output out.pdf --screenshot out.png")), 0);
    QCOMPARE(recordsPrinted(), QStringList{QStringLiteral("2")});
    QVERIFY(!QImage(path("out.png")).isNull());
    QCOMPARE(out().count(QLatin1Char('\n')), qsizetype(2));
}

void TestSampleHost::printsToAFile()
{
    QCOMPARE(run(QStringLiteral("--print 2 --output out.pdf --print-to-file")), 0);
    QVERIFY(!QFile::exists(path("out.pdf")));
    QCOMPARE(pdfPages(path("guest/logs/printTest_001.prn")).size(), qsizetype(1));
}

void TestSampleHost::keepsFilesOfEarlierRuns_data()
{
    addColumns<QString, QString>("arguments", "file");

    addRow("labels", "--print 2 --output out.pdf", "out.pdf");
    addRow("catalogue item", "--catalog EXIT --output out.pdf", "out.pdf");
    addRow("from the preview", "--print 2 --preview --output out.pdf", "out.pdf");
    addRow("picture", "--screenshot out.png", "out.png");
    addRow("picture of a print", "--print 2 --output new.pdf --screenshot out.png", "out.png");
    if (SampleHost::MainWindow::parts().documents) {
        addRow("document", "--document in.pdf --all-pages --output out.pdf", "out.pdf");
    }
}

void TestSampleHost::keepsFilesOfEarlierRuns()
{
    QFETCH(QString, arguments);
    QFETCH(QString, file);
    const QByteArray earlier("from an earlier run");
    const QString name = m_folder->filePath(file);
    QFile old(name);
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write(earlier) > 0);
    old.close();
    QVERIFY(writeDocument());

    QCOMPARE(run(arguments), 1);
    QCOMPARE(error(), QStringLiteral("The file \"%1\" exists already. Choose another file, or add "
                                     "--overwrite to replace it.\n")
                          .arg(file.endsWith(QStringLiteral(".png")) ? file : shown("out.pdf")));
    QCOMPARE(out(), QString());
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), earlier);
    old.close();
    // The check comes before anything is printed.
    QVERIFY(!QFile::exists(path("new.pdf")));

    QCOMPARE(run(arguments + QStringLiteral(" --overwrite")), 0);
    QCOMPARE(error(), QString());
    QVERIFY(QFileInfo(name).size() > 1000);
}

void TestSampleHost::failuresAreExplained_data()
{
    addColumns<QString, int, QString>("arguments", "code", "reason");

    addRow("folder", "--all --output missing/out.pdf", 1,
           "The folder \"%1\" does not exist. Choose another folder.\n");
    addRow("output is a folder", "--all --output ./", 1,
           "\"./\" is not the name of a file. Write a name such as labels.pdf.\n");
    addRow("printer", "--all --printer Nobody", 1,
           "There is no printer \"Nobody\". Choose one that the panel lists.\n");
    addRow("picture", "--screenshot missing/out.png", 1,
           "The folder \"%1\" does not exist. Choose another folder.\n");
    addRow("driver", "--driver NOSUCH --all --output out.pdf", 1, QString());
    addRow("option", "--odd", 2, "Unknown option 'odd'. --help lists the options.\n");
}

void TestSampleHost::failuresAreExplained()
{
    QFETCH(QString, arguments);
    QFETCH(QString, reason);
    QTEST(run(arguments), "code");
    QVERIFY(!error().isEmpty());
    if (!reason.isEmpty()) {
        QCOMPARE(error(), reason.replace(QStringLiteral("%1"), shown("missing")));
    }
    QVERIFY(!QFile::exists(path("out.pdf")));
}

void TestSampleHost::noteOnAModeThatIsNotOffered()
{
    QCOMPARE(run(QStringLiteral("--print 2 --nup 2x2 --sequence --output out.pdf")), 0);
    QCOMPARE(error(), QStringLiteral("The panel offers no N-up choice for this request; "
                                     "--sequence has no effect.\n"));
    QCOMPARE(recordsPrinted(), QStringList{QStringLiteral("2")});
}

void TestSampleHost::needsNoDisplayWhateverTheEnvironmentSays()
{
    // Windows always has a display, and the platform that is chosen is used there.
    if (QOperatingSystemVersion::currentType() != QOperatingSystemVersion::Windows) {
        m_program->environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        m_program->environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4711"));
    }
    QCOMPARE(run(QStringLiteral("--print 1 --output out.pdf")), 0);
    QCOMPARE(recordsPrinted(), QStringList{QStringLiteral("1")});
    QCOMPARE(run(QStringLiteral("--help")), 0);
    QVERIFY(out().contains(QStringLiteral("--screenshot <file.png>")));
    QCOMPARE(run(QStringLiteral("--version")), 0);
    QVERIFY(out().startsWith(QStringLiteral("samplehost ")));
}

void TestSampleHost::namesThePartsThatItLacks()
{
    const SampleHost::HostParts parts = SampleHost::MainWindow::parts();
    QCOMPARE(run(QStringLiteral("--help")), 0);
    QCOMPARE(out().contains(QStringLiteral("--document <file.pdf>")), parts.documents);
    QCOMPARE(out().contains(QStringLiteral("This build has no PDF documents.\n")),
             !parts.documents);
    QCOMPARE(out().contains(QStringLiteral("This build has no print queues of CUPS: ")),
             !parts.printQueues);
}

void TestSampleHost::refusesDocumentsThatItLacks()
{
    const bool documents = SampleHost::MainWindow::parts().documents;
    QCOMPARE(run(QStringLiteral("--document missing.pdf --all-pages --output out.pdf")),
             documents ? 1 : 2);
    QCOMPARE(error().startsWith(
                 QStringLiteral("--document cannot be used: this build has no PDF documents.\n")),
             !documents);
    QVERIFY(!QFile::exists(path("out.pdf")));
}

QTEST_MAIN(TestSampleHost)

#include "tst_samplehost.moc"
