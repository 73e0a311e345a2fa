// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "previewfixture.h"
#include "referencecanvas.h"
#include "support/expectedsheet.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"
#include "support/translationrecorder.h"

#include <applicationfont.h>
#include <containertitlebar.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolTip>

namespace {

QFrame* outerFrame(const PreviewFixture& popup)
{
    return popup.findChild<QFrame*>(QStringLiteral("JxPreviewFrame"));
}

QVBoxLayout* outerColumn(const PreviewFixture& popup)
{
    return qobject_cast<QVBoxLayout*>(outerFrame(popup)->layout());
}

QVBoxLayout* innerColumn(const PreviewFixture& popup)
{
    return qobject_cast<QVBoxLayout*>(outerColumn(popup)->itemAt(1)->layout());
}

QHBoxLayout* buttonRow(const PreviewFixture& popup)
{
    return qobject_cast<QHBoxLayout*>(innerColumn(popup)->itemAt(1)->layout());
}

const char* const buttonNames[] = {"zoomInButton",   "zoomOutButton",   "fitButton",
                                   "portraitButton", "landscapeButton", "printButton",
                                   "closeButton"};

} // namespace

class tst_PopupLook : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void buttonTexts();
    void styleSheets_data();
    void styleSheets();
    void sizesOfTheButtons();
    void fonts();
    void popupHoldsOneFrame();
    void outerColumnHoldsTitleBarAndInnerColumn();
    void innerColumnHoldsGreyFrameAndButtons();
    void buttonRowInOrder();
    void viewSitsAloneInTheGreyFrame();
    void everythingIsAChildOfThePopup();
    void textsAreTranslatedInThePopupsContext();
    void translatedTitleKeepsItsPlaceMarkers();
    void returnInAHostsDialogPressesNothing();
    void orangeBorderGreyGroundAndGreySurround();
    void controlsDoNotOverlapAndAreNotCut();
};

void tst_PopupLook::buttonTexts()
{
    const PreviewFixture popup;
    QCOMPARE(popup.button("printButton")->text(), QStringLiteral("Print"));
    QCOMPARE(popup.button("closeButton")->text(), QStringLiteral("Close"));
    for (const char* name :
         {"zoomInButton", "zoomOutButton", "fitButton", "portraitButton", "landscapeButton"})
        QCOMPARE(popup.button(name)->text(), QString());
    QVERIFY(!popup.button("fitButton")->icon().isNull());
    QCOMPARE(popup.button("fitButton")->icon().availableSizes(), QList<QSize>{QSize(62, 57)});
    for (const char* name : {"zoomInButton", "zoomOutButton", "portraitButton", "landscapeButton"})
        QVERIFY(popup.button(name)->icon().isNull());
}

void tst_PopupLook::styleSheets_data()
{
    addColumns<QByteArray, QByteArray>("button", "role");
    addRow("zoom in", QByteArray("zoomInButton"), QByteArray("zoomInButton"));
    addRow("zoom out", QByteArray("zoomOutButton"), QByteArray("zoomOutButton"));
    addRow("fit", QByteArray("fitButton"), QByteArray("fitButton"));
    addRow("portrait", QByteArray("portraitButton"), QByteArray("portraitButton"));
    addRow("landscape", QByteArray("landscapeButton"), QByteArray("landscapeButton"));
    addRow("print", QByteArray("printButton"), QByteArray("primaryPushButton"));
    addRow("close", QByteArray("closeButton"), QByteArray("primaryPushButton"));
}

void tst_PopupLook::styleSheets()
{
    QFETCH(const QByteArray, button);
    QFETCH(const QByteArray, role);
    const PreviewFixture popup;
    const QString expected = expectedSheet(role);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(popup.button(button)->styleSheet(), expected);
    QVERIFY(popup.styleSheet().isEmpty());
}

void tst_PopupLook::sizesOfTheButtons()
{
    // Fixed at 100 x 35; their sheet counts its least height without the border of one pixel.
    PreviewFixture popup;
    popup.show();
    for (const char* name : {"printButton", "closeButton"}) {
        QCOMPARE(popup.button(name)->maximumSize(), QSize(100, 35));
        QCOMPARE(popup.button(name)->minimumSize(), QSize(100, 35 + 2));
        QCOMPARE(popup.button(name)->size(), QSize(100, 35 + 2));
    }
    for (const char* name : {"zoomInButton", "zoomOutButton", "fitButton"})
        QCOMPARE(popup.button(name)->iconSize(), QSize(42, 46));
}

void tst_PopupLook::fonts()
{
    QToolTip::setFont(QFont());
    const PreviewFixture popup;
    QCOMPARE(QToolTip::font(), ApplicationFont::getWidgetFontSmall(false));
    QCOMPARE(popup.bar()->font(), ApplicationFont::getWidgetFontSmall(false));
    QCOMPARE(popup.bar()->findChild<QLabel*>()->font(), ApplicationFont::getWidgetFontSmall(false));
    // Bold by their sheet.
    QFont panelFont = ApplicationFont::getWidgetFont(true);
    panelFont.setBold(true);
    for (const char* name : {"printButton", "closeButton"}) {
        popup.button(name)->ensurePolished();
        QCOMPARE(popup.button(name)->font(), panelFont);
    }
}

void tst_PopupLook::popupHoldsOneFrame()
{
    const PreviewFixture popup;
    const auto* layout = qobject_cast<QVBoxLayout*>(popup.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layoutDescription(layout), QStringList{QStringLiteral("QFrame JxPreviewFrame")});
    const QFrame* frame = outerFrame(popup);
    QCOMPARE(frame->styleSheet(),
             QStringLiteral("#JxPreviewFrame  { background-color: #f2f2f2; border: 1px solid "
                            "#fd7800; } "));
    QCOMPARE(frame->frameShape(), QFrame::Panel);
    QCOMPARE(frame->frameShadow(), QFrame::Raised);
}

void tst_PopupLook::outerColumnHoldsTitleBarAndInnerColumn()
{
    const PreviewFixture popup;
    const QVBoxLayout* column = outerColumn(popup);
    QVERIFY(column);
    QCOMPARE(column->spacing(), 10);
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layoutDescription(column),
             QStringList({QStringLiteral("ContainerTitleBar"), QStringLiteral("QVBoxLayout")}));
}

void tst_PopupLook::innerColumnHoldsGreyFrameAndButtons()
{
    const PreviewFixture popup;
    const QVBoxLayout* column = innerColumn(popup);
    QVERIFY(column);
    QCOMPARE(column->spacing(), 10);
    QCOMPARE(column->contentsMargins(), QMargins(10, 0, 10, 5));
    QCOMPARE(layoutDescription(column),
             QStringList({QStringLiteral("QFrame"), QStringLiteral("QHBoxLayout")}));
    QCOMPARE(column->itemAt(0)->widget(), popup.view()->parentWidget());
}

void tst_PopupLook::buttonRowInOrder()
{
    const PreviewFixture popup;
    const QHBoxLayout* row = buttonRow(popup);
    QVERIFY(row);
    QCOMPARE(row->spacing(), 10);
    QCOMPARE(row->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layoutDescription(row), QStringList({QStringLiteral("QPushButton zoomInButton"),
                                                  QStringLiteral("QPushButton zoomOutButton"),
                                                  QStringLiteral("QPushButton fitButton"),
                                                  QStringLiteral("spacer 30x10 Expanding/Fixed"),
                                                  QStringLiteral("QPushButton portraitButton"),
                                                  QStringLiteral("QPushButton landscapeButton"),
                                                  QStringLiteral("spacer 30x10 Expanding/Fixed"),
                                                  QStringLiteral("QPushButton printButton"),
                                                  QStringLiteral("QPushButton closeButton")}));
}

void tst_PopupLook::viewSitsAloneInTheGreyFrame()
{
    const PreviewFixture popup;
    const auto* frame = qobject_cast<QFrame*>(popup.view()->parentWidget());
    QVERIFY(frame);
    QCOMPARE(frame->styleSheet(),
             QStringLiteral("border: 2px solid #C2C1C1; background-color: #C2C1C1;"));
    const auto* layout = qobject_cast<QVBoxLayout*>(frame->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), popup.view());
    QCOMPARE(popup.view()->sizeHint(), QSize(750, 450));
}

void tst_PopupLook::everythingIsAChildOfThePopup()
{
    const PreviewFixture popup;
    QCOMPARE(popup.findChildren<QPushButton*>().size(), 7);
    for (const char* name : buttonNames) {
        QVERIFY2(popup.button(name), name);
        QVERIFY2(popup.isAncestorOf(popup.button(name)), name);
    }
    QVERIFY(popup.bar());
    QVERIFY(popup.view());
    QCOMPARE(popup.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
}

void tst_PopupLook::textsAreTranslatedInThePopupsContext()
{
    const QString context = QStringLiteral("PrintPreviewDialog");
    const TranslationRecorder recorder(context);
    PopupContent content;
    PreviewFixture popup(content);
    QCOMPARE(popup.button("printButton")->text(),
             TranslationRecorder::marked(context, QStringLiteral("Print"),
                                         QStringLiteral("Button to initiate print.")));
    QCOMPARE(popup.button("closeButton")->text(),
             TranslationRecorder::marked(context, QStringLiteral("Close"),
                                         QStringLiteral("Button to close print preview.")));
    content.printedSizeOnly = true;
    popup.title(content);
    const QString nameComment = QStringLiteral("Name of the button for screen readers.");
    const QString fitComment =
        QStringLiteral("Name of the button that shows the whole label for screen readers.");
    const QString orientationComment =
        QStringLiteral("Name of the orientation button for screen readers.");
    const QString titleComment = QStringLiteral("Dialog title with label size.");
    const QList<TranslationKey> expected = {
        {context, QStringLiteral("Print Preview (Design: %1%2 X %3%2  Printed: %4%2 X %5%2)"),
         titleComment},
        {context, QStringLiteral("Print"), QStringLiteral("Button to initiate print.")},
        {context, QStringLiteral("Close"), QStringLiteral("Button to close print preview.")},
        {context, QStringLiteral("Zoom In"), nameComment},
        {context, QStringLiteral("Zoom Out"), nameComment},
        {context, QStringLiteral("Fit to Window"), fitComment},
        {context, QStringLiteral("Portrait"), orientationComment},
        {context, QStringLiteral("Landscape"), orientationComment},
        {context, QStringLiteral("Print Preview (%1%2 X %3%2)"), titleComment}};
    QVERIFY(recorder.keys() == expected);
}

void tst_PopupLook::translatedTitleKeepsItsPlaceMarkers()
{
    const TranslationRecorder recorder(QStringLiteral("PrintPreviewDialog"));
    PopupContent content;
    content.printedSizeOnly = true;
    const PreviewFixture popup(content);
    QCOMPARE(popup.bar()->title(),
             QStringLiteral("\u00abPrintPreviewDialog|Print Preview (3.50\" X 1.75\")|Dialog title "
                            "with label size.\u00bb"));
}

void tst_PopupLook::returnInAHostsDialogPressesNothing()
{
    QDialog host;
    auto* edit = new QLineEdit(&host);
    auto* popup = new PreviewFixture(PopupContent(), &host, Qt::WindowFlags());
    int clicks = 0;
    for (const char* name : buttonNames)
        connect(popup->button(name), &QPushButton::clicked, this, [&clicks] { ++clicks; });
    host.show();
    popup->show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(clicks, 0);
    for (const char* name : buttonNames)
        QVERIFY2(!popup->button(name)->autoDefault(), name);
}

void tst_PopupLook::orangeBorderGreyGroundAndGreySurround()
{
    PopupContent content;
    content.image = QImage(100, 100, QImage::Format_RGB32);
    content.image.fill(Qt::blue);
    PreviewFixture popup(content);
    popup.show();
    const QImage picture = popup.grab().toImage();
    QCOMPARE(picture.size(), QSize(860, 500));
    for (const QPoint& border : {QPoint(0, 250), QPoint(859, 250), QPoint(430, 499)})
        QCOMPARE(picture.pixelColor(border), QColor(0xfd, 0x78, 0x00));
    QCOMPARE(picture.pixelColor(5, 250), QColor(0xf2, 0xf2, 0xf2));
    QCOMPARE(picture.pixelColor(30, 250), QColor(0xc2, 0xc1, 0xc1));
    const QPoint middle = popup.view()->mapTo(&popup, popup.view()->rect().center());
    QCOMPARE(picture.pixelColor(middle), QColor(Qt::blue));
}

void tst_PopupLook::controlsDoNotOverlapAndAreNotCut()
{
    PreviewFixture popup;
    popup.show();
    const QWidget* frame = popup.view()->parentWidget();
    QRect above(frame->mapTo(&popup, QPoint(0, 0)), frame->size());
    QVERIFY(above.height() > 350);
    int right = 0;
    for (const char* name : buttonNames) {
        const QPushButton* button = popup.button(name);
        const QRect place(button->mapTo(&popup, QPoint(0, 0)), button->size());
        QVERIFY2(place.left() > right, name);
        QVERIFY2(place.top() > above.bottom(), name);
        QVERIFY2(popup.rect().adjusted(1, 1, -1, -1).contains(place), name);
        QVERIFY2(place.width() >= button->sizeHint().width(), name);
        right = place.right();
    }
}

QTEST_MAIN(tst_PopupLook)
#include "tst_popuplook.moc"
