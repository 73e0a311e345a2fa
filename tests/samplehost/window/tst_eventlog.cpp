// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/support/signallogging.h"
#include "samplehost/window/eventlog.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>

#include <functional>

using namespace SampleHost;

Q_DECLARE_METATYPE(std::function<void(PrintWidget&)>)

class TestEventLog : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void listsEverySignal();
    void writesArguments_data();
    void writesArguments();
    void listsWhatTheUserDoes();
    void keepsTheNewestLines();
    void canBeCleared();
    void distinguishesPanels();
    void wrapsLongLines();

private:
    std::unique_ptr<PrintWidget> m_panel;
    std::unique_ptr<EventLog> m_log;
};

void TestEventLog::init()
{
    StrictTest::init();
    m_panel = std::make_unique<PrintWidget>(true, nullptr);
    m_log = std::make_unique<EventLog>();
    m_log->watch(*m_panel, QStringLiteral("A"));
}

void TestEventLog::cleanup()
{
    m_panel.reset();
    m_log.reset();
}

void TestEventLog::listsEverySignal()
{
    checkThatEverySignalIsLogged(*m_panel, *m_log, 12);
}

void TestEventLog::writesArguments_data()
{
    using Emit = std::function<void(PrintWidget&)>;
    addColumns<Emit, QString>("emitSignal", "line");

    const auto row = [](const char* name, const Emit& emitSignal, const char* line) {
        addRow(name, emitSignal, line);
    };
    row(
        "print",
        [](PrintWidget& panel) { Q_EMIT panel.widgetPrintSignal(0, 0, QStringLiteral("1,4-5")); },
        "A: widgetPrintSignal(0, 0, \"1,4-5\")");
    row(
        "preview", [](PrintWidget& panel) { Q_EMIT panel.printPreviewSignal(3, -1, QString()); },
        "A: printPreviewSignal(3, -1, \"\")");
    row(
        "width", [](PrintWidget& panel) { Q_EMIT panel.supplyWidthChangedSignal(2.125); },
        "A: supplyWidthChangedSignal(2.125)");
    row(
        "colours",
        [](PrintWidget& panel) {
            Q_EMIT panel.supplyColorsChangedSignal({QStringLiteral("#000000"), QString()});
        },
        "A: supplyColorsChangedSignal([\"#000000\", \"\"])");
    row(
        "ladder", [](PrintWidget& panel) { Q_EMIT panel.tinyLadderSupplyChangedSignal(true); },
        "A: tinyLadderSupplyChangedSignal(true)");
    row(
        "no argument", [](PrintWidget& panel) { Q_EMIT panel.openPreferencesSignal(); },
        "A: openPreferencesSignal()");
}

void TestEventLog::writesArguments()
{
    QFETCH(std::function<void(PrintWidget&)>, emitSignal);
    emitSignal(*m_panel);
    QCOMPARE(m_log->lines().size(), qsizetype(1));
    QTEST(m_log->lines().at(0), "line");
}

void TestEventLog::listsWhatTheUserDoes()
{
    m_panel->enableAllButtons();
    m_panel->show();
    const auto press = [this](const char* name) {
        QTest::mouseClick(m_panel->findChild<QWidget*>(QString::fromLatin1(name)), Qt::LeftButton);
    };
    press("PrintButton");
    press("PreviewButton");
    press("PreferencesButton");
    m_panel->findChild<QSpinBox*>(QStringLiteral("errorNumberSpinBox"))->setValue(7);
    press("showErrorButton");
    QCOMPARE(m_log->lines(), (QStringList{QStringLiteral("A: printWidgetShowSignal()"),
                                          QStringLiteral("A: widgetPrintSignal(1, -1, \"\")"),
                                          QStringLiteral("A: printPreviewSignal(1, -1, \"\")"),
                                          QStringLiteral("A: openPreferencesSignal()"),
                                          QStringLiteral("A: testPrintError(7)")}));
}

void TestEventLog::keepsTheNewestLines()
{
    for (int i = 0; i < EventLog::capacity + 3; ++i) {
        m_log->add(QString::number(i));
    }
    QCOMPARE(m_log->lines().size(), qsizetype(EventLog::capacity));
    QCOMPARE(m_log->lines().constFirst(), QStringLiteral("3"));
    QCOMPARE(m_log->lines().constLast(), QString::number(EventLog::capacity + 2));
}

void TestEventLog::canBeCleared()
{
    m_log->show();
    m_log->add(QStringLiteral("x"));
    QTest::mouseClick(m_log->findChild<QWidget*>(QStringLiteral("clearEventsButton")),
                      Qt::LeftButton);
    QVERIFY(m_log->lines().isEmpty());
}

void TestEventLog::distinguishesPanels()
{
    PrintWidget other(false, nullptr);
    m_log->watch(other, QStringLiteral("B"));
    Q_EMIT other.focusLost();
    Q_EMIT m_panel->focusLost();
    QCOMPARE(m_log->lines(),
             (QStringList{QStringLiteral("B: focusLost()"), QStringLiteral("A: focusLost()")}));
}

void TestEventLog::wrapsLongLines()
{
    auto* view = m_log->findChild<QTextEdit*>(QStringLiteral("eventList"));
    m_log->resize(240, 400);
    m_log->show();
    QStringList items;
    for (int i = 1; i <= 60; ++i) {
        items.append(QString::number(i * 10));
    }
    // Without a blank where it could be wrapped.
    const QString line =
        QStringLiteral("A: print(\"") + items.join(QLatin1Char(',')) + QStringLiteral("\n\")");
    m_log->add(line);
    m_log->add(QStringLiteral("B"));
    QCOMPARE(m_log->lines().constFirst(), line);
    const auto height = [view] {
        QTextBlock block = view->document()->firstBlock();
        return view->document()->documentLayout()->blockBoundingRect(block).height();
    };
    for (const int width : {240, 120, 500, 160}) {
        m_log->resize(width, 400);
        QCoreApplication::processEvents();
        QCOMPARE(view->document()->blockCount(), 2);
        QVERIFY(height() > 2 * view->fontMetrics().height());
        // Nothing is cut off.
        QVERIFY(view->document()->idealWidth() <= view->viewport()->width());
        QCOMPARE(view->horizontalScrollBar()->maximum(), 0);
    }
}

QTEST_MAIN(TestEventLog)

#include "tst_eventlog.moc"
