// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "useractions.h"

#include "livepanel.h"
#include "support/inputevents.h"
#include "userinput.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QContextMenuEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabBar>

namespace {

using Panel = QPointer<QWidget>;
using Act = std::function<void(const Panel&)>;

/** The ways to choose in a combo box. Each is a row of its own. */
void addComboRows(QList<UserAction>& rows, const UserAction& row, const char* combo,
                  const QList<const char*>& names)
{
    const auto box = [combo](const Panel& panel) { return part<QComboBox>(*panel, combo); };
    const QList<Act> acts = {
        [box](const Panel& panel) { QTest::keyClick(box(panel), Qt::Key_Down); },
        [box](const Panel& panel) { QTest::keyClick(box(panel), Qt::Key_End); },
        [box](const Panel& panel) {
            const QString name = box(panel)->itemText(1);
            QTest::keyClick(box(panel), name.at(0).toLatin1());
        },
        [box](const Panel& panel) {
            box(panel)->setFocus();
            turnWheelOver(box(panel), -120);
        },
        [box](const Panel& panel) { clickRow(box(panel), 1); },
        [box](const Panel& panel) { pickByKeys(box(panel), Qt::Key_Down); },
    };
    for (qsizetype i = 0; i < acts.size(); ++i)
        rows.append({names.at(i), row.create, row.emitter, row.signal, acts.at(i)});
}

/** Mouse and keyboard on a button that may report otherwise than by its click. */
void addToggleRows(QList<UserAction>& rows, const UserAction& row, const char* button,
                   const char* byMouse, const char* byKey)
{
    rows.append({byMouse, row.create, row.emitter, row.signal,
                 [button](const Panel& panel) { click(part<QAbstractButton>(*panel, button)); }});
    rows.append({byKey, row.create, row.emitter, row.signal, [button](const Panel& panel) {
                     pressSpace(part<QAbstractButton>(*panel, button));
                 }});
}

/** Mouse and keyboard on a button whose click reports. */
void addButtonRows(QList<UserAction>& rows, const UserAction& row, const char* button,
                   const char* byMouse, const char* byKey)
{
    addToggleRows(rows, row, button, byMouse, byKey);
    for (auto added = rows.rbegin(); added != rows.rbegin() + 2; ++added)
        added->clicksAButton = true;
}

/** The button that adds a copy. No panel reports it, but a host may listen to the button itself. */
void addStepRows(QList<UserAction>& rows, QWidget* (*create)(), const char* byMouse,
                 const char* byKey, const char* held)
{
    const char* const button = "plusButton";
    const UserAction row{nullptr, create, button, SIGNAL(clicked()), {}};
    addButtonRows(rows, row, button, byMouse, byKey);
    rows.append({held, create, button, SIGNAL(clicked()),
                 [button](const Panel& panel) {
                     auto* step = part<QAbstractButton>(*panel, button);
                     step->setAutoRepeatDelay(10);
                     QTest::mousePress(step, Qt::LeftButton);
                     QTRY_VERIFY(panel.isNull());
                 },
                 true});
}

void addPrintPanelButtons(QList<UserAction>& rows)
{
    const auto row = [](const char* signal) {
        return UserAction{nullptr, newPrintPanel, "", signal, {}};
    };
    addButtonRows(rows, row(SIGNAL(widgetPrintSignal(int, int, QString))), "PrintButton",
                  "print panel: print clicked", "print panel: print by key");
    addButtonRows(rows, row(SIGNAL(printPreviewSignal(int, int, QString))), "PreviewButton",
                  "print panel: preview clicked", "print panel: preview by key");
    addButtonRows(rows, row(SIGNAL(openPreferencesSignal())), "PreferencesButton",
                  "print panel: preferences clicked", "print panel: preferences by key");
    addButtonRows(rows, row(SIGNAL(testPrintError(int))), "showErrorButton",
                  "print panel: error clicked", "print panel: error by key");
    addButtonRows(rows, row(SIGNAL(tinyLadderSupplyChangedSignal(bool))), "tinyLadderCheck",
                  "print panel: ladder clicked", "print panel: ladder by key");
}

void addPrintPanelCombos(QList<UserAction>& rows)
{
    addComboRows(
        rows, {nullptr, newPrintPanel, "", SIGNAL(currentPrinterSelectionChanged(QString)), {}},
        "PrinterListCombo",
        {"print panel: printer by arrow key", "print panel: printer by end key",
         "print panel: printer by letter", "print panel: printer by wheel",
         "print panel: printer clicked in the list", "print panel: printer by keys in the list"});
    addComboRows(rows, {nullptr, newPrintPanel, "", SIGNAL(ammoniaPrintTagChanged(int)), {}},
                 "AmmoniaPrintCombo",
                 {"print panel: tag by arrow key", "print panel: tag by end key",
                  "print panel: tag by letter", "print panel: tag by wheel",
                  "print panel: tag clicked in the list", "print panel: tag by keys in the list"});
}

void addSwatchRows(QList<UserAction>& rows, int tab, const char* menu, const char* byMouse,
                   const char* bySpace, const char* byReturn)
{
    const auto swatch = [tab, menu](const Panel& panel) {
        part<QTabBar>(*panel, "colorTabBar")->setCurrentIndex(tab);
        return part<QAbstractButton>(*part<QWidget>(*panel, menu), "#000000");
    };
    const char* const signal = SIGNAL(supplyColorsChangedSignal(QStringList));
    const auto row = [&rows, signal](const char* name, const Act& act) {
        rows.append({name, newPrintPanel, "", signal, act, true});
    };
    row(byMouse, [swatch](const Panel& panel) { click(swatch(panel)); });
    row(bySpace, [swatch](const Panel& panel) { pressSpace(swatch(panel)); });
    row(byReturn, [swatch](const Panel& panel) {
        QWidget* button = swatch(panel);
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Return);
    });
}

QLineEdit* typeWidth(const Panel& panel)
{
    auto* edit = part<QLineEdit>(*panel, "supplyWidthEdit");
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("9"));
    return edit;
}

void addWidthRows(QList<UserAction>& rows)
{
    const auto row = [&rows](const char* name, const Act& act) {
        rows.append({name, newPrintPanel, "", SIGNAL(supplyWidthChangedSignal(double)), act});
    };
    row("print panel: width by return",
        [](const Panel& panel) { QTest::keyClick(typeWidth(panel), Qt::Key_Return); });
    row("print panel: width by tab",
        [](const Panel& panel) { QTest::keyClick(typeWidth(panel), Qt::Key_Tab); });
    row("print panel: width by back tab",
        [](const Panel& panel) { QTest::keyClick(typeWidth(panel), Qt::Key_Backtab); });
    row("print panel: width by a click on a field", [](const Panel& panel) {
        typeWidth(panel);
        click(part<QWidget>(*panel, "errorNumberSpinBox"));
    });
    row("print panel: width by a click on a button", [](const Panel& panel) {
        typeWidth(panel);
        click(part<QWidget>(*panel, "PrintButton"));
    });
    row("print panel: width by a click on the tags", [](const Panel& panel) {
        typeWidth(panel);
        click(part<QWidget>(*panel, "AmmoniaPrintCombo"));
    });
}

void addQuickPanelRows(QList<UserAction>& rows)
{
    const auto row = [](const char* signal) {
        return UserAction{nullptr, newQuickPanel, "", signal, {}};
    };
    addButtonRows(rows, row(SIGNAL(widgetPrintSignal(int, int, QString))), "printButton",
                  "quick print: print clicked", "quick print: print by key");
    addButtonRows(rows, row(SIGNAL(openModuleSignal())), "openInEditorButton",
                  "quick print: editor clicked", "quick print: editor by key");
    addButtonRows(rows, row(SIGNAL(resizeSignal(QSizeF))), "resizeButton",
                  "quick print: resize clicked", "quick print: resize by key");
}

void addMultiPageButtons(QList<UserAction>& rows)
{
    const auto row = [](const char* signal) {
        return UserAction{nullptr, newMultiPagePanel, "", signal, {}};
    };
    addButtonRows(rows, row(SIGNAL(widgetPrintSignal(int, int, QString))), "PrintButton",
                  "multi page: print clicked", "multi page: print by key");
    addButtonRows(rows, row(SIGNAL(openPreferencesSignal())), "PreferencesButton",
                  "multi page: preferences clicked", "multi page: preferences by key");
    addToggleRows(rows, row(SIGNAL(printFormFillChangedSignal(int))), "formFillCheck",
                  "multi page: form fill clicked", "multi page: form fill by key");
    addToggleRows(rows, row(SIGNAL(fitToPageChangedSignal(int))), "fitToPageCheck",
                  "multi page: fit clicked", "multi page: fit by key");
    addToggleRows(rows, row(SIGNAL(orientationChangedSignal(int))), "orientationCheck",
                  "multi page: orientation clicked", "multi page: orientation by key");
    addButtonRows(rows, row(SIGNAL(startPageChangedSignal(int))), "allPagesRadio",
                  "multi page: all pages clicked", "multi page: all pages by key");
}

void addMultiPagePrinters(QList<UserAction>& rows)
{
    const char* const signal = SIGNAL(currentPrinterSelectionChanged(QString));
    addComboRows(rows, {nullptr, newMultiPagePanel, "", signal, {}}, "PrinterListCombo",
                 {"multi page: printer by arrow key", "multi page: printer by end key",
                  "multi page: printer by letter", "multi page: printer by wheel",
                  "multi page: printer clicked in the list",
                  "multi page: printer by keys in the list"});
    rows.append(
        {"multi page: same printer clicked in the list", newMultiPagePanel, "", signal,
         [](const Panel& panel) { clickRow(part<QComboBox>(*panel, "PrinterListCombo"), 0); }});
    rows.append({"multi page: same printer by return in the list", newMultiPagePanel, "", signal,
                 [](const Panel& panel) {
                     pickByKeys(part<QComboBox>(*panel, "PrinterListCombo"), Qt::Key_Return);
                 }});
}

void addMultiPageFields(QList<UserAction>& rows)
{
    const auto page = [&rows](const char* name, const Act& act) {
        rows.append({name, newMultiPagePanel, "", SIGNAL(startPageChangedSignal(int)), act});
    };
    page("multi page: list typed", [](const Panel& panel) {
        auto* edit = part<QLineEdit>(*panel, "pageListEdit");
        edit->setEnabled(true);
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_7);
    });
    page("multi page: list pasted", [](const Panel& panel) {
        auto* edit = part<QLineEdit>(*panel, "pageListEdit");
        edit->setEnabled(true);
        edit->insert(QStringLiteral("7-9"));
    });

    const auto focus = [&rows](const char* name, const Act& act) {
        rows.append({name, newMultiPagePanel, "", SIGNAL(focusLost()), act});
    };
    const auto copies = [](const Panel& panel) {
        auto* edit = part<QLineEdit>(*panel, "copiesEdit");
        edit->setFocus();
        return edit;
    };
    focus("multi page: copies left by tab",
          [copies](const Panel& panel) { QTest::keyClick(copies(panel), Qt::Key_Tab); });
    focus("multi page: copies left by a click", [copies](const Panel& panel) {
        copies(panel);
        click(part<QWidget>(*panel, "fitToPageCheck"));
    });
    focus("multi page: copies left by a click on the printers", [copies](const Panel& panel) {
        copies(panel);
        click(part<QWidget>(*panel, "PrinterListCombo"));
    });
    focus("multi page: copies left for the list of printers", [copies](const Panel& panel) {
        copies(panel);
        part<QComboBox>(*panel, "PrinterListCombo")->showPopup();
    });
    focus("multi page: copies left for their context menu", [copies](const Panel& panel) {
        QLineEdit* edit = copies(panel);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                edit->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(edit, &event);
    });
    focus("multi page: copies left for another window", [copies](const Panel& panel) {
        copies(panel);
        QWidget other;
        showActive(other);
    });
}

void addPopupRows(QList<UserAction>& rows)
{
    const auto row = [](const char* signal) {
        return UserAction{nullptr, newPreviewPopup, "", signal, {}};
    };
    addButtonRows(rows, row(SIGNAL(previewPrintSignal(int, int, QString))), "printButton",
                  "popup: print clicked", "popup: print by key");
    const UserAction orientation = row(SIGNAL(orientationChangedSignal(int)));
    addToggleRows(rows, orientation, "landscapeButton", "popup: landscape clicked",
                  "popup: landscape by key");
    addToggleRows(rows, orientation, "portraitButton", "popup: portrait clicked",
                  "popup: portrait by key");
    rows.append(orientation);
    rows.last().name = "popup: orientation by arrow key";
    rows.last().act = [](const Panel& panel) {
        auto* button = part<QAbstractButton>(*panel, "portraitButton");
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Right);
    };
    addButtonRows(rows, row(SIGNAL(popupHideSignal())), "closeButton", "popup: close clicked",
                  "popup: close by key");
    rows.append({"popup: title bar's close clicked", newPreviewPopup, "", SIGNAL(popupHideSignal()),
                 [](const Panel& panel) { click(part<QAbstractButton>(*panel, "CloseButton")); },
                 true});
}

} // namespace

QList<UserAction> userActions()
{
    QList<UserAction> rows;
    addPrintPanelButtons(rows);
    addPrintPanelCombos(rows);
    addSwatchRows(rows, 0, "ribbon1Menu", "print panel: ribbon 1 clicked",
                  "print panel: ribbon 1 by space", "print panel: ribbon 1 by return");
    addSwatchRows(rows, 1, "ribbon2Menu", "print panel: ribbon 2 clicked",
                  "print panel: ribbon 2 by space", "print panel: ribbon 2 by return");
    addSwatchRows(rows, 2, "supplyMenu", "print panel: supply clicked",
                  "print panel: supply by space", "print panel: supply by return");
    addWidthRows(rows);
    addQuickPanelRows(rows);
    addMultiPageButtons(rows);
    addMultiPagePrinters(rows);
    addMultiPageFields(rows);
    addPopupRows(rows);
    addStepRows(rows, newPrintPanel, "print panel: step clicked", "print panel: step by key",
                "print panel: step held");
    addStepRows(rows, newQuickPanel, "quick print: step clicked", "quick print: step by key",
                "quick print: step held");
    addStepRows(rows, newMultiPagePanel, "multi page: step clicked", "multi page: step by key",
                "multi page: step held");
    return rows;
}

QWidget* emitterOf(const UserAction& action, QWidget& panel)
{
    return *action.emitter == '\0' ? &panel : part<QWidget>(panel, action.emitter);
}
