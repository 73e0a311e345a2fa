// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/checkedsavefile.h"
#include "samplehost/printing/hostsettings.h"
#include "samplehost/printing/printerdirectory.h"
#include "samplehost/printing/printtofile.h"
#include "samplehost/window/errormessages.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtCore/QDir>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtPrintSupport/QPrinterInfo>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

using namespace SampleHost;

class TestHostPrinters : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void pdfFileComesFirst();
    void pdfFileShowsItsPath();
    void pdfFileIsUnavailableWithoutFolder();
    void unknownPrinterIsUnavailable();
    void fillingKeepsTheSelection();
    void testFilesAreNumbered();
    void testFilesNeedAFolder();
    void everyErrorHasItsOwnMessage();
    void numbersWithoutErrorAreAnswered();
    void discardedFileLeavesNothing();

private:
    static QString shown(const PrintWidget& panel, const char* label);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HostSettings> m_settings;
};

void TestHostPrinters::init()
{
    StrictTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<HostSettings>();
    m_settings->setOutputPath(m_folder->filePath(QStringLiteral("labels.pdf")));
}

QString TestHostPrinters::shown(const PrintWidget& panel, const char* label)
{
    return panel.findChild<QLabel*>(QString::fromLatin1(label))->text();
}

void TestHostPrinters::pdfFileComesFirst()
{
    const PrinterDirectory directory(*m_settings);
    QCOMPARE(PrinterDirectory::pdfFileName(), QStringLiteral("PDF file"));
    QCOMPARE(directory.names(),
             QStringList{QStringLiteral("PDF file")} + QPrinterInfo::availablePrinterNames());
}

void TestHostPrinters::pdfFileShowsItsPath()
{
    const PrinterDirectory directory(*m_settings);
    PrintWidget panel(false, nullptr);
    directory.fill(panel);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("PDF file"));
    QCOMPARE(shown(panel, "locationLabel"), QDir::toNativeSeparators(m_settings->outputPath()));
    QCOMPARE(shown(panel, "statusLabel"), QStringLiteral("Online"));
}

void TestHostPrinters::pdfFileIsUnavailableWithoutFolder()
{
    const PrinterDirectory directory(*m_settings);
    m_settings->setOutputFolder(m_folder->filePath(QStringLiteral("missing")));
    PrintWidget panel(false, nullptr);
    directory.fill(panel);
    QCOMPARE(shown(panel, "statusLabel"), QStringLiteral("Offline, Unavailable"));
}

void TestHostPrinters::unknownPrinterIsUnavailable()
{
    const PrinterDirectory directory(*m_settings);
    const PrinterState state = directory.state(QStringLiteral("No such printer"));
    QVERIFY(state.offline);
    QVERIFY(state.unavailable);
    QVERIFY(!state.remote);
    QCOMPARE(state.location, QString());
}

void TestHostPrinters::fillingKeepsTheSelection()
{
    const PrinterDirectory directory(*m_settings);
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters({QStringLiteral("Gone"), QStringLiteral("PDF file")}, 1);
    directory.fill(panel);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("PDF file"));
    panel.updateListOfPrinters({QStringLiteral("PDF file"), QStringLiteral("Gone")}, 1);
    directory.fill(panel);
    QCOMPARE(panel.getSelectedPrinter(), QStringLiteral("PDF file"));
    QCOMPARE(panel.findChild<QComboBox*>(QStringLiteral("PrinterListCombo"))->count(),
             int(directory.names().size()));
}

void TestHostPrinters::testFilesAreNumbered()
{
    QString problem;
    const QString first = nextPrintTestFile(m_folder->path(), problem);
    QCOMPARE(first, m_folder->filePath(QStringLiteral("guest/logs/printTest_001.prn")));
    QVERIFY(QFile(first).open(QIODevice::WriteOnly));
    QCOMPARE(nextPrintTestFile(m_folder->path(), problem),
             m_folder->filePath(QStringLiteral("guest/logs/printTest_002.prn")));
    QCOMPARE(problem, QString());
}

void TestHostPrinters::testFilesNeedAFolder()
{
    QFile obstacle(m_folder->filePath(QStringLiteral("guest")));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    QString problem;
    QCOMPARE(nextPrintTestFile(m_folder->path(), problem), QString());
    QCOMPARE(problem,
             QStringLiteral("The folder \"%1\" cannot be made. Choose another output folder.")
                 .arg(QDir::toNativeSeparators(m_folder->filePath(QStringLiteral("guest/logs")))));
}

void TestHostPrinters::everyErrorHasItsOwnMessage()
{
    QSet<QString> messages;
    for (int number = 0; number <= 25; ++number) {
        const QString message = printErrorMessage(number);
        QVERIFY2(message.endsWith(QLatin1Char('.')), qPrintable(message));
        QVERIFY2(number == 0 || message.count(QStringLiteral(". ")) >= 1, qPrintable(message));
        messages.insert(message);
    }
    QCOMPARE(messages.size(), qsizetype(26));
    QCOMPARE(printErrorMessage(0), QStringLiteral("No error."));
    QCOMPARE(printErrorMessage(2), QStringLiteral("The cover is open. Close the cover."));
    QCOMPARE(printErrorMessage(25),
             QStringLiteral("The job was cancelled at the printer. Print it again if that was a "
                            "mistake."));
}

void TestHostPrinters::numbersWithoutErrorAreAnswered()
{
    QCOMPARE(printErrorMessage(-1), QStringLiteral("There is no print error -1."));
    QCOMPARE(printErrorMessage(26), QStringLiteral("There is no print error 26."));
}

void TestHostPrinters::discardedFileLeavesNothing()
{
    const QString path = m_folder->filePath(QStringLiteral("x.bin"));
    {
        CheckedSaveFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("abc"), qint64(3));
    }
    QVERIFY(!QFile::exists(path));
    CheckedSaveFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("abc"), qint64(3));
    QVERIFY(file.commitChecked());
    QCOMPARE(QFileInfo(path).size(), qint64(3));
}

QTEST_MAIN(TestHostPrinters)

#include "tst_hostprinters.moc"
