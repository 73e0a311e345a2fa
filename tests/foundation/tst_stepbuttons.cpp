// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "support/stricttest.h"

#include <printpanels/printwidgetinterface.h>

#include <QtWidgets/QAbstractButton>

#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

/** The plus and minus buttons of every panel, held down. */
class tst_StepButtons : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void repeatWhileTheyAreHeld_data();
    void repeatWhileTheyAreHeld();
    void stopWhenTheReleaseCannotCome_data();
    void stopWhenTheReleaseCannotCome();

private:
    void addPanels(const QByteArrayList& endings);
};

namespace {

struct Held
{
    explicit Held(Create create) : panel(create())
    {
        interface = qobject_cast<PrintWidgetInterface*>(panel.get());
        interface->setNumberOfCopies(10);
        button = part<QAbstractButton>(*panel, "plusButton");
        button->setAutoRepeatDelay(30);
        button->setAutoRepeatInterval(10);
    }

    bool press(bool inAnInactiveWindow = false)
    {
        if (!showActive(*panel) || (inAnInactiveWindow && !showActive(other)))
            return false;
        QTest::mousePress(panel->windowHandle(), Qt::LeftButton, {},
                          button->mapTo(panel.get(), button->rect().center()));
        return button->isDown();
    }

    QWidget other;
    std::unique_ptr<QWidget> panel;
    PrintWidgetInterface* interface;
    QAbstractButton* button;
};

void end(Held& held, const QByteArray& ending)
{
    if (ending.startsWith("hidden"))
        held.panel->hide();
    else if (ending == "closed")
        held.panel->close();
    else if (ending == "disabled")
        held.panel->setEnabled(false);
    else if (ending == "button hidden")
        held.button->hide();
    else if (ending == "button disabled")
        held.button->setEnabled(false);
}

} // namespace

void tst_StepButtons::addPanels(const QByteArrayList& endings)
{
    addColumns<Create, QByteArray>("create", "ending");
    for (const QByteArray& ending : endings) {
        QTest::addRow("print panel %s", ending.constData()) << Create(newPrintPanel) << ending;
        QTest::addRow("quick panel %s", ending.constData()) << Create(newQuickPanel) << ending;
        QTest::addRow("multi page %s", ending.constData()) << Create(newMultiPagePanel) << ending;
    }
}

void tst_StepButtons::repeatWhileTheyAreHeld_data()
{
    addPanels({"held"});
}

void tst_StepButtons::repeatWhileTheyAreHeld()
{
    QFETCH(const Create, create);
    Held held(create);
    QVERIFY(held.press());
    // Timers of a system under load are late, which does not matter here.
    QTRY_VERIFY_WITH_TIMEOUT(held.interface->getNumberOfCopies() > 14, 30000);
    QTest::mouseRelease(held.panel->windowHandle(), Qt::LeftButton, {},
                        held.button->mapTo(held.panel.get(), held.button->rect().center()));
    const int reached = held.interface->getNumberOfCopies();
    QTest::qWait(80);
    QCOMPARE(held.interface->getNumberOfCopies(), reached);
}

void tst_StepButtons::stopWhenTheReleaseCannotCome_data()
{
    addPanels({"hidden", "hidden in the background", "closed", "disabled", "button hidden",
               "button disabled"});
}

// Nobody would see how the copies run on to their limit.
void tst_StepButtons::stopWhenTheReleaseCannotCome()
{
    QFETCH(const Create, create);
    QFETCH(const QByteArray, ending);
    Held held(create);
    QVERIFY(held.press(ending.endsWith("background")));
    end(held, ending);
    const int reached = held.interface->getNumberOfCopies();
    QTest::qWait(150);
    QCOMPARE(held.interface->getNumberOfCopies(), reached);
    QVERIFY(!held.button->isDown());
}

QTEST_MAIN(tst_StepButtons)
#include "tst_stepbuttons.moc"
