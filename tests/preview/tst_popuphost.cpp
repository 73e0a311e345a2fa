// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// What hosts do to the popup from inside its own signals, and with what they should not hand it.
#include "popup.h"
#include "referencecanvas.h"
#include "support/stricttest.h"

#include <containertitlebar.h>

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QPushButton>

class tst_PopupHost : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void hostMayDeleteThePopupInItsSignals_data();
    void hostMayDeleteThePopupInItsSignals();
    void popupThatDeletesItselfOnCloseStillTells();
    void hostMayUpdateThePopupInItsSignals();
    void everyListenerHearsTheSameRange();
    void closingInADragLeavesNoCursorBehind();
    void deletingInADragLeavesNoCursorBehind();
    void hostileImages_data();
    void hostileImages();
    void deletingTheHostDeletesThePopup();
};

void tst_PopupHost::hostMayDeleteThePopupInItsSignals_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("button");
    const QByteArray print = SIGNAL(previewPrintSignal(int, int, QString));
    const QByteArray turn = SIGNAL(orientationChangedSignal(int));
    const QByteArray hidden = SIGNAL(popupHideSignal());
    QTest::newRow("print") << print << QByteArray("printButton");
    QTest::newRow("portrait") << turn << QByteArray("portraitButton");
    QTest::newRow("landscape") << turn << QByteArray("landscapeButton");
    QTest::newRow("close button") << hidden << QByteArray("closeButton");
    QTest::newRow("cross") << hidden << QByteArray("cross");
}

/** Deletes its target as soon as it hears of anything. */
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(QObject* doomed) : target(doomed) {}

    QPointer<QObject> target;

public Q_SLOTS:
    void strike() { delete target; }
};

void tst_PopupHost::hostMayDeleteThePopupInItsSignals()
{
    QFETCH(const QByteArray, signal);
    QFETCH(const QByteArray, button);
    QPointer<Popup> popup = new Popup;
    popup->show();
    Deleter deleter(popup);
    QVERIFY(connect(popup, signal.constData(), &deleter, SLOT(strike())));
    QAbstractButton* control =
        button == "cross" ? popup->cross() : popup->button(button.constData());
    QTest::mouseClick(control, Qt::LeftButton);
    QVERIFY(popup.isNull());
}

void tst_PopupHost::popupThatDeletesItselfOnCloseStillTells()
{
    QPointer<Popup> popup = new Popup;
    popup->setAttribute(Qt::WA_DeleteOnClose);
    QSignalSpy closed(popup, &PrintPreviewDialog::popupHideSignal);
    popup->show();
    QTest::mouseClick(popup->button("closeButton"), Qt::LeftButton);
    QCOMPARE(closed.size(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(popup.isNull());
}

void tst_PopupHost::hostMayUpdateThePopupInItsSignals()
{
    PopupContent content;
    content.image = speckledImage(QSize(40, 80));
    Popup popup(content);
    popup.show();
    int turns = 0;
    connect(&popup, &PrintPreviewDialog::orientationChangedSignal, this, [&](int id) {
        ++turns;
        content.portrait = id == 1;
        content.image = speckledImage(content.portrait ? QSize(40, 80) : QSize(80, 40));
        popup.update(content);
    });
    QTest::mouseClick(popup.button("landscapeButton"), Qt::LeftButton);
    QTest::mouseClick(popup.button("landscapeButton"), Qt::LeftButton);
    QVERIFY(popup.button("landscapeButton")->isChecked());
    QTest::mouseClick(popup.button("portraitButton"), Qt::LeftButton);
    QVERIFY(popup.button("portraitButton")->isChecked());
    QCOMPARE(turns, 3);
}

void tst_PopupHost::everyListenerHearsTheSameRange()
{
    PopupContent content;
    content.recordList = QStringLiteral("1,4-5");
    Popup popup(content);
    connect(&popup, &PrintPreviewDialog::previewPrintSignal, this, [&popup] {
        PopupContent next;
        next.recordList = QStringLiteral("99");
        popup.update(next);
    });
    QSignalSpy printed(&popup, &PrintPreviewDialog::previewPrintSignal);
    popup.print();
    QCOMPARE(printed.size(), 1);
    QCOMPARE(printed.first().at(2).toString(), QStringLiteral("1,4-5"));
    popup.print();
    QCOMPARE(printed.last().at(2).toString(), QStringLiteral("99"));
}

void tst_PopupHost::closingInADragLeavesNoCursorBehind()
{
    Popup popup;
    popup.show();
    sendMouse(*popup.view(), QEvent::MouseButtonPress, QPointF(9, 9), Qt::LeftButton,
              Qt::LeftButton);
    QVERIFY(QGuiApplication::overrideCursor());
    popup.close();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_PopupHost::deletingInADragLeavesNoCursorBehind()
{
    auto* popup = new Popup;
    popup->show();
    sendMouse(*popup->view(), QEvent::MouseButtonPress, QPointF(9, 9), Qt::LeftButton,
              Qt::LeftButton);
    QVERIFY(QGuiApplication::overrideCursor());
    delete popup;
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_PopupHost::hostileImages_data()
{
    QTest::addColumn<QImage>("image");
    QTest::newRow("null") << QImage();
    QTest::newRow("null with a format") << QImage(0, 0, QImage::Format_RGB32);
    QTest::newRow("1x1") << speckledImage(QSize(1, 1));
    QImage wide(30000, 3, QImage::Format_Grayscale8);
    wide.fill(128);
    QTest::newRow("30000x3") << wide;
    QImage indexed(40, 20, QImage::Format_Indexed8);
    indexed.fill(255);
    QTest::newRow("indexed without colours") << indexed;
    indexed.setColorTable({qRgb(1, 2, 3)});
    QTest::newRow("indexed with a colour too few") << indexed;
    QImage mono(40, 20, QImage::Format_MonoLSB);
    mono.fill(1);
    mono.setColorCount(0);
    QTest::newRow("one bit without colours") << mono;
    QTest::newRow("3x30000") << wide.transformed(QTransform().rotate(90));
}

void tst_PopupHost::hostileImages()
{
    PopupContent content;
    QFETCH(const QImage, image);
    content.image = image;
    Popup popup(content);
    popup.zoomOut();
    popup.zoomIn();
    popup.zoomFit();
    popup.show();
    popup.update(content);
    for (int step = 0; step < 100; ++step)
        popup.zoomIn();
    QVERIFY(!popup.grab().isNull());
    for (int step = 0; step < 200; ++step)
        popup.zoomOut();
    popup.zoomFit();
    QVERIFY(!popup.grab().isNull());
    QCOMPARE(popup.size(), QSize(860, 500));
}

void tst_PopupHost::deletingTheHostDeletesThePopup()
{
    auto* host = new QWidget;
    const QPointer<Popup> popup = new Popup(PopupContent(), host, Qt::Tool);
    const QPointer<QWidget> view = popup->view();
    delete host;
    QVERIFY(popup.isNull());
    QVERIFY(view.isNull());
}

QTEST_MAIN(tst_PopupHost)
#include "tst_popuphost.moc"
