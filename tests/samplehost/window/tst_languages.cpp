// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/commandline/languages.h"
#include "samplehost/support/hostfixture.h"
#include "samplehost/support/programtest.h"

#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QTranslator>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

using namespace SampleHost;

/** The languages of the program. */
class TestLanguages : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsWhatIsThere();
    void takesTheLanguageOfTheUser_data();
    void takesTheLanguageOfTheUser();
    void translatesWindowAndPanels();
    void arabicRunsFromRightToLeft();
    void unknownLanguageIsNotInstalled();
    void programTakesALanguage();
    void programRefusesAnUnknownLanguage();
    void programWithoutUserStaysEnglish();
    void menuStoresTheChoice();

protected:
    void cleanup() override
    {
        const auto translators = qApp->findChildren<QTranslator*>();
        qDeleteAll(translators);
        QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
        ProgramTest::cleanup();
    }
};

void TestLanguages::listsWhatIsThere()
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    QCOMPARE(Languages::codes({first.path()}), QStringList{QStringLiteral("en")});
    for (const char* name : {"printpanels_sv.qm", "printpanels_de.qm", "samplehost_fr.qm",
                             "printpanels_en.qm", "printpanels_it.ts"}) {
        QVERIFY(QFile(first.filePath(QLatin1String(name))).open(QIODevice::WriteOnly));
    }
    for (const char* name : {"printpanels_de.qm", "printpanels_pt_BR.qm"}) {
        QVERIFY(QFile(second.filePath(QLatin1String(name))).open(QIODevice::WriteOnly));
    }
    QCOMPARE(Languages::codes({first.path(), second.path()}),
             (QStringList{QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("pt_BR"),
                          QStringLiteral("sv")}));
}

void TestLanguages::takesTheLanguageOfTheUser_data()
{
    addColumns<QString, QString>("user", "code");
    addRow("same", "de", "de");
    addRow("with region", "de-AT", "de");
    addRow("with script", "de-Latn-DE", "de");
    addRow("region of its own", "pt-BR", "pt_BR");
    addRow("second choice", "fr-FR fr de-DE", "de");
    addRow("none", "fr-FR", "en");
    addRow("English before German", "en-GB de-DE", "en");
    addRow("neutral", "C", "en");
    addRow("nothing", "", "en");
}

void TestLanguages::takesTheLanguageOfTheUser()
{
    QFETCH(QString, user);
    const QStringList codes{QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("pt_BR")};
    QTEST(Languages::ofSystem(user.split(QLatin1Char(' ')), codes), "code");
}

void TestLanguages::translatesWindowAndPanels()
{
    QVERIFY(Languages::install(QStringLiteral("de"), {QStringLiteral(QM_DIR)}));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    const HostFixture host;
    QCOMPARE(host.find<QPushButton>("PrintButton")->text(), QStringLiteral(" Drucken "));
    QCOMPARE(host.window->menuBar()->actions().constFirst()->text(), QStringLiteral("&Datei"));
    QCOMPARE(host.window->findChild<QTabWidget*>()->tabText(2), QStringLiteral("Katalog"));
    // In long words, too, it fits on a small screen.
    QVERIFY(host.window->minimumSizeHint().width() <= 760);
}

void TestLanguages::arabicRunsFromRightToLeft()
{
    QVERIFY(QFile::copy(QStringLiteral(QM_DIR "/printpanels_de.qm"), path("printpanels_ar.qm")));
    QVERIFY(Languages::install(QStringLiteral("ar"), {m_folder->path()}));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
}

void TestLanguages::unknownLanguageIsNotInstalled()
{
    QVERIFY(!Languages::install(QStringLiteral("xx"), {QStringLiteral(QM_DIR)}));
    // Not even that of a damaged file, or of a similar name.
    QFile file(path("printpanels_xx.qm"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no translation");
    file.close();
    QVERIFY(!Languages::install(QStringLiteral("xx"), {m_folder->path()}));
    QVERIFY(!Languages::install(QStringLiteral("de_XX"), {QStringLiteral(QM_DIR)}));
    QVERIFY(Languages::install(QStringLiteral("en"), {}));
}

void TestLanguages::programTakesALanguage()
{
    QCOMPARE(run(QStringLiteral("--language de --print 0x --output out.pdf")), 2);
    QVERIFY2(error().contains(QStringLiteral("Nichts wird gedruckt.")), qPrintable(error()));
    QCOMPARE(run(QStringLiteral("--language de --paper a0 --all --output out.pdf")), 2);
    QVERIFY2(error().contains(QStringLiteral("--paper braucht")), qPrintable(error()));
    QCOMPARE(run(QStringLiteral("--language en --print 0x --output out.pdf")), 2);
    QVERIFY2(error().contains(QStringLiteral("Nothing is printed.")), qPrintable(error()));
}

void TestLanguages::programRefusesAnUnknownLanguage()
{
    QCOMPARE(run(QStringLiteral("--language xx --all --output out.pdf")), 2);
    QCOMPARE(error(), QStringLiteral("--language needs one of en, de, not \"xx\".\n"));
}

void TestLanguages::programWithoutUserStaysEnglish()
{
    m_program->environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("de"));
    m_program->environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
    QCOMPARE(run(QStringLiteral("--print 0x --output out.pdf")), 2);
    QVERIFY2(error().contains(QStringLiteral("Nothing is printed.")), qPrintable(error()));
}

void TestLanguages::menuStoresTheChoice()
{
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
    QCoreApplication::setOrganizationName(QStringLiteral("printpanels-test"));
    HostFixture host;
    host.window->persistSettings();
    const auto* menu = host.window->findChild<QMenu*>(QStringLiteral("languageMenu"));
    const QList<QAction*> actions = menu->actions();
    QCOMPARE(actions.size(), Languages::codes().size() + 1);
    QVERIFY(actions.at(0)->isChecked());
    QCOMPARE(actions.at(1)->text(), QStringLiteral("English"));
    actions.at(1)->trigger();
    QVERIFY(actions.at(1)->isChecked());
    QVERIFY(!actions.at(0)->isChecked());
    QCOMPARE(Languages::stored(), QStringLiteral("en"));
    QCOMPARE(host.shownMessage(), QStringLiteral("The language changes at the next start."));
}

QTEST_MAIN(TestLanguages)

#include "tst_languages.moc"
