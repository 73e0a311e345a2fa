// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "hostkit/private/colorswatch.h"
#include "support/stricttest.h"

#include <colormenu.h>

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

/** A press on a swatch that takes the focus from an edit, whose new value changes the palette. */
class TestColorMenuPress : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void paletteMayChangeAsTheFocusLeaves_data();
    void paletteMayChangeAsTheFocusLeaves();
};

void TestColorMenuPress::paletteMayChangeAsTheFocusLeaves_data()
{
    QTest::addColumn<int>("button");
    addRow("left", int(Qt::LeftButton));
    addRow("right", int(Qt::RightButton));
}

void TestColorMenuPress::paletteMayChangeAsTheFocusLeaves()
{
    QFETCH(const int, button);
    QWidget window;
    auto* edit = new QLineEdit(&window);
    auto* menu = new ColorMenu(&window);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(edit);
    layout->addWidget(menu);
    menu->setColorPalette({QStringLiteral("#000000"), QStringLiteral("#dc0b0b")}, {});
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edit->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_7);

    const QPointer<QWidget> swatch(menu->findChild<QWidget*>(QStringLiteral("#dc0b0b")));
    bool outlivedThePalette = false;
    connect(edit, &QLineEdit::editingFinished, this, [&] {
        menu->setColorPalette({QStringLiteral("#0018a8")}, {});
        outlivedThePalette = !swatch.isNull();
    });
    QSignalSpy picked(menu, &ColorMenu::colorSignal);
    QTest::mouseClick(window.windowHandle(), Qt::MouseButton(button), {},
                      swatch->mapTo(&window, swatch->rect().center()));
    QVERIFY(outlivedThePalette);
    QCOMPARE(picked.size(), 0);
    QVERIFY(!swatch || !swatch->isVisible());
    QVERIFY(menu->findChild<QWidget*>(QStringLiteral("#dc0b0b")) == nullptr);

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(swatch.isNull());
    QCOMPARE(QApplication::topLevelWidgets().size(), 1);
}

QTEST_MAIN(TestColorMenuPress)
#include "tst_colormenupress.moc"
