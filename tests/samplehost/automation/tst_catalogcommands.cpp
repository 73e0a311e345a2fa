// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/hostfixture.h"
#include "samplehost/support/programtest.h"

/** Runs the program for previews and catalogue items, without a display. */
class TestCatalogCommands : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
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
};

void TestCatalogCommands::printsFromThePreview_data()
{
    addColumns<QString, int, QSizeF>("arguments", "pages", "size");

    addRow("as designed", "--print 1,4-5", 3, QSizeF(102, 76));
    addRow("landscape", "--print 1,4-5 --landscape", 3, QSizeF(102, 76));
    addRow("portrait", "--print 1,4-5 --portrait", 3, QSizeF(76, 102));
    addRow("copies", "--current 2 --portrait --copies 4", 4, QSizeF(76, 102));
    addRow("paper", "--print 1 --paper a4 --landscape", 1, QSizeF(297, 210));
    addRow("sheet", "--print 1-8 --nup 2x3 --sequence --portrait", 2, QSizeF(165, 321));
}

void TestCatalogCommands::printsFromThePreview()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(QStringLiteral("--preview --output out.pdf ") + arguments), 0);
    QCOMPARE(error(), QString());
    QVERIFY(out().startsWith(QStringLiteral("Printed ")));
    QTEST(int(pdfPages(path("out.pdf")).size()), "pages");
    QTEST(pdfPageSizeMm(path("out.pdf")), "size");
}

void TestCatalogCommands::savesThePopup_data()
{
    QTest::addColumn<QString>("arguments");

    addRow("preview", "--preview --print 1,4-5");
    addRow("portrait", "--preview --print 1,4-5 --portrait");
    addRow("portrait state", "--state preview-portrait");
    addRow("landscape state", "--state preview-landscape");
}

void TestCatalogCommands::savesThePopup()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(arguments + QStringLiteral(" --screenshot inch.png")), 0);
    QCOMPARE(error(), QString());
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
    QVERIFY2(error().startsWith(QStringLiteral("The list \"9999\" names none of the ")),
             qPrintable(error()));
    QVERIFY(!QFile::exists(path("out.pdf")));
    QCOMPARE(run(QStringLiteral("--preview --print 1 --output missing/out.pdf")), 1);
    QCOMPARE(error(), QStringLiteral("The folder \"%1\" does not exist. Choose another folder.\n")
                          .arg(shown("missing")));
}

void TestCatalogCommands::printsItems_data()
{
    addColumns<QString, QStringList, QSizeF>("arguments", "pages", "size");

    addRow("listed size", "--catalog EXIT", QStringList{QStringLiteral("EXIT")}, QSizeF(254, 127));
    addRow("any case", "--catalog no_Smoking", QStringList{QStringLiteral("NOSMOKING")},
           QSizeF(254, 178));
    addRow("inches", "--catalog NO_SMOKING --size 5x3.5 --copies 2",
           QStringList(2, QStringLiteral("NOSMOKING")), QSizeF(127, 89));
    addRow("millimetres", "--catalog HIGH_VOLTAGE --size 120x80 --metric",
           QStringList{QStringLiteral("DANGERHIGHVOLTAGE")}, QSizeF(120, 80));
    addRow("paper", "--catalog TOXIC --paper a4", QStringList{QStringLiteral("TOXIC")},
           QSizeF(210, 297));
}

void TestCatalogCommands::printsItems()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(arguments + QStringLiteral(" --output out.pdf")), 0);
    QCOMPARE(error(), QString());
    QTEST(pdfPages(path("out.pdf")).replaceInStrings(QStringLiteral(" "), QString()), "pages");
    QTEST(pdfPageSizeMm(path("out.pdf")), "size");
}

void TestCatalogCommands::refusesBadItems_data()
{
    addColumns<QString, QString>("arguments", "reason");

    const QString noLength =
        QStringLiteral("The length has to be a number greater than 0. Nothing is printed.\n");
    const QString noWidth =
        QStringLiteral("The width has to be a number greater than 0. Nothing is printed.\n");
    addRow("minus one", "--catalog EXIT --size=-1x3", noLength);
    addRow("zero", "--catalog EXIT --size 3x0", noWidth);
    addRow("letters", "--catalog EXIT --size abcx3", noLength);
    addRow("nan", "--catalog EXIT --size 3xnan", noWidth);
    addRow("too long", "--catalog EXIT --size 1000x100 --metric",
           "A length of 1000 mm is too long to be printed; the greatest is 914.40 "
           "mm. Nothing is printed.\n");
}

void TestCatalogCommands::refusesBadItems()
{
    QFETCH(QString, arguments);
    QCOMPARE(run(arguments + QStringLiteral(" --output out.pdf --screenshot out.png")), 2);
    QTEST(error(), "reason");
    QCOMPARE(out(), QString());
    QVERIFY(!QFile::exists(path("out.pdf")));
    QVERIFY(!QFile::exists(path("out.png")));

    QCOMPARE(run(QStringLiteral("--catalog ENTRANCE --output out.pdf")), 2);
    QVERIFY2(error().startsWith(
                 QStringLiteral("There is no catalogue item \"ENTRANCE\". There are: EXIT, ")),
             qPrintable(error()));
}

void TestCatalogCommands::showsAnItemWithoutPrinting()
{
    QCOMPARE(run(QStringLiteral("--catalog FIRST_AID --screenshot out.png")), 0);
    QVERIFY(QImage(path("out.png")).width() >= 1100);
    QCOMPARE(out().count(QLatin1Char('\n')), qsizetype(1));
    QVERIFY(!QFile::exists(path("labels.pdf")));
}

void TestCatalogCommands::itemsNeedNoData()
{
    QCOMPARE(run(QStringLiteral("--catalog EXIT --output out.pdf --database .")), 0);
    QCOMPARE(pdfPages(path("out.pdf")).size(), qsizetype(1));
    QCOMPARE(run(QStringLiteral("--catalog EXIT --printer Nobody")), 1);
    QCOMPARE(error(),
             QStringLiteral("There is no printer \"Nobody\". Choose one that the panel lists.\n"));
}

QTEST_MAIN(TestCatalogCommands)

#include "tst_catalogcommands.moc"
