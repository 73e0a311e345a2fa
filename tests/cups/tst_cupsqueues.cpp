// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "cups/cupsfixture.h"
#include "cups/cupstest.h"
#include "samplehost/window/eventlog.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QRadioButton>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

/** Queues that stop, refuse, come and go while the host runs. */
class TestCupsQueues : public CupsTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void statusFollowsTheQueue_data();
    void statusFollowsTheQueue();
    void stoppedQueueKeepsTheJob();
    void refusalIsExplained_data();
    void refusalIsExplained();
    void addedQueueIsFound();
    void goneServerIsExplained_data();
    void goneServerIsExplained();

private:
    /** What befalls a queue or its server. */
    enum Trouble { Rejects, Removed, Gone };

    void cause(Trouble trouble);
    /** Shows another page and the labels again, as a user comes back to them. */
    void comeBack();
    /** Makes a choice that the user does not want to make again. */
    void makeChoice();
    bool choiceIsKept() const;
    void printInTrouble(Trouble trouble, bool whilePrinting);

    std::unique_ptr<CupsFixture> m_host;
};

void TestCupsQueues::init()
{
    CupsTest::init();
    QString problem;
    QVERIFY2(server().isRunning() || server().start(problem), qPrintable(problem));
    QVERIFY(server().addQueue(queueName(), QStringLiteral("Label printer"),
                              QStringLiteral("Hall 3, left")));
    QVERIFY(server().accept(queueName()));
    QVERIFY(server().enable(queueName()));
    server().clearOutputs();
    m_host = std::make_unique<CupsFixture>();
    QVERIFY(m_host->choosePrinter(queueName()));
}

void TestCupsQueues::cleanup()
{
    m_host.reset();
}

void TestCupsQueues::cause(Trouble trouble)
{
    switch (trouble) {
    case Rejects:
        QVERIFY(server().reject(queueName(), QStringLiteral("Stocktaking")));
        break;
    case Removed:
        QVERIFY(server().removeQueue(queueName()));
        break;
    case Gone:
        server().stop();
        break;
    }
}

void TestCupsQueues::comeBack()
{
    m_host->window->setCurrentPage(m_host->pipes());
    InputSimulation::processEvents();
    m_host->window->setCurrentPage(m_host->labels());
    InputSimulation::processEvents();
}

void TestCupsQueues::makeChoice()
{
    m_host->typeList(QStringLiteral("2,4-5"));
    m_host->click("plusButton");
    m_host->click("plusButton");
}

bool TestCupsQueues::choiceIsKept() const
{
    return m_host->find<QLineEdit>("recordListEdit")->text() == QLatin1String("2,4-5") &&
           m_host->find<QRadioButton>("recordListRadio")->isChecked() &&
           m_host->panel().getNumberOfCopies() == 3 &&
           m_host->panel().getSelectedPrinter() == queueName();
}

void TestCupsQueues::statusFollowsTheQueue_data()
{
    addColumns<bool, bool, QString>("stopped", "rejecting", "status");

    addRow("stopped", true, false, "Offline, Unavailable");
    addRow("rejecting", false, true, "Online, Unavailable");
    addRow("stopped and rejecting", true, true, "Offline, Unavailable");
}

void TestCupsQueues::statusFollowsTheQueue()
{
    QFETCH(bool, stopped);
    QFETCH(bool, rejecting);
    QFETCH(QString, status);

    QCOMPARE(m_host->shownStatus(), QStringLiteral("Online"));
    QVERIFY(!stopped || server().disable(queueName(), QStringLiteral("Ribbon change")));
    QVERIFY(!rejecting || server().reject(queueName(), QStringLiteral("Stocktaking")));
    comeBack();
    QCOMPARE(m_host->panel().getSelectedPrinter(), queueName());
    QCOMPARE(m_host->shownStatus(), status);
    QCOMPARE(m_host->shownLocation(), QStringLiteral("Hall 3, left"));

    QVERIFY(server().enable(queueName()));
    QVERIFY(server().accept(queueName()));
    comeBack();
    QCOMPARE(m_host->shownStatus(), QStringLiteral("Online"));
}

void TestCupsQueues::stoppedQueueKeepsTheJob()
{
    QVERIFY(server().disable(queueName(), QStringLiteral("Ribbon change")));
    makeChoice();
    QCOMPARE(m_host->print(), Outcome::Completed);
    QCOMPARE(m_host->shownStatus(), QStringLiteral("Offline, Unavailable"));
    QCOMPARE(server().jobs().size(), qsizetype(1));
    QCOMPARE(server().outputs(), QStringList());

    QVERIFY(server().enable(queueName()));
    QVERIFY(server().waitForJobs());
    QCOMPARE(server().outputs().size(), qsizetype(1));
    QCOMPARE(PagePictures::of(server().outputs().at(0)).size(), qsizetype(9));
}

void TestCupsQueues::refusalIsExplained_data()
{
    addColumns<int, bool, QString, QString>("trouble", "whilePrinting", "reason", "status");

    const QString unknown =
        QStringLiteral("The printer \"Hall\" is not known to the system. Choose another printer.");
    const QString refuses =
        QStringLiteral("The printer \"Hall\" does not accept jobs. Choose another printer.");
    const QString notTaken = QStringLiteral("The printer \"Hall\" did not take the job: ");
    const QString offline = QStringLiteral("Offline, Unavailable");
    const QString unavailable = QStringLiteral("Online, Unavailable");
    addRow("rejecting", int(Rejects), false, refuses, unavailable);
    addRow("rejecting while printing", int(Rejects), true, notTaken, unavailable);
    addRow("removed", int(Removed), false, unknown, offline);
    addRow("removed while printing", int(Removed), true, notTaken, offline);
}

void TestCupsQueues::printInTrouble(Trouble trouble, bool whilePrinting)
{
    if (!whilePrinting) {
        cause(trouble);
    }
    QMetaObject::Connection meanwhile;
    if (whilePrinting) {
        meanwhile = connect(&m_host->labels().controller(), &PrintController::jobStarted, this,
                            [this, trouble](PrintJob* job) {
                                connect(
                                    job, &PrintJob::progressChanged, this,
                                    [this, trouble] { cause(trouble); }, Qt::SingleShotConnection);
                            });
    }
    QCOMPARE(m_host->print(), Outcome::Failed);
    disconnect(meanwhile);
}

void TestCupsQueues::refusalIsExplained()
{
    QFETCH(int, trouble);
    QFETCH(bool, whilePrinting);
    QFETCH(QString, reason);
    QFETCH(QString, status);

    const qsizetype ended = server().endedJobs().size();
    makeChoice();
    printInTrouble(Trouble(trouble), whilePrinting);
    QVERIFY2(m_host->message.startsWith(reason), qPrintable(m_host->message));
    QCOMPARE(m_host->shownMessage(), m_host->message);
    QVERIFY(choiceIsKept());
    QCOMPARE(m_host->shownStatus(), status);
    QVERIFY(m_host->find<QWidget>("PrintButton")->isEnabled());
    QCOMPARE(m_host->window->eventLog().lines().constLast(),
             QStringLiteral("Host: ") + m_host->message);
    QCOMPARE(server().jobs(), QStringList());
    // A queue takes the memory of its jobs along.
    QCOMPARE(server().endedJobs().size(), trouble == Removed ? qsizetype(0) : ended);
    QCOMPARE(server().outputs(), QStringList());
}

void TestCupsQueues::addedQueueIsFound()
{
    const QString added = QStringLiteral("Ramp");
    QVERIFY(!m_host->offeredPrinters().contains(added));
    QVERIFY(server().addQueue(added, QStringLiteral("Spare"), QStringLiteral("Gate 7")));
    comeBack();
    QCOMPARE(m_host->panel().getSelectedPrinter(), queueName());
    QVERIFY(m_host->choosePrinter(added));
    QCOMPARE(m_host->shownLocation(), QStringLiteral("Gate 7"));
    QCOMPARE(m_host->print(), Outcome::Completed);
    QVERIFY(server().waitForJobs());
    QCOMPARE(server().outputs().size(), qsizetype(1));
    QVERIFY(server().removeQueue(added));
}

void TestCupsQueues::goneServerIsExplained_data()
{
    addColumns<bool, QString>("whilePrinting", "reason");

    addRow("before printing", false,
           "The printer \"Hall\" is not known to the system. Choose another printer.");
    addRow("while printing", true, "The printer \"Hall\" did not take the job: ");
}

void TestCupsQueues::goneServerIsExplained()
{
    QFETCH(bool, whilePrinting);
    QFETCH(QString, reason);

    makeChoice();
    QElapsedTimer elapsed;
    elapsed.start();
    printInTrouble(Gone, whilePrinting);
    QVERIFY2(elapsed.elapsed() < 20000, "The host hung");
    QVERIFY2(m_host->message.startsWith(reason), qPrintable(m_host->message));
    QCOMPARE(m_host->shownMessage(), m_host->message);
    QVERIFY(choiceIsKept());
    QCOMPARE(m_host->shownStatus(), QStringLiteral("Offline, Unavailable"));

    QString problem;
    QVERIFY2(server().start(problem), qPrintable(problem));
    QCOMPARE(server().jobs(), QStringList());
    QCOMPARE(m_host->print(), Outcome::Completed);
    QCOMPARE(m_host->shownStatus(), QStringLiteral("Online"));
    QVERIFY(server().waitForJobs());
    QCOMPARE(server().outputs().size(), qsizetype(1));
    QCOMPARE(PagePictures::of(server().outputs().at(0)).size(), qsizetype(9));
}

QTEST_MAIN(TestCupsQueues)

#include "tst_cupsqueues.moc"
