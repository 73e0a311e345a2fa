// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/printwidgetinterface.h>

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

/** The ring around the control that has the focus, in every panel. */
class tst_FocusRing : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void surroundsEveryControlThatTakesTheFocus_data();
    void surroundsEveryControlThatTakesTheFocus();
    void standsOutFromAnyGround_data();
    void standsOutFromAnyGround();
    void followsTheFocusInAndOut();
    void isThereForTheMouseToo();
    void movesWithItsControl();
    void isCutOffWithItsControlOnly();
    void leavesTheMouseToTheControl();
    void ignoresTheHostsStyleSheet();
    void oneForAPanelInADialog();
    void servesAPanelWithoutARing();
    void goesWithItsControl();
};

namespace {

QWidgetList shownRings(const QWidget& window)
{
    QWidgetList rings;
    const QList<QWidget*> children = window.findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (child->inherits("PrintPanels::FocusRing") && child->isVisible())
            rings.append(child);
    }
    return rings;
}

QWidget* shownRing(const QWidget& window)
{
    return shownRings(window).value(0);
}

QRect placeIn(const QWidget& window, const QWidget* widget)
{
    return QRect(widget->mapTo(&window, QPoint()), widget->size());
}

/** Whether @p ring lies around @p widget: outside its edge, or on it where the panel ends. */
bool surrounds(const QWidget& window, const QWidget* ring, const QWidget* widget)
{
    if (!ring)
        return false;
    const QRect control = placeIn(window, widget);
    const QRect outer = control.adjusted(-2, -2, 2, 2);
    return placeIn(window, ring) == (outer & placeIn(window, ring->parentWidget()));
}

bool takesFocus(const QWidget* widget)
{
    return widget->isVisible() && widget->isEnabled() && !widget->isWindow() &&
           widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr;
}

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

} // namespace

void tst_FocusRing::surroundsEveryControlThatTakesTheFocus_data()
{
    addColumns<Create>("create");
    for (const PanelKind& kind : panelKinds())
        addRow(kind.name, Create(kind.create));
}

void tst_FocusRing::surroundsEveryControlThatTakesTheFocus()
{
    QFETCH(const Create, create);
    const std::unique_ptr<QWidget> window(create());
    QVERIFY(showActive(*window));
    int controls = 0;
    const QList<QWidget*> children = window->findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (!takesFocus(child))
            continue;
        child->setFocus(Qt::TabFocusReason);
        QCOMPARE(QApplication::focusWidget(), child);
        const QByteArray name = child->metaObject()->className() + child->objectName().toUtf8();
        QVERIFY2(surrounds(*window, shownRing(*window), child), name.constData());
        QVERIFY2(shownRings(*window).size() == 1, name.constData());
        ++controls;
    }
    QVERIFY2(controls >= 5, qPrintable(QString::number(controls)));
}

void tst_FocusRing::standsOutFromAnyGround_data()
{
    addColumns<QColor>("ground");
    addRow("light", QColor(0xf2, 0xf2, 0xf2));
    addRow("white", QColor(Qt::white));
    addRow("dark", QColor(0x20, 0x20, 0x20));
    addRow("black", QColor(Qt::black));
    addRow("orange", QColor(0xfd, 0x78, 0x00));
    addRow("grey", QColor(0x80, 0x80, 0x80));
}

// At least two pixels on each side differ from the ground in the ratio that is asked of controls.
void tst_FocusRing::standsOutFromAnyGround()
{
    QFETCH(const QColor, ground);
    const std::unique_ptr<QWidget> panel(newQuickPanel());
    QPalette palette = panel->palette();
    palette.setColor(QPalette::Window, ground);
    panel->setPalette(palette);
    QVERIFY(showActive(*panel));
    QWidget* control = part<QWidget>(*panel, "lengthEdit");
    control->setFocus();
    control->setStyleSheet(
        QStringLiteral("border: none; background-color: %1; color: %1; selection-color: %1; "
                       "selection-background-color: %1;")
            .arg(ground.name()));
    QVERIFY(shownRing(*panel));
    const QImage picture = panel->grab().toImage();
    const QRect around = placeIn(*panel, shownRing(*panel));
    const QList<QPair<QPoint, QPoint>> lines = {
        {QPoint(around.left(), around.center().y()), QPoint(1, 0)},
        {QPoint(around.right(), around.center().y()), QPoint(-1, 0)},
        {QPoint(around.center().x(), around.top()), QPoint(0, 1)},
        {QPoint(around.center().x(), around.bottom()), QPoint(0, -1)}};
    for (const auto& [start, step] : lines) {
        int visible = 0;
        for (int i = 0; i < 5; ++i)
            visible += contrast(picture.pixelColor(start + i * step), ground) >= 3.0 ? 1 : 0;
        QVERIFY2(visible >= 2, qPrintable(QString::number(visible)));
    }
}

void tst_FocusRing::followsTheFocusInAndOut()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* before = new QLineEdit;
    QWidget* panel = newQuickPanel();
    layout->addWidget(before);
    layout->addWidget(panel);
    QVERIFY(showActive(window));
    before->setFocus();
    QVERIFY(!shownRing(window));
    QTest::keyClick(before, Qt::Key_Tab);
    QVERIFY(panel->isAncestorOf(QApplication::focusWidget()));
    QVERIFY(surrounds(window, shownRing(window), QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(surrounds(window, shownRing(window), QApplication::focusWidget()));
    before->setFocus();
    QVERIFY(!shownRing(window));

    part<QWidget>(window, "widthEdit")->setFocus();
    QVERIFY(shownRing(window));
    QWidget other;
    QVERIFY(showActive(other));
    QVERIFY(!shownRing(window));
}

void tst_FocusRing::isThereForTheMouseToo()
{
    const std::unique_ptr<QWidget> panel(newQuickPanel());
    QVERIFY(showActive(*panel));
    QWidget* button = part<QWidget>(*panel, "plusButton");
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(surrounds(*panel, shownRing(*panel), button));
}

void tst_FocusRing::movesWithItsControl()
{
    const std::unique_ptr<QWidget> panel(newPrintPanel());
    QVERIFY(showActive(*panel));
    QWidget* button = part<QWidget>(*panel, "PrintButton");
    button->setFocus();
    const QPoint old = button->mapTo(panel.get(), QPoint());
    panel->resize(panel->size() + QSize(60, 80));
    QTRY_VERIFY(button->mapTo(panel.get(), QPoint()) != old);
    QVERIFY(surrounds(*panel, shownRing(*panel), button));
    button->hide();
    QTRY_VERIFY(!surrounds(*panel, shownRing(*panel), button));
}

// A palette that is longer than the colour menu scrolls, and the ring with it.
void tst_FocusRing::isCutOffWithItsControlOnly()
{
    const std::unique_ptr<QWidget> panel(newPrintPanel());
    auto* interface = qobject_cast<PrintWidgetInterface*>(panel.get());
    QStringList palette;
    for (int i = 0; i < 60; ++i)
        palette.append(QColor(4 * i, 40, 40).name());
    interface->setColorPalette(palette, palette);
    QVERIFY(showActive(*panel));
    auto* menu = part<QWidget>(*panel, "ribbon1Menu");
    auto* area = menu->findChild<QScrollArea*>();
    auto* swatch = menu->findChild<QWidget*>(palette.constFirst());
    swatch->setFocus();
    QVERIFY(surrounds(*panel, shownRing(*panel), swatch));
    area->verticalScrollBar()->setValue(12);
    const QRect viewport = placeIn(*panel, area->viewport());
    QVERIFY(shownRing(*panel));
    QVERIFY(viewport.contains(placeIn(*panel, shownRing(*panel))));
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    QVERIFY(!shownRing(*panel));
    area->verticalScrollBar()->setValue(0);
    QVERIFY(surrounds(*panel, shownRing(*panel), swatch));
}

void tst_FocusRing::leavesTheMouseToTheControl()
{
    const std::unique_ptr<QWidget> panel(newQuickPanel());
    QVERIFY(showActive(*panel));
    QWidget* button = part<QWidget>(*panel, "printButton");
    button->setFocus();
    QVERIFY(shownRing(*panel));
    for (const QPoint& corner : {button->rect().topLeft(), button->rect().bottomRight()})
        QCOMPARE(panel->childAt(button->mapTo(panel.get(), corner)), button);
}

// A sheet that fills every widget would hide what the ring surrounds.
void tst_FocusRing::ignoresTheHostsStyleSheet()
{
    QWidget window;
    (new QVBoxLayout(&window))->addWidget(newQuickPanel());
    window.setStyleSheet(QStringLiteral("QWidget { background-color: red; border: 3px solid red; }"
                                        "QPushButton { background-color: #00ff00; }"));
    QVERIFY(showActive(window));
    auto* button = part<QPushButton>(window, "plusButton");
    button->setFocus();
    QVERIFY(surrounds(window, shownRing(window), button));
    const QPoint middle = button->mapTo(&window, button->rect().center());
    const QColor shown = window.grab().toImage().pixelColor(middle);
    shownRing(window)->hide();
    QCOMPARE(window.grab().toImage().pixelColor(middle), shown);
}

void tst_FocusRing::oneForAPanelInADialog()
{
    const std::unique_ptr<QWidget> dialog(newMultiPageDialog());
    QVERIFY(showActive(*dialog));
    part<QWidget>(*dialog, "PrintButton")->setFocus();
    QCOMPARE(shownRings(*dialog).size(), 1);
    QVERIFY(shownRing(*dialog)->parentWidget()->inherits("MultiPagePrintWidget"));
}

void tst_FocusRing::servesAPanelWithoutARing()
{
    auto* panel = new QWidget;
    auto* edit = new QLineEdit;
    (new QVBoxLayout(panel))->addWidget(edit);
    MultiPagePrintDialog dialog(panel, nullptr, Qt::FramelessWindowHint);
    QVERIFY(showActive(dialog));
    edit->setFocus();
    QVERIFY(surrounds(dialog, shownRing(dialog), edit));
}

void tst_FocusRing::goesWithItsControl()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    QPointer<QWidget> panel = newQuickPanel();
    layout->addWidget(panel);
    QVERIFY(showActive(window));
    part<QWidget>(*panel, "plusButton")->setFocus();
    QVERIFY(shownRing(window));
    delete part<QWidget>(*panel, "plusButton");
    QVERIFY(!shownRing(window) || QApplication::focusWidget() != nullptr);
    part<QWidget>(*panel, "minusButton")->setFocus();
    QVERIFY(shownRing(window));
    delete panel;
    QVERIFY(!shownRing(window));
}

QTEST_MAIN(tst_FocusRing)
#include "tst_focusring.moc"
