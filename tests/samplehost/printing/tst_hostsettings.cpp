// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/nupcombo.h"
#include "samplehost/print/filename.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/window/preferencesdialog.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

using namespace SampleHost;

class TestHostSettings : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void startsWithUsableValues();
    void reportsEachChangeOnce();
    void takesPathsApart();
    void refusesUnusableNames();
    void windowsReservesNames_data();
    void windowsReservesNames();
    void knowsPapers();
    void survivesASession();
    void ignoresDamagedStoredValues();
    void dialogChangesNothingUntilAccepted();
    void dialogTakesEntriesOver();
    void dialogRefusesMissingFolder();
    void dialogRefusesNameWithFolder();
    void layoutChoiceTakesAnyLayout();

private:
    QTemporaryDir m_folder;
};

void TestHostSettings::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("printpanels-test"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_hostsettings"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
}

void TestHostSettings::startsWithUsableValues()
{
    const HostSettings settings;
    QVERIFY(QDir(settings.outputFolder()).exists());
    QCOMPARE(settings.outputFileName(), QStringLiteral("labels.pdf"));
    QCOMPARE(settings.outputPath(),
             QDir(settings.outputFolder()).filePath(QStringLiteral("labels.pdf")));
    QCOMPARE(settings.paper(), Paper::LabelSize);
    QCOMPARE(settings.nup().text(), QStringLiteral("1x1"));
}

void TestHostSettings::reportsEachChangeOnce()
{
    HostSettings settings;
    QSignalSpy changed(&settings, &HostSettings::changed);
    settings.setPaper(Paper::A4);
    settings.setPaper(Paper::A4);
    QCOMPARE(changed.size(), qsizetype(1));
    settings.setNup(NupLayout{2, 2});
    settings.setNup(NupLayout{2, 2});
    QCOMPARE(changed.size(), qsizetype(2));
    settings.setOutputFolder(m_folder.path());
    settings.setOutputFolder(m_folder.path() + QLatin1Char('/'));
    QCOMPARE(changed.size(), qsizetype(3));
}

void TestHostSettings::takesPathsApart()
{
    HostSettings settings;
    settings.setOutputPath(m_folder.filePath(QStringLiteral("my labels.pdf")));
    QCOMPARE(settings.outputFolder(), m_folder.path());
    QCOMPARE(settings.outputFileName(), QStringLiteral("my labels.pdf"));
    settings.setOutputPath(QStringLiteral("here.pdf"));
    QCOMPARE(settings.outputPath(), QDir::current().filePath(QStringLiteral("here.pdf")));
}

void TestHostSettings::refusesUnusableNames()
{
    HostSettings settings;
    settings.setOutputPath(m_folder.filePath(QStringLiteral("a.pdf")));
    settings.setOutputFolder(QString());
    settings.setOutputFileName(QString());
    settings.setOutputFileName(QStringLiteral("b/c.pdf"));
    settings.setOutputPath(QString());
    QCOMPARE(settings.outputPath(), m_folder.filePath(QStringLiteral("a.pdf")));
    settings.setNup(NupLayout{0, 77});
    QCOMPARE(settings.nup().text(), QStringLiteral("1x10"));
}

void TestHostSettings::windowsReservesNames_data()
{
    addColumns<QString, bool>("name", "allowed");

    addRow("ordinary", "labels.pdf", true);
    addRow("blanks inside", "my labels (2).pdf", true);
    addRow("other scripts", QString::fromUtf8("\u00e4\u6f22.pdf"), true);
    addRow("begins like a device", "console.pdf", true);
    addRow("device as a suffix", "labels.con", true);
    addRow("not a port", "COM10.pdf", true);
    addRow("device", "NUL", false);
    addRow("device with a suffix", "con.pdf", false);
    addRow("port", "Lpt1.tar.gz", false);
    addRow("blank after a device", "aux .pdf", false);
    addRow("stream of another file", "a:b.pdf", false);
    addRow("question mark", "what?.pdf", false);
    addRow("star", "*.pdf", false);
    addRow("quotes", "\"a\".pdf", false);
    addRow("arrows", "<a>.pdf", false);
    addRow("pipe", "a|b.pdf", false);
    addRow("backslash", "a\\b.pdf", false);
    addRow("line break", "a\nb.pdf", false);
    addRow("period at the end", "labels.", false);
    addRow("blank at the end", "labels.pdf ", false);
}

void TestHostSettings::windowsReservesNames()
{
    QFETCH(QString, name);
    QTEST(isAllowedFileName(name, QOperatingSystemVersion::Windows), "allowed");
    QVERIFY(isAllowedFileName(name, QOperatingSystemVersion::Unknown));
    const bool windows = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
    QFETCH(bool, allowed);
    QCOMPARE(HostSettings::isFileName(name), allowed || !windows);
}

void TestHostSettings::knowsPapers()
{
    QVERIFY(paperSizeMm(Paper::LabelSize).isEmpty());
    QCOMPARE(paperSizeMm(Paper::A4), QSizeF(210, 297));
    QCOMPARE(paperSizeMm(Paper::Letter), QSizeF(215.9, 279.4));
    QCOMPARE(paperName(Paper::LabelSize), QStringLiteral("As large as the labels"));
    QCOMPARE(paperName(Paper::Letter), QStringLiteral("Letter"));
}

void TestHostSettings::survivesASession()
{
    HostSettings before;
    before.setOutputPath(m_folder.filePath(QStringLiteral("kept.pdf")));
    before.setPaper(Paper::Letter);
    before.setNup(NupLayout{3, 2});
    before.save();

    HostSettings after;
    after.load();
    QCOMPARE(after.outputPath(), m_folder.filePath(QStringLiteral("kept.pdf")));
    QCOMPARE(after.paper(), Paper::Letter);
    QCOMPARE(after.nup().text(), QStringLiteral("3x2"));
}

void TestHostSettings::ignoresDamagedStoredValues()
{
    QSettings stored;
    stored.setValue(QStringLiteral("output/folder"), QString());
    stored.setValue(QStringLiteral("output/file"), QStringLiteral("x/y"));
    stored.setValue(QStringLiteral("output/paper"), 99);
    stored.setValue(QStringLiteral("output/nup"), QStringLiteral("lots"));
    HostSettings settings;
    const QString path = settings.outputPath();
    settings.load();
    QCOMPARE(settings.outputPath(), path);
    QCOMPARE(settings.paper(), Paper::LabelSize);
    QCOMPARE(settings.nup().text(), QStringLiteral("1x1"));
}

void TestHostSettings::dialogChangesNothingUntilAccepted()
{
    HostSettings settings;
    settings.setOutputPath(m_folder.filePath(QStringLiteral("a.pdf")));
    QSignalSpy changed(&settings, &HostSettings::changed);
    PreferencesDialog dialog(settings);
    dialog.show();
    auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("fileEdit"));
    QCOMPARE(file->text(), QStringLiteral("a.pdf"));
    file->selectAll();
    QTest::keyClicks(file, QStringLiteral("b.pdf"));
    dialog.reject();
    QVERIFY(changed.isEmpty());
    QCOMPARE(settings.outputFileName(), QStringLiteral("a.pdf"));
}

void TestHostSettings::dialogTakesEntriesOver()
{
    HostSettings settings;
    settings.setOutputPath(m_folder.filePath(QStringLiteral("a.pdf")));
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("sub")));
    PreferencesDialog dialog(settings);
    dialog.show();
    auto* folder = dialog.findChild<QLineEdit*>(QStringLiteral("folderEdit"));
    QTest::keyClick(folder, Qt::Key_End);
    QTest::keyClicks(folder, QStringLiteral("/sub"));
    QTest::keyClick(dialog.findChild<QWidget*>(QStringLiteral("paperCombo")), Qt::Key_End);
    QTest::keyClick(dialog.findChild<QWidget*>(QStringLiteral("preferencesNupCombo")), Qt::Key_End);
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(settings.outputPath(), m_folder.filePath(QStringLiteral("sub/a.pdf")));
    QCOMPARE(settings.paper(), Paper::Letter);
    QCOMPARE(settings.nup().text(), QStringLiteral("3x3"));
}

void TestHostSettings::dialogRefusesMissingFolder()
{
    HostSettings settings;
    PreferencesDialog dialog(settings);
    dialog.show();
    auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    QVERIFY(ok->isEnabled());
    auto* folder = dialog.findChild<QLineEdit*>(QStringLiteral("folderEdit"));
    QTest::keyClick(folder, Qt::Key_End);
    QTest::keyClicks(folder, QStringLiteral("/no such folder"));
    QVERIFY(!ok->isEnabled());
    QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("problemLabel"))->text(),
             QStringLiteral("This folder does not exist. Choose another one."));
    const QString before = settings.outputFolder();
    dialog.accept();
    QVERIFY(dialog.isVisible());
    QCOMPARE(settings.outputFolder(), before);
}

void TestHostSettings::dialogRefusesNameWithFolder()
{
    HostSettings settings;
    PreferencesDialog dialog(settings);
    dialog.show();
    auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("fileEdit"));
    auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    file->clear();
    QVERIFY(!ok->isEnabled());
    QTest::keyClicks(file, QStringLiteral("x/y.pdf"));
    QVERIFY(!ok->isEnabled());
    file->clear();
    QTest::keyClicks(file, QStringLiteral("y.pdf"));
    QVERIFY(ok->isEnabled());
}

void TestHostSettings::layoutChoiceTakesAnyLayout()
{
    NupCombo combo;
    QSignalSpy chosen(&combo, &NupCombo::layoutChosen);
    const int offered = combo.count();
    QCOMPARE(combo.layoutChoice().text(), QStringLiteral("1x1"));
    combo.setLayoutChoice(NupLayout{2, 2});
    QCOMPARE(combo.layoutChoice().text(), QStringLiteral("2x2"));
    QCOMPARE(combo.count(), offered);
    combo.setLayoutChoice(NupLayout{7, 9});
    QCOMPARE(combo.layoutChoice().text(), QStringLiteral("7x9"));
    QCOMPARE(combo.count(), offered + 1);
    QVERIFY(chosen.isEmpty());
    combo.show();
    QTest::keyClick(&combo, Qt::Key_Home);
    QCOMPARE(chosen.size(), qsizetype(1));
    QCOMPARE(chosen.at(0).at(0).value<NupLayout>().text(), QStringLiteral("1x1"));
}

QTEST_MAIN(TestHostSettings)

#include "tst_hostsettings.moc"
