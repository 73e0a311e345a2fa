// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/data/seeddatabase.h"
#include "samplehost/pages/labelview.h"
#include "samplehost/pages/recordnavigator.h"
#include "samplehost/printing/labelpreview.h"
#include "samplehost/support/faultfixture.h"
#include "samplehost/support/hostprogram.h"
#include "samplehost/support/openfiles.h"
#include "support/stricttest.h"

#include <QtCore/QFileInfo>
#include <QtGui/QAction>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>
#include <QtWidgets/QStatusBar>

#include <functional>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

namespace {

/** Another program at work on a database. */
class OtherProgram
{
public:
    explicit OtherProgram(const QString& path) : m_name(uniqueConnectionName())
    {
        QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name).setDatabaseName(path);
    }
    ~OtherProgram() { QSqlDatabase::removeDatabase(m_name); }
    bool run(const char* statement) const
    {
        QSqlDatabase database = QSqlDatabase::database(m_name);
        return QSqlQuery(database).exec(QString::fromLatin1(statement));
    }

private:
    Q_DISABLE_COPY_MOVE(OtherProgram)
    QString m_name;
};

/** What can happen to the database, and what the user is shown then. */
struct Fault
{
    const char* name;
    const char* reason;
    std::function<bool(const QString& path)> apply;
    /** Whether it takes the file away. */
    bool removes = false;
};

bool overwrite(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool restore(const QString& backup, const QString& path)
{
    const bool free = !QFileInfo::exists(path) || QFile::remove(path) || QDir().rmdir(path);
    return free && QFile::copy(backup, path);
}

/** Takes the records of a host away: their file, or their table where an open file stays. */
bool takeAway(const HostFixture& host)
{
    return openFilesCanBeRemoved ? QFile::rename(host.path("chemicals.db"), host.path("aside.db"))
                                 : OtherProgram(host.path("chemicals.db"))
                                       .run("ALTER TABLE chemicals RENAME TO aside");
}

/** Brings back what takeAway() took. */
bool bringBack(const HostFixture& host)
{
    return openFilesCanBeRemoved ? QFile::rename(host.path("aside.db"), host.path("chemicals.db"))
                                 : OtherProgram(host.path("chemicals.db"))
                                       .run("ALTER TABLE aside RENAME TO chemicals");
}

QList<Fault> faults()
{
    const auto run = [](const char* statement) {
        return [statement](const QString& path) { return OtherProgram(path).run(statement); };
    };
    return {
        {"deleted", "the file does not exist",
         [](const QString& path) { return QFile::remove(path); }, true},
        {"a folder", "it is not a file",
         [](const QString& path) { return QFile::remove(path) && QDir().mkdir(path); }, true},
        {"garbage", "not a database",
         [](const QString& path) { return overwrite(path, QByteArray(90000, 'x')); }},
        {"replaced by garbage", "not a database",
         [](const QString& path) {
             return QFile::remove(path) && overwrite(path, QByteArray(90000, 'x'));
         },
         true},
        {"emptied", "no such table", [](const QString& path) { return QFile(path).resize(0); }},
        {"cut off", "malformed", [](const QString& path) { return QFile(path).resize(5000); }},
        {"table dropped", "no such table", run("DROP TABLE chemicals")},
        {"table renamed", "no such table", run("ALTER TABLE chemicals RENAME TO other")},
        {"column dropped", "no such column", run("ALTER TABLE chemicals DROP COLUMN formula")},
    };
}

} // namespace

Q_DECLARE_METATYPE(Fault)

/** The host whose database something happens to, until it is back. */
class TestHostFaultsDatabase : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void beforeTheStart_data();
    void beforeTheStart();
    void betweenChoosingAndPrinting_data();
    void betweenChoosingAndPrinting();
    void choiceOutlivesTheFault();
    void previewTellsTheReason();
    void lockedBeforeTheStart();
    void lockedBetweenChoosingAndPrinting();
    void anotherDatabaseInItsPlaceIsRead();
    void readOnlyDatabaseIsRead();
    void emptyTableIsNoFault();
    void reloadKeepsThePosition();
    void reloadWhilePrinting();
    void databaseIsFreeBeforeAndAfterPrinting();
    void deletedWhilePrinting();
    void viewKeepsTheReason();
    void program_data();
    void program();
    void programWithoutADriver();

private:
    static void addFaults();
    static void triggerReload(const MainWindow& window);
};

void TestHostFaultsDatabase::addFaults()
{
    QTest::addColumn<Fault>("fault");
    const auto all = faults();
    for (const Fault& fault : all) {
        QTest::newRow(fault.name) << fault;
    }
}

void TestHostFaultsDatabase::triggerReload(const MainWindow& window)
{
    window.findChild<QAction*>(QStringLiteral("reloadDataAction"))->trigger();
}

void TestHostFaultsDatabase::beforeTheStart_data()
{
    addFaults();
}

void TestHostFaultsDatabase::beforeTheStart()
{
    QFETCH(Fault, fault);
    LabelFaultFixture first;
    first.window.reset();
    const QString path = first.path("chemicals.db");
    const QString backup = first.path("backup.db");
    QVERIFY(QFile::copy(path, backup) && fault.apply(path));
    HostOptions options;
    options.dataSource.databaseName = path;
    MainWindow window(options);
    window.show();
    if (qstrcmp(fault.name, "deleted") == 0) {
        // Nobody can tell that from the first start.
        QCOMPARE(window.dataSourceProblem(), QString());
        return;
    }
    const QString problem = window.dataSourceProblem();
    // A column is asked for by its name at once.
    const bool column = qstrcmp(fault.name, "column dropped") == 0;
    QVERIFY2(problem.contains(QLatin1String(column ? "no column \"formula\"" : fault.reason)),
             qPrintable(problem));
    QVERIFY2(problem.contains(QDir::toNativeSeparators(path)), qPrintable(problem));
    QCOMPARE(window.statusBar()->currentMessage(), problem);
    triggerReload(window);
    auto* box = window.findChild<QMessageBox*>(QStringLiteral("messageBox"));
    QVERIFY(box != nullptr);
    QCOMPARE(box->text(), problem);
    delete box;

    QVERIFY(restore(backup, path));
    triggerReload(window);
    QCOMPARE(window.dataSourceProblem(), QString());
    QVERIFY(window.labelPage().navigator().count() >= 40);
    QVERIFY(window.labelPage().findChild<QWidget*>(QStringLiteral("PrintButton"))->isEnabled());
}

void TestHostFaultsDatabase::betweenChoosingAndPrinting_data()
{
    addFaults();
}

void TestHostFaultsDatabase::betweenChoosingAndPrinting()
{
    QFETCH(Fault, fault);
    LabelFaultFixture host;
    const QString path = host.path("chemicals.db");
    const QString backup = host.path("backup.db");
    QVERIFY(host.choose(Printout::Labels));
    QVERIFY(overwrite(host.outputPath(), "older"));
    const QString chosen = host.choices(Printout::Labels);
    if (fault.removes && !openFilesCanBeRemoved) {
        QVERIFY(!fault.apply(path));
        QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Completed));
        return;
    }
    QVERIFY(QFile::copy(path, backup) && fault.apply(path));

    QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Failed));
    QVERIFY2(host.message.startsWith(
                 QStringLiteral("The data source (%1, table chemicals) cannot be read: ")
                     .arg(QDir::toNativeSeparators(path))),
             qPrintable(host.message));
    QVERIFY2(host.message.contains(QLatin1String(fault.reason)), qPrintable(host.message));
    QCOMPARE(host.shown, host.message);
    QCOMPARE(host.choices(Printout::Labels), chosen);
    QCOMPARE(contentsOf(host.outputPath()), QByteArray("older"));

    QVERIFY(restore(backup, path));
    QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Completed));
    QCOMPARE(int(pdfPages(host.outputPath()).size()), LabelFaultFixture::pagesOf(Printout::Labels));
}

// Turning to other records, or changing a preference, looks at the records too.
void TestHostFaultsDatabase::choiceOutlivesTheFault()
{
    LabelFaultFixture host;
    QVERIFY(host.choose(Printout::Labels));
    host.labels().navigator().setCurrentIndex(6);
    const QString chosen = host.choices(Printout::Labels);
    QVERIFY(takeAway(host));
    host.window->settings().setMetric(true);
    host.window->settings().setMetric(false);
    QCOMPARE(host.choices(Printout::Labels), chosen);
    QCOMPARE(host.labels().design().currentIndex(), 6);
    host.labels().navigator().setCurrentIndex(7);
    QCOMPARE(host.labels().design().currentIndex(), 7);
    QCOMPARE(host.choices(Printout::Labels), chosen);
    QVERIFY(bringBack(host));
    QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Completed));
}

void TestHostFaultsDatabase::previewTellsTheReason()
{
    LabelFaultFixture host;
    QVERIFY(host.choose(Printout::Labels));
    QVERIFY(takeAway(host));
    host.click("PreviewButton");
    QVERIFY(host.labels().preview().popup() == nullptr);
    const auto reason =
        openFilesCanBeRemoved
            ? QStringLiteral("the file does not exist.")
            : QStringLiteral("no such table: chemicals Unable to execute statement");
    QVERIFY2(host.shownMessage().endsWith(reason), qPrintable(host.shownMessage()));
}

void TestHostFaultsDatabase::lockedBeforeTheStart()
{
    const LabelFaultFixture first;
    const OtherProgram other(first.path("chemicals.db"));
    QVERIFY(other.run("BEGIN EXCLUSIVE"));
    HostOptions options;
    options.dataSource.databaseName = first.path("chemicals.db");
    MainWindow window(options);
    window.show();
    QVERIFY2(window.dataSourceProblem().contains(QStringLiteral("locked")),
             qPrintable(window.dataSourceProblem()));
    QVERIFY(other.run("ROLLBACK"));
    triggerReload(window);
    QCOMPARE(window.dataSourceProblem(), QString());
    QVERIFY(window.labelPage().findChild<QWidget*>(QStringLiteral("PrintButton"))->isEnabled());
}

void TestHostFaultsDatabase::lockedBetweenChoosingAndPrinting()
{
    LabelFaultFixture host;
    QVERIFY(host.choose(Printout::Labels));
    const OtherProgram other(host.path("chemicals.db"));
    QVERIFY(other.run("BEGIN EXCLUSIVE"));
    QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Failed));
    QVERIFY2(host.message.contains(QStringLiteral("locked")), qPrintable(host.message));
    QVERIFY(!QFile::exists(host.outputPath()));
    QVERIFY(other.run("ROLLBACK"));
    QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Completed));
}

void TestHostFaultsDatabase::anotherDatabaseInItsPlaceIsRead()
{
    LabelFaultFixture host;
    const QString path = host.path("chemicals.db");
    host.typeList(QStringLiteral("1"));
    if (!openFilesCanBeRemoved) {
        QVERIFY(!QFile::remove(path));
        QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Completed));
        return;
    }
    QVERIFY(QFile::copy(path, host.path("other.db")));
    QVERIFY(OtherProgram(host.path("other.db"))
                .run("UPDATE chemicals SET name = 'Renamed' WHERE id = 1"));
    // As programs do that write a whole file anew.
    QCOMPARE(std::rename(QFile::encodeName(host.path("other.db")).constData(),
                         QFile::encodeName(path).constData()),
             0);
    QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Completed));
    QVERIFY2(pdfPages(host.outputPath()).value(0).startsWith(QStringLiteral("Renamed")),
             qPrintable(pdfPages(host.outputPath()).value(0)));
}

void TestHostFaultsDatabase::readOnlyDatabaseIsRead()
{
    const LabelFaultFixture first;
    QVERIFY(QFile::setPermissions(first.path("chemicals.db"), QFile::ReadOwner));
    HostOptions options;
    options.dataSource.databaseName = first.path("chemicals.db");
    const MainWindow window(options);
    QCOMPARE(window.dataSourceProblem(), QString());
    QVERIFY(window.labelPage().navigator().count() >= 40);
}

void TestHostFaultsDatabase::emptyTableIsNoFault()
{
    LabelFaultFixture host;
    host.typeList(QStringLiteral("1"));
    QVERIFY(OtherProgram(host.path("chemicals.db")).run("DELETE FROM chemicals"));
    host.click("PrintButton");
    QCOMPARE(host.shownMessage(), QStringLiteral("There are no records. Nothing is printed."));
    triggerReload(*host.window);
    QCOMPARE(host.labels().navigator().count(), 0);
}

void TestHostFaultsDatabase::reloadKeepsThePosition()
{
    LabelFaultFixture host;
    QVERIFY(host.choose(Printout::Labels));
    host.labels().navigator().setCurrentIndex(6);
    const QString chosen = host.choices(Printout::Labels);
    triggerReload(*host.window);
    QCOMPARE(host.labels().design().currentIndex(), 6);
    QCOMPARE(host.labels().navigator().currentIndex(), 6);
    QCOMPARE(host.choices(Printout::Labels), chosen);
    QVERIFY(OtherProgram(host.path("chemicals.db")).run("DELETE FROM chemicals WHERE id > 3"));
    triggerReload(*host.window);
    QCOMPARE(host.labels().navigator().count(), 3);
    QCOMPARE(host.labels().design().currentIndex(), 2);
}

void TestHostFaultsDatabase::reloadWhilePrinting()
{
    LabelFaultFixture host;
    host.click("allRecordsRadio");
    host.panel().setNumberOfCopies(3);
    QSignalSpy ended(&host.labels().controller(), &PrintController::jobEnded);
    host.click("PrintButton");
    QVERIFY(host.labels().controller().isPrinting());
    triggerReload(*host.window);
    QVERIFY(!host.find<QWidget>("PrintButton")->isEnabled());
    QVERIFY(!ended.isEmpty() || ended.wait(60000));
    QCOMPARE(ended.at(0).at(0).value<Outcome>(), Outcome::Completed);
    QCOMPARE(pdfPages(host.outputPath()).size(), host.productNames().size() * 3);
}

void TestHostFaultsDatabase::databaseIsFreeBeforeAndAfterPrinting()
{
    LabelFaultFixture host;
    const OtherProgram other(host.path("chemicals.db"));
    QVERIFY(other.run("PRAGMA busy_timeout = 0"));
    QVERIFY(host.choose(Printout::Labels));
    host.click("PreviewButton");
    QVERIFY(host.labels().preview().popup() != nullptr);
    host.labels().preview().dismiss();
    QVERIFY(other.run("UPDATE chemicals SET formula = 'A'"));
    QCOMPARE(host.print(Printout::Labels), std::optional(Outcome::Completed));
    QTRY_VERIFY(other.run("UPDATE chemicals SET formula = 'B'"));
}

void TestHostFaultsDatabase::deletedWhilePrinting()
{
    LabelFaultFixture host;
    host.click("allRecordsRadio");
    host.panel().setNumberOfCopies(20);
    QSignalSpy ended(&host.labels().controller(), &PrintController::jobEnded);
    connect(&host.labels().controller(), &PrintController::jobStarted, this,
            [&host](PrintJob* job) {
                connect(job, &PrintJob::progressChanged, job,
                        [&host] { QFile::remove(host.path("chemicals.db")); });
            });
    host.click("PrintButton");
    QVERIFY(!ended.isEmpty() || ended.wait(60000));
    if (!openFilesCanBeRemoved) {
        QVERIFY(QFile::exists(host.path("chemicals.db")));
        QCOMPARE(ended.at(0).at(0).value<Outcome>(), Outcome::Completed);
        QCOMPARE(pdfPages(host.outputPath()).size(), host.productNames().size() * 20);
        return;
    }
    QCOMPARE(ended.at(0).at(0).value<Outcome>(), Outcome::Failed);
    QVERIFY(ended.at(0).at(1).toString().endsWith(QStringLiteral("the file does not exist.")));
    QVERIFY(!QFile::exists(host.outputPath()));
}

void TestHostFaultsDatabase::viewKeepsTheReason()
{
    LabelFaultFixture host;
    InputSimulation::processEvents();
    auto* view = host.find<LabelView>("labelView");
    QVERIFY(takeAway(host));
    host.labels().navigator().setCurrentIndex(3);
    const QImage shown = view->grab().toImage();
    QCOMPARE(view->grab().toImage(), shown);
    view->setSheet(QSizeF(101.6, 76.2), [](QPainter&, const QRectF&) {});
    QVERIFY(view->grab().toImage() != shown);
}

void TestHostFaultsDatabase::program_data()
{
    addFaults();
}

void TestHostFaultsDatabase::program()
{
    QFETCH(Fault, fault);
    LabelFaultFixture first;
    first.window.reset();
    const QString path = first.path("chemicals.db");
    QVERIFY(fault.apply(path));
    HostProgram program(first.folder.path());
    const int code =
        program.run(QStringLiteral("--print 1-2 --database chemicals.db --output labels.pdf"));
    if (qstrcmp(fault.name, "deleted") == 0) {
        QCOMPARE(code, 0);
        return;
    }
    QCOMPARE(code, 1);
    QVERIFY2(program.error.startsWith(QStringLiteral("The data source (")),
             qPrintable(program.error));
    QCOMPARE(program.error.count(QLatin1Char('\n')), qsizetype(1));
    QVERIFY(!QFile::exists(first.path("labels.pdf")));
    // What needs no records works all the same.
    QCOMPARE(program.run(QStringLiteral("--catalog EYE_WASH_STATION --database chemicals.db "
                                        "--output sign.pdf")),
             0);
}

void TestHostFaultsDatabase::programWithoutADriver()
{
    const QTemporaryDir folder;
    HostProgram program(folder.path());
    QCOMPARE(program.run(QStringLiteral("--driver QNOSUCH --print 1 --output labels.pdf")), 1);
    QVERIFY2(program.error.startsWith(QStringLiteral("There is no database driver \"QNOSUCH\".")),
             qPrintable(program.error));
    QCOMPARE(namesIn(folder.path()).filter(QStringLiteral("labels")), QStringList());
}

QTEST_MAIN(TestHostFaultsDatabase)

#include "tst_hostfaults_database.moc"
