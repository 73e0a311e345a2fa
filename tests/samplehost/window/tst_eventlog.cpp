// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/eventlog.h"
#include "support/stricttest.h"

#include <printpanels/printwidget.h>

#include <QtCore/QMetaMethod>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>

using namespace SampleHost;

class TestEventLog : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void listsEverySignal();
    void writesArguments_data();
    void writesArguments();
    void listsWhatTheUserDoes();
    void keepsTheNewestLines();
    void canBeCleared();
    void tellsPanelsApart();

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

// A signal that is added to the panels must not be forgotten here.
void TestEventLog::listsEverySignal()
{
    const QMetaObject* metaObject = m_panel->metaObject();
    int signalCount = 0;
    for (int i = QWidget::staticMetaObject.methodCount(); i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        if (method.methodType() != QMetaMethod::Signal) {
            continue;
        }
        ++signalCount;
        QList<QVariant> values;
        QGenericArgument arguments[3];
        for (int a = 0; a < method.parameterCount(); ++a) {
            values.append(QVariant(method.parameterMetaType(a)));
        }
        for (int a = 0; a < method.parameterCount(); ++a) {
            arguments[a] = QGenericArgument(method.parameterMetaType(a).name(), values[a].data());
        }
        m_log->clear();
        QVERIFY2(method.invoke(m_panel.get(), Qt::DirectConnection, arguments[0], arguments[1],
                               arguments[2]),
                 method.methodSignature().constData());
        QCOMPARE(m_log->lines().size(), qsizetype(1));
        QVERIFY2(m_log->lines().at(0).startsWith(
                     QStringLiteral("A: ") + QString::fromLatin1(method.name()) + QLatin1Char('(')),
                 method.methodSignature().constData());
    }
    QCOMPARE(signalCount, 12);
}

void TestEventLog::writesArguments_data()
{
    using Emit = std::function<void(PrintWidget&)>;
    QTest::addColumn<Emit>("emitSignal");
    QTest::addColumn<QString>("line");

    QTest::newRow("print") << Emit([](PrintWidget& panel) {
        Q_EMIT panel.widgetPrintSignal(0, 0, QStringLiteral("1,4-5"));
    }) << QStringLiteral("A: widgetPrintSignal(0, 0, \"1,4-5\")");
    QTest::newRow("preview") << Emit([](PrintWidget& panel) {
        Q_EMIT panel.printPreviewSignal(3, -1, QString());
    }) << QStringLiteral("A: printPreviewSignal(3, -1, \"\")");
    QTest::newRow("width") << Emit([](PrintWidget& panel) {
        Q_EMIT panel.supplyWidthChangedSignal(2.125);
    }) << QStringLiteral("A: supplyWidthChangedSignal(2.125)");
    QTest::newRow("colours") << Emit([](PrintWidget& panel) {
        Q_EMIT panel.supplyColorsChangedSignal({QStringLiteral("#000000"), QString()});
    }) << QStringLiteral("A: supplyColorsChangedSignal([\"#000000\", \"\"])");
    QTest::newRow("ladder") << Emit([](PrintWidget& panel) {
        Q_EMIT panel.tinyLadderSupplyChangedSignal(true);
    }) << QStringLiteral("A: tinyLadderSupplyChangedSignal(true)");
    QTest::newRow("no argument") << Emit([](PrintWidget& panel) {
        Q_EMIT panel.openPreferencesSignal();
    }) << QStringLiteral("A: openPreferencesSignal()");
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

void TestEventLog::tellsPanelsApart()
{
    PrintWidget other(false, nullptr);
    m_log->watch(other, QStringLiteral("B"));
    Q_EMIT other.focusLost();
    Q_EMIT m_panel->focusLost();
    QCOMPARE(m_log->lines(),
             (QStringList{QStringLiteral("B: focusLost()"), QStringLiteral("A: focusLost()")}));
}

Q_DECLARE_METATYPE(std::function<void(PrintWidget&)>)

QTEST_MAIN(TestEventLog)

#include "tst_eventlog.moc"
