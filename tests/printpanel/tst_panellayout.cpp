// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "printpanelfixture.h"
#include "support/layoutdescription.h"
#include "support/stricttest.h"

#include <applicationfont.h>
#include <printpanels/printwidget.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

namespace {

/** The vertical layout of a whole panel. */
QVBoxLayout* mainLayout(const QWidget& panel)
{
    return qobject_cast<QVBoxLayout*>(panel.layout());
}

QStringList mainLayoutWithoutTestControls()
{
    return {QStringLiteral("QLabel"),
            QStringLiteral("spacer 15x15 Minimum/Minimum"),
            QStringLiteral("separator"),
            QStringLiteral("QFrame ammoniaWidget"),
            QStringLiteral("QGridLayout"),
            QStringLiteral("QFrame supplyInfoWidget"),
            QStringLiteral("QFrame recordsFrame"),
            QStringLiteral("QCheckBox userBackgroundCheck"),
            QStringLiteral("spacer 15x7 Minimum/Minimum"),
            QStringLiteral("separator"),
            QStringLiteral("spacer 15x15 Minimum/Minimum"),
            QStringLiteral("QGridLayout")};
}

/** Top and height of every child that is laid out, by its place in the list of children. */
QList<QRect> geometries(const QWidget& panel)
{
    QList<QRect> rects;
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
    for (const QWidget* child : children)
        rects.append(QRect(child->mapTo(&panel, QPoint()), child->size()));
    return rects;
}

/** Class, name, text and place, for failure messages. */
QString describe(const QWidget* widget)
{
    QString text;
    QDebug(&text).nospace() << widget->metaObject()->className() << ' ' << widget->objectName()
                            << ' ' << widget->property("text").toString() << ' '
                            << widget->geometry();
    return text;
}

/** Whether @p widget is laid out, which the ring on top of the focused control is not. */
bool isVisiblePart(const QWidget* widget)
{
    return widget->isVisible() && !widget->isWindow() &&
           !widget->inherits("PrintPanels::FocusRing");
}

} // namespace

/** The order of the panel's rows and what happens to them when the panel gets higher. */
class tst_PanelLayout : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsInOrder();
    void rowsInOrderWithTestControls();
    void title();
    void separatorBarsAreGrey();
    void onlyTheBottomSeparatorStretches();
    void partsStandInVisualOrder();
    void extraHeightGoesToTheBottomSeparator_data();
    void extraHeightGoesToTheBottomSeparator();
    void nothingOverlapsAtItsSizeHint_data();
    void nothingOverlapsAtItsSizeHint();
    void ammoniaSeparatorStandsDirectlyUnderItsFrame();
    void thePanelOwnsAllItShows();

private:
    static void setUpState(PrintPanelFixture& panel, const QString& state);
};

void tst_PanelLayout::rowsInOrder()
{
    const PrintPanelFixture panel;
    QVERIFY(mainLayout(panel));
    QCOMPARE(layoutDescription(panel.layout()), mainLayoutWithoutTestControls());
}

void tst_PanelLayout::rowsInOrderWithTestControls()
{
    const PrintPanelFixture panel(true);
    QStringList expected = mainLayoutWithoutTestControls();
    const QString buttons = expected.takeLast();
    expected << QStringLiteral("separator") << QStringLiteral("spacer 1x15 Minimum/Minimum")
             << QStringLiteral("QCheckBox printToFileCheck")
             << QStringLiteral("spacer 1x15 Minimum/Minimum") << QStringLiteral("QHBoxLayout")
             << QStringLiteral("separator") << buttons;
    QCOMPARE(layoutDescription(panel.layout()), expected);
}

void tst_PanelLayout::title()
{
    const PrintPanelFixture panel;
    const auto* label = qobject_cast<QLabel*>(panel.layout()->itemAt(0)->widget());
    QVERIFY(label);
    QCOMPARE(label->text(), QStringLiteral("PRINT SETTINGS"));
    QCOMPARE(label->font(), ApplicationFont::getWidgetFont(true));
}

void tst_PanelLayout::separatorBarsAreGrey()
{
    const PrintPanelFixture panel(true);
    int bars = 0;
    for (int i = 0; i < panel.layout()->count(); ++i) {
        const auto* bar = qobject_cast<QFrame*>(panel.layout()->itemAt(i)->widget());
        if (!bar || bar->frameShape() != QFrame::HLine)
            continue;
        ++bars;
        QCOMPARE(bar->lineWidth(), 1);
        QCOMPARE(bar->palette().color(QPalette::WindowText), QColor(198, 198, 198));
    }
    QCOMPARE(bars, 4);
}

void tst_PanelLayout::onlyTheBottomSeparatorStretches()
{
    const PrintPanelFixture panel(true);
    const QVBoxLayout* layout = mainLayout(panel);
    const int bar = layout->indexOf(panel.part<QFrame>("bottomSeparator"));
    QCOMPARE(bar, 9);
    for (int i = 0; i < layout->count(); ++i)
        QCOMPARE(layout->stretch(i), i == bar ? 11 : 0);
    QCOMPARE(layout->itemAt(bar)->alignment(), Qt::AlignBottom);
}

void tst_PanelLayout::partsStandInVisualOrder()
{
    PrintPanelFixture panel(true);
    panel.setVisibleAmmoniaTag(1);
    panel.showSupplyInfo({QStringLiteral("#000000"), QStringLiteral("#ffffff")}, false, 4.0, 0,
                         true);
    panel.setShowUserBackground(true);
    panel.setNupSeqRepVisible(true);
    QVERIFY(showPanel(panel));
    int above = -1;
    for (const char* name :
         {"AmmoniaPrintCombo", "PrinterListCombo",   "locationLabel",      "statusLabel",
          "copiesSpinBox",     "supplyWidthEdit",    "tinyLadderCheck",    "colorTabBar",
          "stackGroup",        "currentRecordRadio", "allRecordsRadio",    "recordListRadio",
          "recordListEdit",    "nupTitleLabel",      "replicatingRadio",   "userBackgroundCheck",
          "bottomSeparator",   "printToFileCheck",   "errorNumberSpinBox", "PrintButton"}) {
        const auto* widget = panel.part<QWidget>(name);
        QVERIFY2(widget && widget->isVisible(), name);
        const int top = widget->mapTo(&panel, QPoint()).y();
        QVERIFY2(top > above, name);
        above = top;
    }
}

void tst_PanelLayout::setUpState(PrintPanelFixture& panel, const QString& state)
{
    if (state.contains(QLatin1String("nup"))) {
        panel.setRangeValues(0, 9, true);
        panel.setNupSeqRepVisible(true);
    }
    if (state.contains(QLatin1String("supply")))
        panel.showSupplyInfo({QStringLiteral("#000000"), QStringLiteral("#ffffff")}, true, 4.0, 0,
                             true);
    if (state.contains(QLatin1String("pipe"))) {
        panel.setModule(JxModuleInfo::PipeMarking);
        panel.setVisibleAmmoniaTag(15);
    }
    panel.setShowUserBackground(state.contains(QLatin1String("background")));
}

void tst_PanelLayout::extraHeightGoesToTheBottomSeparator_data()
{
    addColumns<bool, QString>("testControls", "state");
    addRow("plain", false, QString());
    addRow("test controls", true, QString());
    addRow("N-up", false, "nup");
    addRow("loaded supply", false, "supply");
    addRow("pipe marking", false, "pipe");
    addRow("user background", false, "background");
    addRow("everything", true, "nup supply background");
    addRow("pipe marking and supply", true, "pipe supply");
}

void tst_PanelLayout::extraHeightGoesToTheBottomSeparator()
{
    QFETCH(const bool, testControls);
    QFETCH(const QString, state);
    constexpr int extra = 300;
    PrintPanelFixture panel(testControls);
    setUpState(panel, state);
    QVERIFY(showPanel(panel));
    const QSize natural = panel.sizeHint();
    panel.resize(natural);
    QTest::qWait(0);
    QCOMPARE(panel.height(), natural.height());
    const QList<QRect> before = geometries(panel);
    panel.resize(natural + QSize(0, extra));
    QTest::qWait(0);
    const QList<QRect> after = geometries(panel);

    const int barTop =
        before.at(panel.findChildren<QWidget*>().indexOf(panel.part<QFrame>("bottomSeparator")))
            .top();
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
    for (qsizetype i = 0; i < children.size(); ++i) {
        if (!isVisiblePart(children.at(i)))
            continue;
        const int moved = before.at(i).top() >= barTop ? extra : 0;
        QVERIFY2(after.at(i) == before.at(i).translated(0, moved),
                 qPrintable(describe(children.at(i))));
    }
}

void tst_PanelLayout::nothingOverlapsAtItsSizeHint_data()
{
    extraHeightGoesToTheBottomSeparator_data();
}

void tst_PanelLayout::nothingOverlapsAtItsSizeHint()
{
    QFETCH(const bool, testControls);
    QFETCH(const QString, state);
    PrintPanelFixture panel(testControls);
    setUpState(panel, state);
    QVERIFY(showPanel(panel));
    panel.resize(panel.sizeHint());
    QTest::qWait(0);
    // Siblings do not cover each other, and every part lies inside the panel. A control that its
    // sheet makes 37 pixels high may stand out of its 35 pixel row by one pixel on either side.
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
    for (const QWidget* one : children) {
        if (!isVisiblePart(one) || qobject_cast<const QScrollBar*>(one))
            continue;
        if (one->parentWidget() == &panel)
            QVERIFY2(panel.rect().contains(one->geometry()), qPrintable(one->objectName()));
        for (const QWidget* other : children) {
            if (other == one || !isVisiblePart(other) || other->parent() != one->parent() ||
                !one->parentWidget()->layout())
                continue;
            const QRect inner = one->geometry().adjusted(1, 1, -1, -1);
            QVERIFY2(!inner.intersects(other->geometry()),
                     qPrintable(describe(one) + QLatin1String(" overlaps ") + describe(other)));
        }
    }
}

void tst_PanelLayout::ammoniaSeparatorStandsDirectlyUnderItsFrame()
{
    for (const bool onDemand : {false, true}) {
        PrintPanelFixture panel;
        if (onDemand)
            panel.setVisibleAmmoniaTag(1);
        else
            panel.setModule(JxModuleInfo::PipeMarking);
        const int frame = panel.layout()->indexOf(panel.part<QFrame>("ammoniaWidget"));
        QCOMPARE(frame, 3);
        QCOMPARE(panel.layout()->indexOf(panel.part<QFrame>("ammoniaSeparator")), frame + 1);
        QStringList expected = mainLayoutWithoutTestControls();
        expected.insert(4, QStringLiteral("separator"));
        QCOMPARE(layoutDescription(panel.layout()), expected);
        QCOMPARE(mainLayout(panel)->stretch(4), 0);
        QCOMPARE(mainLayout(panel)->stretch(10), 11);
    }
}

void tst_PanelLayout::thePanelOwnsAllItShows()
{
    QList<QPointer<QObject>> parts;
    {
        PrintPanelFixture panel(true);
        panel.setModule(JxModuleInfo::PipeMarking);
        panel.showSupplyInfo({QStringLiteral("#000000")}, false, 4.0, 0, true);
        panel.setModule(JxModuleInfo::PipeMarking);
        parts = partsOf(&panel);
        QVERIFY(parts.size() > 61);
    }
    QVERIFY(areGone(parts));
}

QTEST_MAIN(tst_PanelLayout)
#include "tst_panellayout.moc"
