// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/labelprints.h"
#include "samplehost/support/pdfcontent.h"
#include "samplehost/support/pdfpages.h"
#include "samplehost/support/programtest.h"
#include "samplehost/window/mainwindow.h"

namespace {

// What is printed, each to a file of its own.
constexpr const char* commands[] = {
    "--print 1,4-5 --background",
    "--print 2-6 --nup 2x2 --sequence --paper a4",
    "--print 3 --preview --portrait",
    "--catalog NO_SMOKING --size 7x5",
};
constexpr const char* documentCommand = "--document in.pdf --all-pages --paper letter --fit";

} // namespace

/** What the program prints is the same however it is started. */
class TestPrintEnvironments : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void printTheSame_data();
    void printTheSame();

private:
    bool writeDocument() const;
    QList<QByteArray> print(const QString& options);

    QStringList m_commands;
    QList<QByteArray> m_expected;
};

bool TestPrintEnvironments::writeDocument() const
{
    QFile file(path("in.pdf"));
    const QByteArray document =
        printPdf(QSizeF(100, 80), 300, [](QPainter& painter, const QRectF& page) {
            painter.drawText(page, Qt::AlignCenter, QStringLiteral("Printed."));
        });
    return file.open(QIODevice::WriteOnly) && file.write(document) == document.size();
}

QList<QByteArray> TestPrintEnvironments::print(const QString& options)
{
    QList<QByteArray> contents;
    // The order of the objects in a file depends on the seed.
    m_program->environment.insert(QStringLiteral("QT_HASH_SEED"), QStringLiteral("0"));
    for (const QString& command : std::as_const(m_commands)) {
        QFile::remove(path("out.pdf"));
        if (run(command + QStringLiteral(" --output out.pdf ") + options) != 0) {
            qWarning("%s", qPrintable(error()));
        }
        contents.append(pdfContent(path("out.pdf")));
    }
    return contents;
}

void TestPrintEnvironments::initTestCase()
{
    for (const char* command : commands) {
        m_commands.append(QString::fromLatin1(command));
    }
    if (SampleHost::MainWindow::parts().documents) {
        m_commands.append(QString::fromLatin1(documentCommand));
    }
    init();
    QVERIFY(writeDocument());
    m_expected = print(QString());
    QVERIFY(pdfPages(path("out.pdf")).size() == 1);
    QVERIFY(!m_expected.contains(QByteArray()));
}

void TestPrintEnvironments::printTheSame_data()
{
    addColumns<QString, QString>("variables", "options");

    addRow("again", "", "");
    addRow("right to left", "", "-reverse");
    addRow("style", "", "-style windows");
    addRow("style sheet", "", "-stylesheet dark.qss");
    addRow("twice the size", "QT_SCALE_FACTOR=2", "");
    addRow("one and a half", "QT_SCALE_FACTOR=1.5 QT_SCALE_FACTOR_ROUNDING_POLICY=PassThrough", "");
    addRow("resolution", "QT_FONT_DPI=192", "");
    addRow("German", "LANG=de_DE.UTF-8 LC_ALL=de_DE.UTF-8 LANGUAGE=de", "");
    addRow("Arabic", "LANG=ar_EG.UTF-8 LC_ALL=ar_EG.UTF-8 LANGUAGE=ar", "-reverse");
    addRow("Japanese", "LANG=ja_JP.UTF-8 LC_ALL=ja_JP.UTF-8", "");
}

void TestPrintEnvironments::printTheSame()
{
    QFETCH(QString, variables);
    QFETCH(QString, options);
    QVERIFY(writeDocument());
    QFile sheet(path("dark.qss"));
    QVERIFY(sheet.open(QIODevice::WriteOnly));
    sheet.write("* { color: white; background: black; font: italic 20pt }");
    sheet.close();
    for (const QString& variable : HostProgram::split(variables)) {
        m_program->environment.insert(variable.section(QLatin1Char('='), 0, 0),
                                      variable.section(QLatin1Char('='), 1));
    }
    const QList<QByteArray> printed = print(options);
    for (qsizetype i = 0; i < m_commands.size(); ++i) {
        QVERIFY2(printed.at(i) == m_expected.at(i), qPrintable(m_commands.at(i)));
    }
}

QTEST_MAIN(TestPrintEnvironments)

#include "tst_printenvironments.moc"
