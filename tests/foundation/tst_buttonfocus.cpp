// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "support/stricttest.h"

#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidgetinterface.h>

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <functional>
#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

using Act = std::function<void(QWidget&)>;
Q_DECLARE_METATYPE(Act)

/** The push buttons of the panels and the keyboard: Return, and the focus after a print. */
class tst_ButtonFocus : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void returnPressesLikeSpace_data();
    void returnPressesLikeSpace();
    void heldReturnRepeatsAsSpaceDoes_data();
    void heldReturnRepeatsAsSpaceDoes();
    void heldReturnPrintsOnce();
    void returnInAnEditIsTheHosts();
    void returnMayDeleteThePanel_data();
    void returnMayDeleteThePanel();
    void focusComesBackAfterPrinting_data();
    void focusComesBackAfterPrinting();
    void focusStaysWhereTheUserWent_data();
    void focusStaysWhereTheUserWent();
    void focusComesBackThroughAProgressWindow_data();
    void focusComesBackThroughAProgressWindow();
    void focusComesBackToAPanelThatWasDisabled();
    void enablingMovesNoFocusByItself();

private:
    void addButtons();
};

namespace {

/** A dialog of a host with a default button and a panel. */
struct HostDialog
{
    explicit HostDialog(QWidget* widget) : panel(widget)
    {
        auto* layout = new QVBoxLayout(&dialog);
        auto* defaultButton = new QPushButton(QStringLiteral("OK"));
        layout->addWidget(panel);
        layout->addWidget(defaultButton);
        panel->setWindowFlags(Qt::Widget);
        panel->show();
        defaultButton->setDefault(true);
        QObject::connect(defaultButton, &QPushButton::clicked, &dialog, [this] { ++defaults; });
    }

    QDialog dialog;
    QPointer<QWidget> panel;
    int defaults = 0;
};

QPushButton* printButtonOf(const QWidget& panel)
{
    auto* button = part<QPushButton>(panel, "PrintButton");
    return button ? button : part<QPushButton>(panel, "printButton");
}

void disableAll(QWidget& panel)
{
    if (auto* interface = qobject_cast<PrintWidgetInterface*>(&panel))
        interface->disableAllButtons();
    else
        qobject_cast<PrintPreviewDialog*>(&panel)->enablePrintButton(false);
}

void enableAll(QWidget& panel)
{
    if (auto* interface = qobject_cast<PrintWidgetInterface*>(&panel))
        interface->enableAllButtons();
    else
        qobject_cast<PrintPreviewDialog*>(&panel)->enablePrintButton(true);
}

void disablePrint(QWidget& panel)
{
    if (auto* interface = qobject_cast<PrintWidgetInterface*>(&panel))
        interface->disablePrintButtons();
    else
        disableAll(panel);
}

void enablePrint(QWidget& panel)
{
    if (auto* interface = qobject_cast<PrintWidgetInterface*>(&panel))
        interface->enablePrintButtons();
    else
        enableAll(panel);
}

QList<PanelKind> kindsOfPanels()
{
    QList<PanelKind> kinds = panelKinds();
    // The dialog's buttons are those of its panel.
    kinds.removeIf([](const PanelKind& kind) { return kind.create == newMultiPageDialog; });
    return kinds;
}

} // namespace

// Every push button that a user can reach; the entries of the colour menus belong to the kit.
void tst_ButtonFocus::addButtons()
{
    addColumns<Create, QByteArray>("create", "name");
    for (const PanelKind& kind : kindsOfPanels()) {
        const std::unique_ptr<QWidget> panel(kind.create());
        const QList<QPushButton*> buttons = panel->findChildren<QPushButton*>();
        for (const QPushButton* button : buttons) {
            const QByteArray name = button->objectName().toLatin1();
            if (!name.isEmpty() && !name.startsWith('#') && name != "transparent")
                QTest::addRow("%s %s", kind.name, name.constData()) << Create(kind.create) << name;
        }
    }
}

void tst_ButtonFocus::returnPressesLikeSpace_data()
{
    addButtons();
}

void tst_ButtonFocus::returnPressesLikeSpace()
{
    QFETCH(const Create, create);
    QFETCH(const QByteArray, name);
    HostDialog host(create());
    QVERIFY(showActive(host.dialog));
    auto* button = part<QPushButton>(*host.panel, name);
    QSignalSpy clicked(button, &QPushButton::clicked);
    QSignalSpy pressed(button, &QPushButton::pressed);
    // Close hides the popup, so it comes last.
    const struct
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    } presses[] = {{Qt::Key_Return, {}}, {Qt::Key_Enter, {}}, {Qt::Key_Enter, Qt::KeypadModifier}};
    for (const auto& [key, modifiers] : presses) {
        host.panel->show();
        button->setFocus();
        QCOMPARE(QApplication::focusWidget(), button);
        QTest::keyPress(button, key, modifiers);
        QVERIFY(button->isDown());
        QTest::keyRelease(button, key, modifiers);
        QVERIFY(!button->isDown());
    }
    QCOMPARE(pressed.count(), 3);
    QCOMPARE(clicked.count(), 3);
    QCOMPARE(host.defaults, 0);
    QVERIFY(host.dialog.isVisible());
}

void tst_ButtonFocus::heldReturnRepeatsAsSpaceDoes_data()
{
    addColumns<Create>("create");
    addRow("print panel", Create(newPrintPanel));
    addRow("quick panel", Create(newQuickPanel));
    addRow("multi-page panel", Create(newMultiPagePanel));
}

// A held key comes from the keyboard again and again; the button has a pace of its own.
void tst_ButtonFocus::heldReturnRepeatsAsSpaceDoes()
{
    QFETCH(const Create, create);
    HostDialog host(create());
    QVERIFY(showActive(host.dialog));
    auto* interface = qobject_cast<PrintWidgetInterface*>(host.panel.data());
    interface->setNumberOfCopies(10);
    auto* plus = part<QPushButton>(*host.panel, "plusButton");
    plus->setAutoRepeatDelay(60000);
    plus->setFocus();
    QTest::keyPress(plus, Qt::Key_Return);
    for (int i = 0; i < 5; ++i) {
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(plus, &again);
    }
    QCOMPARE(interface->getNumberOfCopies(), 10);
    QVERIFY(plus->isDown());
    QTest::keyRelease(plus, Qt::Key_Return);
    QCOMPARE(interface->getNumberOfCopies(), 11);

    plus->setAutoRepeatDelay(10);
    plus->setAutoRepeatInterval(10);
    QTest::keyPress(plus, Qt::Key_Return);
    QTRY_VERIFY(interface->getNumberOfCopies() > 13);
    QTest::keyRelease(plus, Qt::Key_Return);
    QVERIFY(!plus->isDown());
    QCOMPARE(host.defaults, 0);
}

void tst_ButtonFocus::heldReturnPrintsOnce()
{
    HostDialog host(newPrintPanel());
    QVERIFY(showActive(host.dialog));
    auto* interface = qobject_cast<PrintWidgetInterface*>(host.panel.data());
    QSignalSpy printed(interface, &PrintWidgetInterface::widgetPrintSignal);
    QPushButton* print = printButtonOf(*host.panel);
    print->setFocus();
    QTest::keyPress(print, Qt::Key_Return);
    for (int i = 0; i < 5; ++i) {
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(print, &release);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(print, &press);
    }
    QTest::keyRelease(print, Qt::Key_Return);
    QCOMPARE(printed.count(), 1);

    // With Ctrl it is a key of the host.
    QTest::keyClick(print, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(printed.count(), 1);
    QCOMPARE(host.defaults, 0);
}

void tst_ButtonFocus::returnInAnEditIsTheHosts()
{
    HostDialog host(newQuickPanel());
    QVERIFY(showActive(host.dialog));
    auto* edit = part<QLineEdit>(*host.panel, "lengthEdit");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(host.defaults, 1);
}

void tst_ButtonFocus::returnMayDeleteThePanel_data()
{
    addColumns<Create, bool>("create", "later");
    for (const PanelKind& kind : kindsOfPanels()) {
        QTest::addRow("%s, later", kind.name) << Create(kind.create) << true;
        QTest::addRow("%s, at once", kind.name) << Create(kind.create) << false;
    }
}

void tst_ButtonFocus::returnMayDeleteThePanel()
{
    QFETCH(const Create, create);
    QFETCH(const bool, later);
    HostDialog host(create());
    QVERIFY(showActive(host.dialog));
    QPushButton* print = printButtonOf(*host.panel);
    QObject::connect(print, &QPushButton::clicked, &host.dialog, [&] {
        disableAll(*host.panel);
        enableAll(*host.panel);
        if (later)
            host.panel->deleteLater();
        else
            delete host.panel;
    });
    print->setFocus();
    QTest::keyClick(print, Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!host.panel);
}

void tst_ButtonFocus::focusComesBackAfterPrinting_data()
{
    addColumns<Create, Act, Act>("create", "disable", "enable");
    for (const PanelKind& kind : kindsOfPanels()) {
        QTest::addRow("%s, print buttons", kind.name)
            << Create(kind.create) << Act(disablePrint) << Act(enablePrint);
        QTest::addRow("%s, all buttons", kind.name)
            << Create(kind.create) << Act(disableAll) << Act(enableAll);
        QTest::addRow("%s, print buttons, then all", kind.name)
            << Create(kind.create) << Act([](QWidget& panel) {
                   disablePrint(panel);
                   disableAll(panel);
               })
            << Act(enableAll);
    }
}

void tst_ButtonFocus::focusComesBackAfterPrinting()
{
    QFETCH(const Create, create);
    QFETCH(const Act, disable);
    QFETCH(const Act, enable);
    HostDialog host(create());
    QVERIFY(showActive(host.dialog));
    QPushButton* print = printButtonOf(*host.panel);
    // In the handler, and later, when the job is done.
    for (const bool inHandler : {true, false}) {
        const auto handler = [&] {
            disable(*host.panel);
            if (inHandler)
                enable(*host.panel);
        };
        const auto connection = connect(print, &QPushButton::clicked, this, handler);
        print->setFocus();
        QTest::keyClick(print, Qt::Key_Space);
        QCOMPARE(print->hasFocus(), inHandler);
        if (!inHandler) {
            QVERIFY(QApplication::focusWidget());
            enable(*host.panel);
        }
        QCOMPARE(QApplication::focusWidget(), print);
        disconnect(connection);
    }
}

void tst_ButtonFocus::focusStaysWhereTheUserWent_data()
{
    focusComesBackAfterPrinting_data();
}

void tst_ButtonFocus::focusStaysWhereTheUserWent()
{
    QFETCH(const Create, create);
    QFETCH(const Act, disable);
    QFETCH(const Act, enable);
    HostDialog host(create());
    QVERIFY(showActive(host.dialog));
    QPushButton* print = printButtonOf(*host.panel);
    print->setFocus();
    disable(*host.panel);
    QVERIFY(!print->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QWidget* chosen = QApplication::focusWidget();
    QVERIFY(chosen != print);
    enable(*host.panel);
    QCOMPARE(QApplication::focusWidget(), chosen);
    // Nor is the old loss remembered.
    disable(*host.panel);
    enable(*host.panel);
    QVERIFY(!print->hasFocus());
}

void tst_ButtonFocus::focusComesBackThroughAProgressWindow_data()
{
    focusComesBackAfterPrinting_data();
}

void tst_ButtonFocus::focusComesBackThroughAProgressWindow()
{
    QFETCH(const Create, create);
    QFETCH(const Act, disable);
    QFETCH(const Act, enable);
    HostDialog host(create());
    QVERIFY(showActive(host.dialog));
    QPushButton* print = printButtonOf(*host.panel);
    // Whether the host disables the buttons before its window opens or while it is open.
    for (const bool before : {true, false}) {
        print->setFocus();
        QCOMPARE(QApplication::focusWidget(), print);
        QDialog progress(&host.dialog);
        (new QVBoxLayout(&progress))->addWidget(new QPushButton(QStringLiteral("Cancel")));
        if (before)
            disable(*host.panel);
        QVERIFY(showActive(progress));
        if (!before)
            disable(*host.panel);
        enable(*host.panel);
        progress.close();
        host.dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&host.dialog));
        QCOMPARE(QApplication::focusWidget(), print);
    }
}

void tst_ButtonFocus::focusComesBackToAPanelThatWasDisabled()
{
    HostDialog host(newPrintPanel());
    QVERIFY(showActive(host.dialog));
    QPushButton* print = printButtonOf(*host.panel);
    print->setFocus();
    host.panel->setEnabled(false);
    QVERIFY(!print->hasFocus());
    host.panel->setEnabled(true);
    QCOMPARE(QApplication::focusWidget(), print);
}

void tst_ButtonFocus::enablingMovesNoFocusByItself()
{
    HostDialog host(newPrintPanel());
    QVERIFY(showActive(host.dialog));
    part<QWidget>(*host.panel, "copiesSpinBox")->setFocus();
    disableAll(*host.panel);
    enableAll(*host.panel);
    QCOMPARE(QApplication::focusWidget(), part<QWidget>(*host.panel, "copiesSpinBox"));
}

QTEST_MAIN(tst_ButtonFocus)
#include "tst_buttonfocus.moc"
