// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/hostfixture.h"
#include "support/stricttest.h"

#include <QtCore/QProcess>

/** Runs the program for previews and catalogue items, without a display. */
class TestCatalogCommands : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void printsFromThePreview_data();
    void printsFromThePreview();
    void savesThePopup_data();
    void savesThePopup();
    void previewRefusesWhatThePanelRefuses();
    void printsItems_data();
    void printsItems();
    void refusesBadItems_data();
    void refusesBadItems();
    void showsAnItemWithoutPrinting();
    void itemsNeedNoData();

private:
    int run(const QString& arguments);
    QString path(const char* name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    QSizeF pageSizeMm() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_out;
    QString m_error;
};

void TestCatalogCommands::init()
{
    StrictTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

// Arguments are separated by blanks; "_" stands for a blank inside one.
int TestCatalogCommands::run(const QString& arguments)
{
    QStringList list = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    list.replaceInStrings(QStringLiteral("_"), QStringLiteral(" "));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.insert(QStringLiteral("HOME"), m_folder->path());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder->path());
    if (!list.contains(QStringLiteral("--database"))) {
        list += {QStringLiteral("--database"), path("chemicals.db")};
    }
    process.start(QStringLiteral(SAMPLEHOST_PROGRAM), list);
    const bool ended = process.waitForFinished(60000);
    m_out = QString::fromLocal8Bit(process.readAllStandardOutput());
    m_error = QString::fromLocal8Bit(process.readAllStandardError());
    return ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QSizeF TestCatalogCommands::pageSizeMm() const
{
    QPdfDocument document;
    document.load(path("out.pdf"));
    const QSizeF points = document.pagePointSize(0);
    return QSizeF(qRound(points.width() / 72 * 25.4), qRound(points.height() / 72 * 25.4));
}

void TestCatalogCommands::printsFromThePreview_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("pages");
    QTest::addColumn<QSizeF>("size");

    QTest::newRow("as designed") << QStringLiteral("--print 1,4-5") << 3 << QSizeF(102, 76);
    QTest::newRow("landscape") << QStringLiteral("--print 1,4-5 --landscape") << 3
                               << QSizeF(102, 76);
    QTest::newRow("portrait") << QStringLiteral("--print 1,4-5 --portrait") << 3 << QSizeF(76, 102);
    QTest::newRow("copies") << QStringLiteral("--current 2 --portrait --copies 4") << 4
                            << QSizeF(76, 102);
    QTest::newRow("paper") << QStringLiteral("--print 1 --paper a4 --landscape") << 1
                           << QSizeF(297, 210);
    QTest::newRow("sheet") << QStringLiteral("--print 1-8 --nup 2x3 --sequence --portrait") << 2
                           << QSizeF(165, 321);
}

void TestCatalogCommands::printsFromThePreview()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(QStringLiteral("--preview --output out.pdf ") + arguments), 0);
    QCOMPARE(m_error, QString());
    QVERIFY(m_out.startsWith(QStringLiteral("Printed ")));
    QTEST(int(pdfPages(path("out.pdf")).size()), "pages");
    QTEST(pageSizeMm(), "size");
}

void TestCatalogCommands::savesThePopup_data()
{
    QTest::addColumn<QString>("arguments");

    QTest::newRow("preview") << QStringLiteral("--preview --print 1,4-5");
    QTest::newRow("portrait") << QStringLiteral("--preview --print 1,4-5 --portrait");
    QTest::newRow("portrait state") << QStringLiteral("--state preview-portrait");
    QTest::newRow("landscape state") << QStringLiteral("--state preview-landscape");
}

void TestCatalogCommands::savesThePopup()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(arguments + QStringLiteral(" --screenshot inch.png")), 0);
    QCOMPARE(m_error, QString());
    QCOMPARE(run(arguments + QStringLiteral(" --screenshot metric.png --metric")), 0);
    const QImage inch(path("inch.png"));
    const QImage metric(path("metric.png"));
    QCOMPARE(inch.size(), QSize(860, 500));
    QCOMPARE(metric.size(), QSize(860, 500));
    // Only the title differs.
    QVERIFY(inch != metric);
    const QRect belowTitle(0, 50, 860, 450);
    QCOMPARE(inch.copy(belowTitle), metric.copy(belowTitle));
}

void TestCatalogCommands::previewRefusesWhatThePanelRefuses()
{
    QCOMPARE(run(QStringLiteral("--preview --print 9999 --output out.pdf")), 2);
    QVERIFY2(m_error.startsWith(QStringLiteral("The list \"9999\" names none of the ")),
             qPrintable(m_error));
    QVERIFY(!QFile::exists(path("out.pdf")));
    QCOMPARE(run(QStringLiteral("--preview --print 1 --output missing/out.pdf")), 1);
    QCOMPARE(m_error,
             QStringLiteral("The folder \"%1/missing\" does not exist.\n").arg(m_folder->path()));
}

void TestCatalogCommands::printsItems_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QStringList>("pages");
    QTest::addColumn<QSizeF>("size");

    QTest::newRow("listed size") << QStringLiteral("--catalog EXIT")
                                 << QStringList{QStringLiteral("EXIT")} << QSizeF(254, 127);
    QTest::newRow("any case") << QStringLiteral("--catalog no_Smoking")
                              << QStringList{QStringLiteral("NOSMOKING")} << QSizeF(254, 178);
    QTest::newRow("inches") << QStringLiteral("--catalog NO_SMOKING --size 5x3.5 --copies 2")
                            << QStringList(2, QStringLiteral("NOSMOKING")) << QSizeF(127, 89);
    QTest::newRow("millimetres") << QStringLiteral("--catalog HIGH_VOLTAGE --size 120x80 --metric")
                                 << QStringList{QStringLiteral("DANGERHIGHVOLTAGE")}
                                 << QSizeF(120, 80);
    QTest::newRow("paper") << QStringLiteral("--catalog TOXIC --paper a4")
                           << QStringList{QStringLiteral("TOXIC")} << QSizeF(210, 297);
}

void TestCatalogCommands::printsItems()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(arguments + QStringLiteral(" --output out.pdf")), 0);
    QCOMPARE(m_error, QString());
    QTEST(pdfPages(path("out.pdf")).replaceInStrings(QStringLiteral(" "), QString()), "pages");
    QTEST(pageSizeMm(), "size");
}

void TestCatalogCommands::refusesBadItems_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("reason");

    const QString noLength =
        QStringLiteral("The length has to be a number greater than 0. Nothing is printed.\n");
    const QString noWidth =
        QStringLiteral("The width has to be a number greater than 0. Nothing is printed.\n");
    QTest::newRow("minus one") << QStringLiteral("--catalog EXIT --size=-1x3") << noLength;
    QTest::newRow("zero") << QStringLiteral("--catalog EXIT --size 3x0") << noWidth;
    QTest::newRow("letters") << QStringLiteral("--catalog EXIT --size abcx3") << noLength;
    QTest::newRow("nan") << QStringLiteral("--catalog EXIT --size 3xnan") << noWidth;
    QTest::newRow("too long")
        << QStringLiteral("--catalog EXIT --size 1000x100 --metric")
        << QStringLiteral("A length of 1000 mm is too long to be printed; the greatest is 914.40 "
                          "mm. Nothing is printed.\n");
}

void TestCatalogCommands::refusesBadItems()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(arguments + QStringLiteral(" --output out.pdf --screenshot out.png")), 2);
    QTEST(m_error, "reason");
    QCOMPARE(m_out, QString());
    QVERIFY(!QFile::exists(path("out.pdf")));
    QVERIFY(!QFile::exists(path("out.png")));

    QCOMPARE(run(QStringLiteral("--catalog ENTRANCE --output out.pdf")), 2);
    QVERIFY2(m_error.startsWith(
                 QStringLiteral("There is no catalogue item \"ENTRANCE\". There are: EXIT, ")),
             qPrintable(m_error));
}

void TestCatalogCommands::showsAnItemWithoutPrinting()
{
    QCOMPARE(run(QStringLiteral("--catalog FIRST_AID --screenshot out.png")), 0);
    QVERIFY(QImage(path("out.png")).width() >= 1100);
    QCOMPARE(m_out.count(QLatin1Char('\n')), qsizetype(1));
    QVERIFY(!QFile::exists(path("labels.pdf")));
}

void TestCatalogCommands::itemsNeedNoData()
{
    QCOMPARE(run(QStringLiteral("--catalog EXIT --output out.pdf --database .")), 0);
    QCOMPARE(pdfPages(path("out.pdf")).size(), qsizetype(1));
    QCOMPARE(run(QStringLiteral("--catalog EXIT --printer Nobody")), 1);
    QCOMPARE(m_error, QStringLiteral("There is no printer \"Nobody\".\n"));
}

QTEST_MAIN(TestCatalogCommands)

#include "tst_catalogcommands.moc"
