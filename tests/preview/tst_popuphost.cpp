// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// What hosts do to the popup from inside its own signals, and with what they should not hand it.
#include "previewfixture.h"
#include "referencecanvas.h"
#include "support/deleter.h"
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
    void popupThatDeletesItselfOnCloseStillEmits();
    void hostMayUpdateThePopupInItsSignals();
    void everyReceiverGetsTheSameRange();
    void closingInADragLeavesNoCursorBehind();
    void deletingInADragLeavesNoCursorBehind();
    void hostileImages_data();
    void hostileImages();
    void deletingTheHostDeletesThePopup();
};

void tst_PopupHost::hostMayDeleteThePopupInItsSignals_data()
{
    addColumns<QByteArray, QByteArray>("signal", "button");
    const QByteArray print = SIGNAL(previewPrintSignal(int, int, QString));
    const QByteArray turn = SIGNAL(orientationChangedSignal(int));
    const QByteArray hidden = SIGNAL(popupHideSignal());
    addRow("print", print, QByteArray("printButton"));
    addRow("portrait", turn, QByteArray("portraitButton"));
    addRow("landscape", turn, QByteArray("landscapeButton"));
    addRow("close button", hidden, QByteArray("closeButton"));
    addRow("cross", hidden, QByteArray("cross"));
}

void tst_PopupHost::hostMayDeleteThePopupInItsSignals()
{
    QFETCH(const QByteArray, signal);
    QFETCH(const QByteArray, button);
    QPointer<PreviewFixture> popup = new PreviewFixture;
    popup->show();
    Deleter deleter(popup);
    QVERIFY(connect(popup, signal.constData(), &deleter, Deleter::slot(Deleter::AtOnce)));
    QAbstractButton* control =
        button == "cross" ? popup->cross() : popup->button(button.constData());
    QTest::mouseClick(control, Qt::LeftButton);
    QVERIFY(popup.isNull());
}

void tst_PopupHost::popupThatDeletesItselfOnCloseStillEmits()
{
    QPointer<PreviewFixture> popup = new PreviewFixture;
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
    PreviewFixture popup(content);
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

void tst_PopupHost::everyReceiverGetsTheSameRange()
{
    PopupContent content;
    content.recordList = QStringLiteral("1,4-5");
    PreviewFixture popup(content);
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
    PreviewFixture popup;
    popup.show();
    pressMouse(*popup.view(), QPointF(9, 9));
    QVERIFY(QGuiApplication::overrideCursor());
    popup.close();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_PopupHost::deletingInADragLeavesNoCursorBehind()
{
    auto* popup = new PreviewFixture;
    popup->show();
    pressMouse(*popup->view(), QPointF(9, 9));
    QVERIFY(QGuiApplication::overrideCursor());
    delete popup;
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_PopupHost::hostileImages_data()
{
    QTest::addColumn<QImage>("image");
    addRow("null", QImage());
    addRow("null with a format", QImage(0, 0, QImage::Format_RGB32));
    addRow("1x1", speckledImage(QSize(1, 1)));
    QImage wide(30000, 3, QImage::Format_Grayscale8);
    wide.fill(128);
    addRow("30000x3", wide);
    QImage indexed(40, 20, QImage::Format_Indexed8);
    indexed.fill(255);
    addRow("indexed without colours", indexed);
    indexed.setColorTable({qRgb(1, 2, 3)});
    addRow("indexed with a colour too few", indexed);
    QImage mono(40, 20, QImage::Format_MonoLSB);
    mono.fill(1);
    mono.setColorCount(0);
    addRow("one bit without colours", mono);
    addRow("3x30000", wide.transformed(QTransform().rotate(90)));
}

void tst_PopupHost::hostileImages()
{
    PopupContent content;
    QFETCH(const QImage, image);
    content.image = image;
    PreviewFixture popup(content);
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
    const QPointer<PreviewFixture> popup = new PreviewFixture(PopupContent(), host, Qt::Tool);
    const QPointer<QWidget> view = popup->view();
    delete host;
    QVERIFY(popup.isNull());
    QVERIFY(view.isNull());
}

QTEST_MAIN(tst_PopupHost)
#include "tst_popuphost.moc"
