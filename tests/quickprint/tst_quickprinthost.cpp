// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// What hosts do to the panel from inside its own signals, and with what they should not hand it.
#include "preview/referencecanvas.h"
#include "quickprintfixture.h"
#include "support/deleter.h"
#include "support/stricttest.h"

#include <jxlineedit.h>
#include <jxspinbox.h>

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

class tst_QuickPrintHost : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void hostMayDeleteThePanelInItsSignals_data();
    void hostMayDeleteThePanelInItsSignals();
    void hostMayAnswerInsideTheSignals();
    void returnInAHostsDialogPressesNothing();
    void longNamesDoNotWidenThePanel_data();
    void longNamesDoNotWidenThePanel();
    void nameTakesTheLinesThatItNeeds();
    void nameStaysUnderItsCaptionInATallPanel();
    void hostileImages_data();
    void hostileImages();
    void panelMayBeSqueezed();
    void deletingInADragLeavesNoCursorBehind();
    void leavingThePageInADragLeavesNoCursorBehind();
};

void tst_QuickPrintHost::hostMayDeleteThePanelInItsSignals_data()
{
    addColumns<QByteArray, QByteArray>("signal", "button");
    addRow("print", QByteArray(SIGNAL(widgetPrintSignal(int, int, QString))),
           QByteArray("printButton"));
    addRow("resize", QByteArray(SIGNAL(resizeSignal(QSizeF))), QByteArray("resizeButton"));
    addRow("open in editor", QByteArray(SIGNAL(openModuleSignal())),
           QByteArray("openInEditorButton"));
}

void tst_QuickPrintHost::hostMayDeleteThePanelInItsSignals()
{
    QFETCH(const QByteArray, signal);
    QFETCH(const QByteArray, button);
    QPointer<QuickPrintFixture> panel = new QuickPrintFixture;
    panel->enableAllButtons();
    panel->show();
    Deleter deleter(panel);
    QVERIFY(connect(panel, signal.constData(), &deleter, Deleter::slot(Deleter::AtOnce)));
    QTest::mouseClick(panel->button(button.constData()), Qt::LeftButton);
    QVERIFY(panel.isNull());
}

void tst_QuickPrintHost::hostMayAnswerInsideTheSignals()
{
    QuickPrintFixture panel;
    panel.show();
    connect(&panel, &QuickPrintWidget::resizeSignal, this, [&panel](const QSizeF& size) {
        const bool good = size.width() > 0 && size.height() > 0;
        panel.setCanvasSize(good ? size : QSizeF(1, 1));
        panel.updateQuickPrint(speckledImage(QSize(20, 10)));
        panel.setModule(JxModuleInfo::QuickPrint);
        panel.setModule(JxModuleInfo::JxCatalog);
    });
    panel.lengthEdit()->setText(QStringLiteral("wide"));
    QTest::mouseClick(panel.button("resizeButton"), Qt::LeftButton);
    QCOMPARE(panel.getCanvasSize(), QSizeF(1, 1));
    QVERIFY(panel.resizeFrame()->isVisible());
}

void tst_QuickPrintHost::returnInAHostsDialogPressesNothing()
{
    QDialog dialog;
    auto* panel = new QuickPrintFixture(true, &dialog);
    (new QVBoxLayout(&dialog))->addWidget(panel);
    panel->enableAllButtons();
    int clicks = 0;
    const QList<QPushButton*> buttons = panel->findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        QVERIFY2(!button->autoDefault(), qPrintable(button->objectName()));
        connect(button, &QPushButton::clicked, this, [&clicks] { ++clicks; });
    }
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    for (QWidget* entry :
         {static_cast<QWidget*>(panel->lengthEdit()), static_cast<QWidget*>(panel->widthEdit()),
          static_cast<QWidget*>(panel->copies())}) {
        entry->setFocus();
        QTest::keyClick(entry, Qt::Key_Return);
        QTest::keyClick(entry, Qt::Key_Enter);
    }
    QCOMPARE(clicks, 0);
}

void tst_QuickPrintHost::longNamesDoNotWidenThePanel_data()
{
    QTest::addColumn<QString>("name");
    addRow("unbroken", QString(500, u'W'));
    addRow("megabyte unbroken", QString(1 << 20, u'W'));
    QString words;
    while (words.size() < 1 << 20)
        words += QStringLiteral("printer ");
    addRow("megabyte of words", words);
    addRow("megabyte of lines", QString(1 << 20, u'\n'));
    addRow("network path", "\\\\a-print-server-with-a-long-name.example.com\\a-queue-with-a-name");
}

void tst_QuickPrintHost::longNamesDoNotWidenThePanel()
{
    QFETCH(const QString, name);
    QWidget window;
    auto* panel = new QuickPrintFixture(true, &window);
    (new QVBoxLayout(&window))->addWidget(panel);
    panel->setCurrentPrinterName(QStringLiteral("Printer"));
    window.show();
    const QSize hint = panel->sizeHint();
    const int least = panel->minimumSizeHint().width();
    const int height = window.sizeHint().height();
    panel->setCurrentPrinterName(name);
    QCOMPARE(panel->nameLabel()->text(), name);
    QCOMPARE(panel->sizeHint().width(), hint.width());
    QCOMPARE(panel->minimumSizeHint().width(), least);
    // At most three lines more than before.
    const int line = panel->nameLabel()->fontMetrics().lineSpacing();
    window.adjustSize();
    QVERIFY(window.height() <= height + 4 * line);
    QVERIFY(panel->nameLabel()->height() <= 4 * line + 4);
    QVERIFY(!window.grab().isNull());
}

void tst_QuickPrintHost::nameTakesTheLinesThatItNeeds()
{
    QWidget window;
    auto* panel = new QuickPrintFixture(true, &window);
    (new QVBoxLayout(&window))->addWidget(panel);
    panel->setCurrentPrinterName(QStringLiteral("First second third fourth fifth sixth seventh"));
    window.show();
    const QFontMetrics metrics = panel->nameLabel()->fontMetrics();
    QCOMPARE(panel->nameLabel()->height(), metrics.size(0, QStringLiteral("x\nx")).height());
    window.resize(900, window.height());
    QTest::qWait(0);
    QCOMPARE(panel->nameLabel()->heightForWidth(panel->nameLabel()->width()),
             metrics.size(0, QStringLiteral("x")).height());
}

void tst_QuickPrintHost::nameStaysUnderItsCaptionInATallPanel()
{
    QuickPrintFixture panel;
    panel.setCurrentPrinterName(QStringLiteral("Printer"));
    panel.show();
    const QWidget* caption = panel.grid()->itemAtPosition(0, 0)->widget();
    const int gap = panel.nameLabel()->y() - caption->geometry().bottom();
    panel.resize(panel.width(), 1200);
    QTest::qWait(0);
    QCOMPARE(panel.nameLabel()->y() - caption->geometry().bottom(), gap);
    QCOMPARE(caption->height(), caption->sizeHint().height());
    QVERIFY(panel.nameLabel()->alignment().testFlag(Qt::AlignTop));
}

void tst_QuickPrintHost::hostileImages_data()
{
    QTest::addColumn<QImage>("image");
    addRow("null", QImage());
    addRow("1x1", speckledImage(QSize(1, 1)));
    QImage wide(30000, 3, QImage::Format_Grayscale8);
    wide.fill(128);
    addRow("30000x3", wide);
    addRow("3x30000", wide.transformed(QTransform().rotate(90)));
}

void tst_QuickPrintHost::hostileImages()
{
    QFETCH(const QImage, image);
    QuickPrintFixture panel;
    panel.updateQuickPrint(image);
    panel.show();
    panel.updateQuickPrint(image);
    for (int turn = 0; turn < 40; ++turn)
        turnWheel(*panel.view(), QPoint(0, turn % 3 == 0 ? -120 : 120));
    QVERIFY(!panel.grab().isNull());
    QCOMPARE(panel.view()->sizeHint(), QSize(200, 200));
}

void tst_QuickPrintHost::panelMayBeSqueezed()
{
    QWidget window;
    auto* panel = new QuickPrintFixture(true, &window);
    auto* layout = new QVBoxLayout(&window);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(panel);
    window.show();
    panel->updateQuickPrint(speckledImage(QSize(30, 20)));
    for (const QSize& size : {QSize(1, 1), QSize(40, 600), QSize(600, 40), QSize(300, 550)}) {
        window.resize(size);
        panel->updateQuickPrint(speckledImage(QSize(30, 20)));
        dragMouse(*panel->view(), QPointF(1, 1), QPointF(5, 5));
        QVERIFY(!window.grab().isNull());
    }
}

void tst_QuickPrintHost::deletingInADragLeavesNoCursorBehind()
{
    auto* panel = new QuickPrintFixture;
    panel->show();
    pressMouse(*panel->view(), QPointF(9, 9));
    QVERIFY(QGuiApplication::overrideCursor());
    delete panel;
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_QuickPrintHost::leavingThePageInADragLeavesNoCursorBehind()
{
    QuickPrintFixture panel;
    panel.show();
    pressMouse(*panel.view(), QPointF(9, 9));
    QVERIFY(QGuiApplication::overrideCursor());
    panel.hide();
    QVERIFY(!QGuiApplication::overrideCursor());
}

QTEST_MAIN(tst_QuickPrintHost)
#include "tst_quickprinthost.moc"
