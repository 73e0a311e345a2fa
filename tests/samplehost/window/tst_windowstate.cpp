// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/catalogpage.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/window/windowstate.h"
#include "support/stricttest.h"

#include <QtCore/QSettings>
#include <QtGui/QScreen>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QTabWidget>

using namespace SampleHost;

namespace {

constexpr QRect bigScreen(0, 0, 1920, 1080);

QDockWidget& dock(const HostFixture& host, const char* name)
{
    return *host.window->findChild<QDockWidget*>(QLatin1String(name));
}

bool isDockOpen(const HostFixture& host, const char* name)
{
    return !dock(host, name).isHidden();
}

int currentPage(const HostFixture& host)
{
    return host.window->findChild<QTabWidget*>()->currentIndex();
}

} // namespace

/** What the host remembers of its window, its printer and its folders. */
class TestWindowState : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void placesInsideTheScreen_data();
    void placesInsideTheScreen();
    void firstStartFillsASmallScreen();
    void firstStartOnABigScreen();
    void windowIsRemembered();
    void maximizedWindowIsRemembered();
    void docksAndPageAreRemembered();
    void docksKeepTheirPlace();
    void printerIsRemembered();
    void printerThatIsGoneIsForgotten();
    void optionsDoNotOverwriteTheWindow();
    void oddSettingsAreIgnored_data();
    void oddSettingsAreIgnored();

protected:
    void init() override;
    void cleanup() override { m_folder.reset(); }

private:
    /** A host as a user starts it. */
    static std::unique_ptr<HostFixture> start(const QRect& screen = bigScreen);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestWindowState::init()
{
    StrictTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
    QCoreApplication::setOrganizationName(QStringLiteral("printpanels-test"));
}

std::unique_ptr<HostFixture> TestWindowState::start(const QRect& screen)
{
    auto host = std::make_unique<HostFixture>();
    host->window->hide();
    host->window->persistSettings();
    host->window->restoreWindow(screen);
    return host;
}

void TestWindowState::placesInsideTheScreen_data()
{
    addColumns<QRect, QRect, QRect>("wanted", "available", "expected");
    const QRect screen(0, 0, 800, 480);
    addRow("inside", QRect(10, 20, 300, 200), screen, QRect(10, 20, 300, 200));
    addRow("beyond right and bottom", QRect(700, 400, 300, 200), screen, QRect(500, 280, 300, 200));
    addRow("beyond left and top", QRect(-50, -60, 300, 200), screen, QRect(0, 0, 300, 200));
    addRow("too large", QRect(10, 20, 1100, 760), screen, screen);
    addRow("too wide", QRect(-10, 20, 1100, 200), screen, QRect(0, 20, 800, 200));
    addRow("another screen", QRect(2500, 300, 600, 400), screen, QRect(200, 80, 600, 400));
    addRow("screen on the left", QRect(10, 10, 600, 400), QRect(-1920, 50, 1920, 1030),
           QRect(-600, 50, 600, 400));
    addRow("huge", QRect(INT_MIN / 2, INT_MIN / 2, INT_MAX / 2, INT_MAX / 2), screen, screen);
}

void TestWindowState::placesInsideTheScreen()
{
    QFETCH(QRect, wanted);
    QFETCH(QRect, available);
    QTEST(WindowState::inside(wanted, available), "expected");
}

void TestWindowState::firstStartFillsASmallScreen()
{
    const QRect screen(0, 0, 800, 480);
    const auto host = start(screen);
    QVERIFY(host->window->isMaximized());
    QVERIFY(screen.contains(host->window->normalGeometry()));
}

void TestWindowState::firstStartOnABigScreen()
{
    const auto host = start();
    QVERIFY(!host->window->isMaximized());
    QCOMPARE(host->window->size(), QSize(1100, 760));
}

void TestWindowState::windowIsRemembered()
{
    const QRect place(120, 90, 900, 600);
    {
        const auto host = start();
        host->window->setGeometry(place);
        QVERIFY(host->window->saveSettings());
    }
    QCOMPARE(start()->window->geometry(), place);
    // On a smaller screen it is brought inside.
    const QRect smaller(0, 0, 1000, 650);
    const auto host = start(smaller);
    QVERIFY(smaller.contains(host->window->geometry()));
    QCOMPARE(host->window->size(), place.size());
}

void TestWindowState::maximizedWindowIsRemembered()
{
    {
        const auto host = start();
        host->window->setGeometry(50, 60, 700, 500);
        host->window->showMaximized();
        QVERIFY(host->window->saveSettings());
    }
    const auto host = start();
    QVERIFY(host->window->isMaximized());
    QCOMPARE(host->window->normalGeometry(), QRect(50, 60, 700, 500));
}

void TestWindowState::docksAndPageAreRemembered()
{
    {
        const auto host = start();
        QVERIFY(!isDockOpen(*host, "supplyDock"));
        host->window->show();
        host->window->findChild<QDockWidget*>(QStringLiteral("eventDock"))->show();
        host->window->setCurrentPage(host->window->catalogPage());
        // As at the end of the program.
        host->window->close();
        QVERIFY(host->window->saveSettings());
    }
    const auto host = start();
    QVERIFY(isDockOpen(*host, "eventDock"));
    QVERIFY(!isDockOpen(*host, "supplyDock"));
    QCOMPARE(currentPage(*host), 2);
}

void TestWindowState::printerIsRemembered()
{
    const QString name = QStringLiteral("Line 4");
    QSettings().setValue(QStringLiteral("output/printer"), name);
    HostFixture host;
    QCOMPARE(host.panel().getSelectedPrinter(), QStringLiteral("PDF file"));
    for (PrintPage* page :
         {static_cast<PrintPage*>(&host.labels()), static_cast<PrintPage*>(&host.pipes())}) {
        page->panel().addPrinterToList(name, false);
    }
    host.window->settings().setPrinter(name);
    host.window->settings().save();
    HostSettings later;
    later.load();
    QCOMPARE(later.rememberedPrinter(), name);
    // The name is only remembered, because the printer may be gone.
    QCOMPARE(later.printer(), QString());
}

void TestWindowState::printerThatIsGoneIsForgotten()
{
    QSettings().setValue(QStringLiteral("output/printer"), QStringLiteral("Gone"));
    const auto host = start();
    QCOMPARE(host->window->settings().printer(), QStringLiteral("PDF file"));
    QCOMPARE(host->panel().getSelectedPrinter(), QStringLiteral("PDF file"));
}

void TestWindowState::optionsDoNotOverwriteTheWindow()
{
    const QRect place(120, 90, 900, 600);
    {
        const auto host = start();
        host->window->setGeometry(place);
        host->window->setCurrentPage(host->pipes());
        QVERIFY(host->window->saveSettings());
    }
    HostFixture host;
    host.window->hide();
    host.window->persistSettings();
    host.window->settings().setPaper(Paper::A4);
    host.window->restoreWindow(bigScreen);
    QCOMPARE(host.window->geometry(), place);
    QCOMPARE(currentPage(host), 1);
}

void TestWindowState::oddSettingsAreIgnored_data()
{
    addColumns<QString, QVariant>("key", "value");
    const QString rectangle = QStringLiteral("window/rectangle");
    QTest::newRow("no rectangle") << rectangle << QVariant(QStringLiteral("@Rect(x)"));
    QTest::newRow("empty rectangle") << rectangle << QVariant(QRect());
    QTest::newRow("huge rectangle")
        << rectangle << QVariant(QRect(INT_MIN / 2, INT_MIN / 2, INT_MAX / 2, INT_MAX / 2));
    QTest::newRow("far away") << rectangle << QVariant(QRect(INT_MAX - 9, INT_MAX - 9, 5, 5));
    QTest::newRow("overflowing") << rectangle
                                 << QVariant(
                                        QRect(QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, INT_MAX)));
    QTest::newRow("page") << QStringLiteral("window/page") << QVariant(99);
    QTest::newRow("negative page") << QStringLiteral("window/page") << QVariant(-1);
    QTest::newRow("no page") << QStringLiteral("window/page") << QVariant(QStringLiteral("x"));
    const QString log = QStringLiteral("docks/eventDock/");
    QTest::newRow("area") << log + QStringLiteral("area") << QVariant(99);
    QTest::newRow("all areas") << log + QStringLiteral("area") << QVariant(15);
    QTest::newRow("width") << log + QStringLiteral("width") << QVariant(INT_MAX);
    QTest::newRow("negative width") << log + QStringLiteral("width") << QVariant(INT_MIN);
    QTest::newRow("no dock") << log + QStringLiteral("open") << QVariant(QByteArray(500, '\xff'));
    QTest::newRow("printer") << QStringLiteral("output/printer") << QVariant(QRect(1, 2, 3, 4));
}

void TestWindowState::oddSettingsAreIgnored()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QSettings().setValue(key, value);
    const auto host = start();
    host->window->show();
    QVERIFY(bigScreen.contains(host->window->normalGeometry()));
    QVERIFY(currentPage(*host) == 0);
    QVERIFY(host->print() == std::optional(HostFixture::Outcome::Completed));
}

void TestWindowState::docksKeepTheirPlace()
{
    {
        const auto host = start();
        QDockWidget& log = dock(*host, "eventDock");
        host->window->addDockWidget(Qt::RightDockWidgetArea, &log);
        log.show();
        QDockWidget& supply = dock(*host, "supplyDock");
        supply.setFloating(true);
        supply.setGeometry(300, 200, 310, 330);
        supply.show();
        QVERIFY(host->window->saveSettings());
    }
    const auto host = start();
    QCOMPARE(host->window->dockWidgetArea(&dock(*host, "eventDock")), Qt::RightDockWidgetArea);
    QVERIFY(dock(*host, "supplyDock").isFloating());
    QCOMPARE(dock(*host, "supplyDock").geometry(), QRect(300, 200, 310, 330));
    const QRect smaller(0, 0, 500, 400);
    QVERIFY(smaller.contains(dock(*start(smaller), "supplyDock").geometry()));
}

QTEST_MAIN(TestWindowState)

#include "tst_windowstate.moc"
