// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

/** The order in which the Tab key visits the controls of the panels: that of the eye. */
class tst_TabOrder : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheEye_data();
    void followsTheEye();
    void controlsOfThePrintPanel();
    void hostsControlsKeepTheirPlaces();
    void hostsOtherWindowsAreLeftAlone();
    void newPaletteKeepsItsPlace();
};

namespace {

const QStringList red = {QStringLiteral("#dc0b0b"), QStringLiteral("#ffffff")};
const QStringList redAndGreen = {QStringLiteral("#dc0b0b"), QStringLiteral("#248d4f"),
                                 QStringLiteral("#ffffff")};

void showSupply(PrintWidget* panel, bool twoRibbons)
{
    panel->showSupplyInfo(twoRibbons ? redAndGreen : red, twoRibbons, 4.0, 0, true);
}

PrintWidget* newPlainPanel()
{
    auto* panel = new PrintWidget(true, nullptr);
    panel->enableAllButtons();
    panel->setRangeValues(0, 9, true);
    panel->setNupSeqRepVisible(true);
    panel->setShowUserBackground(true);
    return panel;
}

QWidget* newEmptyPanel()
{
    return newPlainPanel();
}

QWidget* newPanelWithSupply()
{
    PrintWidget* panel = newPlainPanel();
    showSupply(panel, true);
    return panel;
}

QWidget* newPanelWithSupplyThenAmmonia()
{
    PrintWidget* panel = newPlainPanel();
    showSupply(panel, false);
    panel->setModule(JxModuleInfo::PipeMarking);
    panel->setVisibleAmmoniaTag(15);
    return panel;
}

QWidget* newPanelWithAmmoniaThenSupply()
{
    PrintWidget* panel = newPlainPanel();
    panel->setVisibleAmmoniaTag(15);
    showSupply(panel, true);
    return panel;
}

QWidget* newPanelWithAmmoniaBuiltAgain()
{
    PrintWidget* panel = newPlainPanel();
    panel->setVisibleAmmoniaTag(15);
    showSupply(panel, true);
    panel->setModule(JxModuleInfo::PipeMarking);
    panel->setVisibleAmmoniaTag(15);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return panel;
}

QWidget* newPanelWithRibbonTakenOutAndIn()
{
    PrintWidget* panel = newPlainPanel();
    showSupply(panel, true);
    showSupply(panel, false);
    showSupply(panel, true);
    panel->findChild<QTabBar*>()->setCurrentIndex(1);
    return panel;
}

QWidget* newPanelWithListEdit()
{
    PrintWidget* panel = newPlainPanel();
    part<QAbstractButton>(*panel, "recordListRadio")->click();
    part<QLineEdit>(*panel, "recordListEdit")->setText(QStringLiteral("1-4"));
    return panel;
}

/** What Tab visits, beginning with the first control of @p window. */
QWidgetList visited(QWidget& window, bool backwards = false)
{
    QWidgetList controls;
    for (QWidget* next = QApplication::focusWidget(); next && !controls.contains(next);
         next = QApplication::focusWidget()) {
        controls.append(next);
        QTest::keyClick(&window, backwards ? Qt::Key_Backtab : Qt::Key_Tab);
    }
    return controls;
}

QStringList namesOf(const QWidgetList& controls)
{
    QStringList names;
    for (const QWidget* control : controls)
        names.append(control->objectName());
    return names;
}

/** Whether @p one stands before @p other in the text: in a row above, or before it in its row. */
bool isBefore(const QWidget& window, const QWidget* one, const QWidget* other)
{
    const QRect a(one->mapTo(&window, QPoint()), one->size());
    const QRect b(other->mapTo(&window, QPoint()), other->size());
    const bool sameRow = a.center().y() >= b.top() && a.center().y() <= b.bottom();
    if (!sameRow)
        return a.center().y() < b.center().y();
    return window.isRightToLeft() ? a.center().x() > b.center().x()
                                  : a.center().x() < b.center().x();
}

} // namespace

void tst_TabOrder::followsTheEye_data()
{
    addColumns<Create, Qt::LayoutDirection>("create", "direction");
    QList<PanelKind> states = panelKinds();
    states += {{"no section built later", newEmptyPanel},
               {"supply", newPanelWithSupply},
               {"supply, then ammonia", newPanelWithSupplyThenAmmonia},
               {"ammonia, then supply", newPanelWithAmmoniaThenSupply},
               {"ammonia built again", newPanelWithAmmoniaBuiltAgain},
               {"second ribbon taken out and in", newPanelWithRibbonTakenOutAndIn},
               {"list of records", newPanelWithListEdit}};
    for (const PanelKind& state : std::as_const(states)) {
        QTest::addRow("%s", state.name) << Create(state.create) << Qt::LeftToRight;
        QTest::addRow("%s, right to left", state.name) << Create(state.create) << Qt::RightToLeft;
    }
}

void tst_TabOrder::followsTheEye()
{
    QFETCH(const Create, create);
    QFETCH(const Qt::LayoutDirection, direction);
    const std::unique_ptr<QWidget> window(create());
    window->setLayoutDirection(direction);
    QVERIFY(showActive(*window));
    const QWidgetList controls = visited(*window);
    QVERIFY(controls.size() >= 5);
    for (qsizetype i = 1; i < controls.size(); ++i) {
        QVERIFY2(isBefore(*window, controls.at(i - 1), controls.at(i)),
                 qPrintable(namesOf(controls).join(u' ')));
    }
    // Nothing that takes the focus by Tab is left out.
    const QList<QWidget*> children = window->findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (child->isVisible() && child->isEnabled() && !child->isWindow() &&
            !child->focusProxy() && (child->focusPolicy() & Qt::TabFocus) != 0)
            QVERIFY2(controls.contains(child), qPrintable(child->objectName()));
    }
    QWidgetList backwards = visited(*window, true);
    std::reverse(backwards.begin() + 1, backwards.end());
    QCOMPARE(namesOf(backwards), namesOf(controls));
}

void tst_TabOrder::controlsOfThePrintPanel()
{
    const std::unique_ptr<QWidget> panel(newPanelWithSupplyThenAmmonia());
    part<QAbstractButton>(*panel, "recordListRadio")->click();
    part<QLineEdit>(*panel, "recordListEdit")->setText(QStringLiteral("1-4"));
    QVERIFY(showActive(*panel));
    QStringList names = namesOf(visited(*panel));
    names.removeIf([](const QString& name) { return name.startsWith(u'#'); });
    // Pipe markers have no records.
    const QStringList expected = {
        QStringLiteral("AmmoniaPrintCombo"),   QStringLiteral("PreferencesButton"),
        QStringLiteral("minusButton"),         QStringLiteral("copiesSpinBox"),
        QStringLiteral("plusButton"),          QStringLiteral("supplyWidthEdit"),
        QStringLiteral("tinyLadderCheck"),     QStringLiteral("colorTabBar"),
        QStringLiteral("userBackgroundCheck"), QStringLiteral("printToFileCheck"),
        QStringLiteral("errorNumberSpinBox"),  QStringLiteral("showErrorButton"),
        QStringLiteral("PrintButton"),         QStringLiteral("PreviewButton")};
    QCOMPARE(names, expected);
}

// The sections that are built later must not end up behind the host's controls, nor move those.
void tst_TabOrder::hostsControlsKeepTheirPlaces()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* before = new QLineEdit;
    before->setObjectName(QStringLiteral("before"));
    auto* after = new QLineEdit;
    after->setObjectName(QStringLiteral("after"));
    PrintWidget* panel = newPlainPanel();
    layout->addWidget(before);
    layout->addWidget(panel);
    layout->addWidget(after);
    QVERIFY(showActive(window));
    showSupply(panel, true);
    panel->setVisibleAmmoniaTag(15);
    before->setFocus();
    const QWidgetList controls = visited(window);
    QCOMPARE(controls.constFirst(), before);
    QCOMPARE(controls.constLast(), after);
    QCOMPARE(controls.at(1)->objectName(), QStringLiteral("AmmoniaPrintCombo"));
    QCOMPARE(controls.at(controls.size() - 2)->objectName(), QStringLiteral("PreviewButton"));
}

// A host may show a part in a window of its own.
void tst_TabOrder::hostsOtherWindowsAreLeftAlone()
{
    const std::unique_ptr<PrintWidget> panel(newPlainPanel());
    QWidget other;
    auto* box = new QVBoxLayout(&other);
    box->addWidget(part<QWidget>(*panel, "PreviewButton"));
    part<QWidget>(*panel, "userBackgroundCheck")->setWindowFlag(Qt::Window);
    showSupply(panel.get(), true);
    panel->setVisibleAmmoniaTag(15);
    QVERIFY(showActive(*panel));
    QVERIFY(!namesOf(visited(*panel)).contains(QStringLiteral("PreviewButton")));
}

void tst_TabOrder::newPaletteKeepsItsPlace()
{
    const std::unique_ptr<QWidget> panel(newPanelWithSupply());
    auto* interface = qobject_cast<PrintWidgetInterface*>(panel.get());
    QVERIFY(showActive(*panel));
    const QStringList palette = {QStringLiteral("#112233"), QStringLiteral("#445566")};
    interface->setColorPalette(palette, palette);
    const QStringList names = namesOf(visited(*panel));
    const qsizetype tabs = names.indexOf(QStringLiteral("colorTabBar"));
    QCOMPARE(names.at(tabs + 1), palette.constFirst());
    QVERIFY(names.indexOf(QStringLiteral("PreviewButton")) > tabs + 1);
}

QTEST_MAIN(tst_TabOrder)
#include "tst_taborder.moc"
