// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <jxpushbuttonstyleproxy.h>

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

class TestJxPushButtonStyleProxy : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void standsOnTheApplicationsKindOfStyle();
    void takesItsBaseStyleOver();
    void leavesTheApplicationsStyleAlone();
    void pressedTextStaysInItsPlace();
    void focusFrameIsNotDrawn();
    void otherPrimitivesAreDrawn();
    void servesAButtonThatOwnsIt();
};

namespace {
const QString windows = QStringLiteral("windows");

QImage drawn(const QStyle& style, QStyle::PrimitiveElement element)
{
    QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionFocusRect option;
    option.rect = QRect(5, 5, 30, 30);
    option.state = QStyle::State_Enabled | QStyle::State_KeyboardFocusChange;
    style.drawPrimitive(element, &option, &painter, nullptr);
    return image;
}

bool isWhite(const QImage& image)
{
    QImage white = image;
    white.fill(Qt::white);
    return image == white;
}
} // namespace

void TestJxPushButtonStyleProxy::standsOnTheApplicationsKindOfStyle()
{
    const JxPushButtonStyleProxy proxy(nullptr);
    QVERIFY(proxy.baseStyle());
    QVERIFY(proxy.baseStyle() != QApplication::style());
    QCOMPARE(proxy.baseStyle()->metaObject()->className(),
             QApplication::style()->metaObject()->className());
}

void TestJxPushButtonStyleProxy::takesItsBaseStyleOver()
{
    const QPointer<QStyle> base = QStyleFactory::create(windows);
    auto* proxy = new JxPushButtonStyleProxy(base);
    QCOMPARE(proxy->baseStyle(), base.data());
    delete proxy;
    QVERIFY(!base);
}

void TestJxPushButtonStyleProxy::leavesTheApplicationsStyleAlone()
{
    const QPointer<QStyle> style = QApplication::style();
    delete new JxPushButtonStyleProxy(style);
    QVERIFY(style);
    QCOMPARE(QApplication::style(), style.data());
    QPushButton button(QStringLiteral("Print"));
    QVERIFY(!button.grab().isNull());
}

void TestJxPushButtonStyleProxy::pressedTextStaysInItsPlace()
{
    const JxPushButtonStyleProxy proxy(QStyleFactory::create(windows));
    QVERIFY(proxy.baseStyle()->pixelMetric(QStyle::PM_ButtonShiftHorizontal) != 0 ||
            QStyleFactory::create(windows)->pixelMetric(QStyle::PM_ButtonShiftVertical) != 0);
    QCOMPARE(proxy.pixelMetric(QStyle::PM_ButtonShiftHorizontal), 0);
    QCOMPARE(proxy.pixelMetric(QStyle::PM_ButtonShiftVertical), 0);
    QCOMPARE(proxy.pixelMetric(QStyle::PM_ButtonMargin),
             proxy.baseStyle()->pixelMetric(QStyle::PM_ButtonMargin));
}

void TestJxPushButtonStyleProxy::focusFrameIsNotDrawn()
{
    QStyle* base = QStyleFactory::create(windows);
    QVERIFY(!isWhite(drawn(*base, QStyle::PE_FrameFocusRect)));
    const JxPushButtonStyleProxy proxy(base);
    QVERIFY(isWhite(drawn(proxy, QStyle::PE_FrameFocusRect)));
}

void TestJxPushButtonStyleProxy::otherPrimitivesAreDrawn()
{
    const JxPushButtonStyleProxy proxy(QStyleFactory::create(windows));
    QVERIFY(!isWhite(drawn(proxy, QStyle::PE_IndicatorArrowDown)));
}

void TestJxPushButtonStyleProxy::servesAButtonThatOwnsIt()
{
    QPointer<JxPushButtonStyleProxy> proxy = new JxPushButtonStyleProxy(nullptr);
    {
        QPushButton button(QStringLiteral("Print Preview"));
        proxy->setParent(&button);
        button.setStyle(proxy);
        button.setStyleSheet(QStringLiteral("QPushButton { border: 1px solid #fd7800; }"));
        button.show();
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(!button.grab().isNull());
    }
    QVERIFY(!proxy);
}

QTEST_MAIN(TestJxPushButtonStyleProxy)
#include "tst_jxpushbuttonstyleproxy.moc"
