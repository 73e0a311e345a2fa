// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "cups/cupstest.h"
#include "cups/pagepictures.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/support/documentfixture.h"

#include <QtWidgets/QComboBox>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

namespace {

bool isAbout(const QSizeF& a, const QSizeF& b)
{
    return qAbs(a.width() - b.width()) < 1.3 && qAbs(a.height() - b.height()) < 1.3;
}

} // namespace

/** Prints documents to a queue from "Preview and Print" and looks at what the queue put out. */
class TestCupsDocuments : public CupsTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void printsPages_data();
    void printsPages();
    void printsSheetsAsInAFile_data();
    void printsSheetsAsInAFile();
    void pagesAreWhole_data();
    void pagesAreWhole();

private:
    bool openPages(const QSizeF& size) const;
    bool openFramed(const QList<QSizeF>& sizes) const;
    bool choosePrinter(const QString& name) const;
    bool prints(const QString& printer);
    QString outputFile();

    std::unique_ptr<DocumentFixture> m_host;
};

void TestCupsDocuments::init()
{
    CupsTest::init();
    server().clearOutputs();
    m_host = std::make_unique<DocumentFixture>();
}

void TestCupsDocuments::cleanup()
{
    m_host.reset();
}

bool TestCupsDocuments::choosePrinter(const QString& name) const
{
    return InputSimulation::select(m_host->widget<QComboBox>("PrinterListCombo"), name);
}

bool TestCupsDocuments::prints(const QString& printer)
{
    return choosePrinter(printer) && m_host->print() == Outcome::Completed;
}

// The only file that the queue put out; empty when there is none or another one.
QString TestCupsDocuments::outputFile()
{
    if (!server().waitForJobs()) {
        qWarning("The jobs do not end: %s", server().log().constData());
    }
    const QStringList files = server().outputs();
    return files.size() == 1 ? files.at(0) : QString();
}

// Pages that say their number, in different places.
bool TestCupsDocuments::openPages(const QSizeF& size) const
{
    QList<PdfSamples::Page> pages;
    for (const char* text : {"Page 1", "Page 2", "Page 3", "Page 4"}) {
        const int place = int(pages.size()) + 1;
        pages.append({size, PdfSamples::words(text, 15, 55 * place, 45), QByteArray()});
    }
    return m_host->openBytes(PdfSamples::pages(pages));
}

// Pages with a line along their edges.
bool TestCupsDocuments::openFramed(const QList<QSizeF>& sizes) const
{
    QList<PdfSamples::Page> pages;
    for (const QSizeF& size : sizes) {
        // Half of the line is on the page.
        const QString operators =
            QStringLiteral("4 w 0 0 %1 %2 re S").arg(size.width()).arg(size.height());
        pages.append({size, operators.toLatin1(), QByteArray()});
    }
    return m_host->openBytes(PdfSamples::pages(pages));
}

void TestCupsDocuments::printsPages_data()
{
    addColumns<QString, int, QString>("pages", "copies", "printed");

    addRow("all", QString(), 1, "0 1 2 3");
    addRow("list", "4,1-2", 1, "3 0 1");
    addRow("copies", "2-3", 2, "1 2 1 2");
}

void TestCupsDocuments::printsPages()
{
    QFETCH(QString, pages);
    QFETCH(int, copies);
    QFETCH(QString, printed);

    QVERIFY(openPages(QSizeF(210, 298)));
    QVERIFY(m_host->showDialog());
    m_host->press("allPagesRadio");
    QVERIFY(prints(QStringLiteral("PDF file")));
    const QList<QImage> models = PagePictures::of(m_host->outputPath());
    if (!pages.isEmpty()) {
        m_host->typePages(pages);
    }
    for (int copy = 1; copy < copies; ++copy) {
        m_host->press("plusButton");
    }
    QVERIFY(prints(queueName()));
    QCOMPARE(PagePictures::recognised(PagePictures::of(outputFile()), models), printed);
}

void TestCupsDocuments::printsSheetsAsInAFile_data()
{
    QTest::addColumn<QString>("option");

    addRow("fit to page", "fitToPageCheck");
    addRow("180 degrees", "orientationCheck");
}

void TestCupsDocuments::printsSheetsAsInAFile()
{
    QFETCH(QString, option);

    m_host->window->settings().setPaper(Paper::A4);
    QVERIFY(openPages(QSizeF(210, 298)));
    QVERIFY(m_host->showDialog());
    m_host->typePages(QStringLiteral("1,3"));
    m_host->press(qPrintable(option));
    QVERIFY(prints(QStringLiteral("PDF file")));
    const QList<QImage> models = PagePictures::of(m_host->outputPath());
    QVERIFY(prints(queueName()));
    QCOMPARE(PagePictures::recognised(PagePictures::of(outputFile()), models),
             QStringLiteral("0 1"));
}

void TestCupsDocuments::pagesAreWhole_data()
{
    using Sizes = QList<QSizeF>;
    addColumns<Sizes, QSizeF>("pages", "paper");

    addRow("a paper that the queue knows", Sizes{{421, 595}, {421, 595}}, QSizeF(421, 595));
    addRow("a paper that it does not know", Sizes{{298, 420}, {298, 420}}, QSizeF(298, 420));
    addRow("a paper that it takes for another by name", Sizes{{610, 780}}, QSizeF(610, 780));
    addRow("a paper on its side", Sizes{{595, 421}}, QSizeF(595, 421));
    addRow("no whole points", Sizes{{300.4, 200.3}}, QSizeF(301, 201));
    addRow("upright, then on its side", Sizes{{421, 595}, {595, 421}, {421, 595}},
           QSizeF(421, 595));
    addRow("on its side, then upright", Sizes{{300, 200}, {200, 300}}, QSizeF(300, 200));
    addRow("smaller pages", Sizes{{200, 300}, {100, 150}, {200, 100}}, QSizeF(200, 300));
    addRow("wider and higher pages", Sizes{{310, 200}, {288, 216}, {200, 305}}, QSizeF(310, 216));
}

// A job has one paper, so it has to be one that every page finds room on. A line along the
// edges tells whether a page was cut off or scaled.
void TestCupsDocuments::pagesAreWhole()
{
    QFETCH(QList<QSizeF>, pages);
    QFETCH(QSizeF, paper);

    QVERIFY(openFramed(pages));
    QVERIFY(m_host->showDialog());
    m_host->press("allPagesRadio");
    QVERIFY(prints(queueName()));
    const QString file = outputFile();
    QCOMPARE(PagePictures::of(file).size(), pages.size());
    for (int page = 0; page < int(pages.size()); ++page) {
        QCOMPARE(PdfOutput::pageSize(file, page), paper);
        const QSizeF printed = PdfOutput::ink(file, page).size();
        const QSizeF wanted = pages.at(page);
        // A page may lie on its side to find room.
        QVERIFY2(isAbout(printed, wanted) || isAbout(printed, wanted.transposed()),
                 qPrintable(QStringLiteral("Page %1 is %2 x %3 instead of %4 x %5")
                                .arg(page + 1)
                                .arg(printed.width())
                                .arg(printed.height())
                                .arg(wanted.width())
                                .arg(wanted.height())));
    }
}

QTEST_MAIN(TestCupsDocuments)

#include "tst_cupsdocuments.moc"
