// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/faultfixture.h"
#include "samplehost/support/hostprogram.h"
#include "samplehost/window/preferencesdialog.h"
#include "support/stricttest.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

using namespace SampleHost;
using Outcome = PrintJob::Outcome;

/** Outputs that must not be chosen, on every system. */
class TestHostFaultsNames : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void filesInUseAreKept_data();
    void filesInUseAreKept();
    void programKeepsFilesInUse_data();
    void programKeepsFilesInUse();
    void preferencesRefuseOddNames();
};

void TestHostFaultsNames::filesInUseAreKept_data()
{
    QTest::addColumn<Printout>("printout");
    addRow("labels, database", Printout::Labels);
    addRow("catalogue item, database", Printout::Item);
}

void TestHostFaultsNames::filesInUseAreKept()
{
    QFETCH(Printout, printout);
    LabelFaultFixture host;
    QVERIFY(host.choose(printout));
    const QString path = host.path("chemicals.db");
    const QByteArray contents = contentsOf(path);
    host.window->settings().setOutputPath(path);
    QCOMPARE(host.print(printout), std::optional(Outcome::Failed));
    QCOMPARE(host.message,
             QStringLiteral("Writing \"%1\" would replace the database of the labels. "
                            "Choose another file.")
                 .arg(QDir::toNativeSeparators(path)));
    QCOMPARE(host.shown, host.message);
    QCOMPARE(contentsOf(path), contents);

    host.window->settings().setOutputPath(host.path("good.pdf"));
    QCOMPARE(host.print(printout), std::optional(Outcome::Completed));
}

void TestHostFaultsNames::programKeepsFilesInUse_data()
{
    QTest::addColumn<QString>("arguments");
    addRow("labels", "--print 1-2 --output chemicals.db");
    addRow("catalogue item", "--catalog EYE_WASH_STATION --output chemicals.db");
    addRow("picture", "--screenshot chemicals.db");
}

void TestHostFaultsNames::programKeepsFilesInUse()
{
    QFETCH(QString, arguments);
    const QTemporaryDir folder;
    const QString data = folder.filePath(QStringLiteral("chemicals.db"));
    HostProgram program(folder.path());
    QCOMPARE(program.run(QStringLiteral("--database chemicals.db --screenshot some.png")), 0);
    const QByteArray before = contentsOf(data);

    QCOMPARE(program.run(QStringLiteral("--database chemicals.db ") + arguments), 1);
    QVERIFY2(program.error.contains(QStringLiteral(" would replace the ")),
             qPrintable(program.error));
    QCOMPARE(contentsOf(data), before);
}

void TestHostFaultsNames::preferencesRefuseOddNames()
{
    LabelFaultFixture host;
    const PreferencesDialog dialog(host.window->settings());
    auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("fileEdit"));
    auto* folder = dialog.findChild<QLineEdit*>(QStringLiteral("folderEdit"));
    auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    const QString goodFolder = folder->text();
    for (const QString& bad : {QStringLiteral("."), QStringLiteral(".."), QString(QChar(0)),
                               QStringLiteral("a") + QChar(0) + QStringLiteral("b")}) {
        file->setText(bad);
        QVERIFY2(!ok->isEnabled(), qPrintable(bad));
    }
    file->setText(QStringLiteral("good.pdf"));
    QVERIFY(ok->isEnabled());
    folder->setText(goodFolder + QChar(0));
    QVERIFY(!ok->isEnabled());
    folder->setText(goodFolder);
    QVERIFY(ok->isEnabled());
}

QTEST_MAIN(TestHostFaultsNames)

#include "tst_hostfaults_names.moc"
