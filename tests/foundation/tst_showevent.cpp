// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <printpanels/multipageprintwidget.h>
#include <printpanels/printwidget.h>

#include <QtCore/QStringList>

#include <memory>

namespace {

/** What happened during a show, in order. */
QStringList* recorded = nullptr;

void note(const char* step)
{
    if (recorded)
        recorded->append(QLatin1String(step));
}

/** Records when its own handler runs, and what happens within the panel's handler. */
template <typename Panel>
class WatchedPanel : public Panel
{
public:
    using Panel::Panel;

protected:
    void showEvent(QShowEvent* event) override
    {
        note("panel's handler begins");
        Panel::showEvent(event);
        note("panel's handler ends");
    }
};

PrintWidgetInterface* newPrintPanel()
{
    return new WatchedPanel<PrintWidget>(false, nullptr);
}

PrintWidgetInterface* newMultiPagePanel()
{
    return new WatchedPanel<MultiPagePrintWidget>(false, false, nullptr);
}

} // namespace

// Stands before Qt's own, which does nothing: the loader gives the executable's symbols to every
// library. Without it, nothing would tell whether the panel has called its base class yet.
void QWidget::showEvent(QShowEvent*)
{
    if (qobject_cast<PrintWidgetInterface*>(this))
        note("base handler");
}

class tst_ShowEvent : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override { recorded = nullptr; }
    void signalComesAfterTheBaseHandlerWithinThePanels_data();
    void signalComesAfterTheBaseHandlerWithinThePanels();
};

void tst_ShowEvent::signalComesAfterTheBaseHandlerWithinThePanels_data()
{
    using Factory = PrintWidgetInterface* (*)();
    QTest::addColumn<Factory>("create");
    addRow("print settings panel", &newPrintPanel);
    addRow("multi-page panel", &newMultiPagePanel);
}

void tst_ShowEvent::signalComesAfterTheBaseHandlerWithinThePanels()
{
    using Factory = PrintWidgetInterface* (*)();
    QFETCH(const Factory, create);
    const std::unique_ptr<PrintWidgetInterface> panel(create());
    QStringList steps;
    recorded = &steps;
    connect(panel.get(), &PrintWidgetInterface::printWidgetShowSignal, this,
            [] { note("signal"); });

    const QStringList once = {QStringLiteral("panel's handler begins"),
                              QStringLiteral("base handler"), QStringLiteral("signal"),
                              QStringLiteral("panel's handler ends")};
    panel->show();
    QCOMPARE(steps, once);
    panel->hide();
    panel->show();
    QCOMPARE(steps, once + once);
    QCoreApplication::processEvents();
    QCOMPARE(steps, once + once);
}

QTEST_MAIN(tst_ShowEvent)
#include "tst_showevent.moc"
