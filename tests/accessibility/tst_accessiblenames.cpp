// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "accessibility/accessibletree.h"
#include "livepanel.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

/** What a screen reader calls the controls of every panel and window of the library. */
class tst_AccessibleNames : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasAName_data();
    void everyControlHasAName();
    void controlIsCalled_data();
    void controlIsCalled();
    void openListIsCalled_data();
    void openListIsCalled();
    void tabIsCalledByItsToolTip();
    void choiceIsARadioButton_data();
    void choiceIsARadioButton();
    void choosingIsAClick_data();
    void choosingIsAClick();
    void disabledChoiceCannotBeChosen();
    void tickingTheLadderIsAClick();
    void widthIsDescribedByItsUnit();
    void stepButtonsAreDescribedByTheCopies_data();
    void stepButtonsAreDescribedByTheCopies();
    void listIsDescribedByItsState_data();
    void listIsDescribedByItsState();
    void previewIsDescribedByItsPicture();
    void descriptionOfThePreviewFollowsItsScale();
    void hostDescribesAPreviewInItsOwnWords();
};

namespace {

QAccessibleInterface* accessiblePart(const QWidget& window, const char* name)
{
    return QAccessible::queryAccessibleInterface(part<QWidget>(window, name));
}

QString descriptionOf(const QWidget& window, const char* name)
{
    return accessiblePart(window, name)->text(QAccessible::Description);
}

void act(QAccessibleInterface* control, const QString& action)
{
    control->actionInterface()->doAction(action);
}

// As they are before a host calls anything.
QWidget* freshPrintPanel()
{
    return new PrintWidget(false, nullptr);
}

QWidget* freshQuickPanel()
{
    return new QuickPrintWidget(false, nullptr);
}

QWidget* freshMultiPageDialog()
{
    return new MultiPagePrintDialog(new MultiPagePrintWidget(true, true, nullptr), nullptr,
                                    Qt::FramelessWindowHint);
}

QWidget* freshPopup()
{
    return new PrintPreviewDialog(nullptr, Qt::FramelessWindowHint, QImage(), QSizeF(), QSizeF(),
                                  true, false, true, 0, 0, QString());
}

QWidget* emptyPrintPanel()
{
    auto* panel = new PrintWidget(true, nullptr);
    panel->setModule(JxModuleInfo::PipeMarking);
    panel->updateListOfPrinters({}, 0);
    panel->setColorPalette({}, {});
    panel->showSupplyInfo({}, false, 0.0, 1, true);
    return panel;
}

// Colours that no kit can know the names of.
QWidget* oddlyColoredPanel()
{
    auto* panel = new PrintWidget(false, nullptr);
    const QStringList codes = {QStringLiteral("#123456"), QStringLiteral("#fffffe")};
    panel->setColorPalette(codes, codes);
    panel->showSupplyInfo(codes, true, 12.0, 1, false);
    return panel;
}

} // namespace

void tst_AccessibleNames::everyControlHasAName_data()
{
    QTest::addColumn<Create>("create");
    const QList<PanelKind> kinds = panelKinds();
    for (const PanelKind& kind : kinds)
        QTest::newRow(kind.name) << Create(kind.create);
    const PanelKind others[] = {{"fresh print panel", freshPrintPanel},
                                {"fresh quick print panel", freshQuickPanel},
                                {"fresh multi-page dialog", freshMultiPageDialog},
                                {"fresh preview popup", freshPopup},
                                {"empty lists", emptyPrintPanel},
                                {"odd colors", oddlyColoredPanel}};
    for (const PanelKind& kind : others)
        QTest::newRow(kind.name) << Create(kind.create);
}

void tst_AccessibleNames::everyControlHasAName()
{
    QFETCH(const Create, create);
    const std::unique_ptr<QWidget> panel(create());
    QVERIFY(showPanel(*panel));
    QVERIFY(accessibleControls(panel.get()).size() > 5);
    QCOMPARE(unnamedControls(panel.get()).join(u'\n'), QString());
}

void tst_AccessibleNames::controlIsCalled_data()
{
    addColumns<Create, QByteArray, QString>("create", "part", "name");
    const auto row = [](const char* panel, Create create, const char* name, const char* text) {
        QTest::addRow("%s, %s", panel, name)
            << create << QByteArray(name) << QString::fromUtf8(text);
    };
    row("print", newPrintPanel, "AmmoniaPrintCombo", "Item To Print:");
    row("print", newPrintPanel, "PrinterListCombo", "Printer:");
    row("print", newPrintPanel, "PreferencesButton", "Preferences");
    row("print", newPrintPanel, "minusButton", "Fewer Copies");
    row("print", newPrintPanel, "copiesSpinBox", "Copies:");
    row("print", newPrintPanel, "plusButton", "More Copies");
    row("print", newPrintPanel, "supplyWidthEdit", "Tape Width:");
    row("print", newPrintPanel, "colorTabBar", "Loaded Supply:");
    row("print", newPrintPanel, "recordListEdit", "List of Records");
    row("print", newPrintPanel, "errorNumberSpinBox", "Error number: ");
    row("quick", newQuickPanel, "lengthEdit", "Length:  ");
    row("quick", newQuickPanel, "widthEdit", "Width:  ");
    row("quick", newQuickPanel, "PreviewView", "Preview");
    row("quick", newQuickPanel, "copiesSpinBox", "Copies:");
    row("quick", newQuickPanel, "minusButton", "Fewer Copies");
    row("quick", newQuickPanel, "plusButton", "More Copies");
    row("multi-page", newMultiPageDialog, "PrinterListCombo", "Printer:");
    row("multi-page", newMultiPageDialog, "PreferencesButton", "Preferences");
    row("multi-page", newMultiPageDialog, "pageListEdit", "List of Pages");
    row("multi-page", newMultiPageDialog, "copiesEdit", "Copies:");
    row("multi-page", newMultiPageDialog, "minusButton", "Fewer Copies");
    row("multi-page", newMultiPageDialog, "plusButton", "More Copies");
    row("multi-page", newMultiPageDialog, "PreviewView", "Preview");
    row("popup", newPreviewPopup, "PreviewView", "Preview");
    row("popup", newPreviewPopup, "zoomInButton", "Zoom In");
    row("popup", newPreviewPopup, "zoomOutButton", "Zoom Out");
    row("popup", newPreviewPopup, "fitButton", "Fit to Window");
    row("popup", newPreviewPopup, "portraitButton", "Portrait");
    row("popup", newPreviewPopup, "landscapeButton", "Landscape");
}

void tst_AccessibleNames::controlIsCalled()
{
    QFETCH(const Create, create);
    QFETCH(const QByteArray, part);
    const std::unique_ptr<QWidget> panel(create());
    QTEST(accessibleName(accessiblePart(*panel, part.constData())), "name");
}

void tst_AccessibleNames::openListIsCalled_data()
{
    addColumns<Create, QByteArray, QString>("create", "part", "name");
    const auto row = [](const char* panel, Create create, const char* name, const char* text) {
        QTest::newRow(panel) << create << QByteArray(name) << QString::fromUtf8(text);
    };
    row("printers", newPrintPanel, "PrinterListCombo", "Printer:");
    row("tags", newPrintPanel, "AmmoniaPrintCombo", "Item To Print:");
    row("printers of documents", newMultiPagePanel, "PrinterListCombo", "Printer:");
}

void tst_AccessibleNames::openListIsCalled()
{
    QFETCH(const Create, create);
    QFETCH(const QByteArray, part);
    const std::unique_ptr<QWidget> panel(create());
    QVERIFY(showPanel(*panel));
    auto* combo = ::part<QComboBox>(*panel, part.constData());
    combo->showPopup();
    QTRY_VERIFY(combo->view()->isVisible());
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(combo->view());
    QCOMPARE(list->role(), QAccessible::List);
    QTEST(list->text(QAccessible::Name), "name");
    QCOMPARE(unnamedControls(combo->view()->window()).join(u'\n'), QString());
    combo->hidePopup();
}

void tst_AccessibleNames::tabIsCalledByItsToolTip()
{
    const std::unique_ptr<QWidget> panel(newPrintPanel());
    const QAccessibleInterface* tabs = accessiblePart(*panel, "colorTabBar");
    QCOMPARE(tabs->child(0)->text(QAccessible::Name), QStringLiteral("Ribbon1"));
    QCOMPARE(tabs->child(2)->text(QAccessible::Name), QStringLiteral("Supply"));
}

void tst_AccessibleNames::choiceIsARadioButton_data()
{
    addColumns<Create, QByteArray, QString, bool>("create", "part", "name", "checked");
    const auto row = [](Create create, const char* name, const char* text, bool checked) {
        QTest::newRow(name) << create << QByteArray(name) << QString::fromUtf8(text) << checked;
    };
    row(newPrintPanel, "currentRecordRadio", "Current Record", true);
    row(newPrintPanel, "recordListRadio", "Range or List of Records:", false);
    row(newPrintPanel, "replicatingRadio",
        "N-up replicating: Select to print identical labels on a single page.", true);
    row(newMultiPagePanel, "selectionRadio", "Selection:  ", false);
    row(newPreviewPopup, "portraitButton", "Portrait", true);
    row(newPreviewPopup, "landscapeButton", "Landscape", false);
}

void tst_AccessibleNames::choiceIsARadioButton()
{
    QFETCH(const Create, create);
    QFETCH(const QByteArray, part);
    QFETCH(const bool, checked);
    const std::unique_ptr<QWidget> panel(create());
    const QAccessibleInterface* choice = accessiblePart(*panel, part.constData());
    QCOMPARE(choice->role(), QAccessible::RadioButton);
    QTEST(choice->text(QAccessible::Name), "name");
    QVERIFY(choice->state().checkable);
    QCOMPARE(bool(choice->state().checked), checked);
}

void tst_AccessibleNames::choosingIsAClick_data()
{
    addColumns<QString>("action");
    addRow("as on Linux", QAccessibleActionInterface::toggleAction());
    addRow("as on Windows", QAccessibleActionInterface::pressAction());
}

void tst_AccessibleNames::choosingIsAClick()
{
    QFETCH(const QString, action);
    const std::unique_ptr<QWidget> print(newPrintPanel());
    auto* list = part<QLineEdit>(*print, "recordListEdit");
    QVERIFY(!list->isEnabled());
    QAccessibleInterface* records = accessiblePart(*print, "recordListRadio");
    QVERIFY(records->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::toggleAction()));
    act(records, action);
    QVERIFY(records->state().checked);
    QVERIFY(list->isEnabled());

    const std::unique_ptr<QWidget> popup(newPreviewPopup());
    QSignalSpy turned(popup.get(), SIGNAL(orientationChangedSignal(int)));
    act(accessiblePart(*popup, "landscapeButton"), action);
    QCOMPARE(turned.size(), 1);
    QCOMPARE(turned.first().first().toInt(), 0);
    QVERIFY(!accessiblePart(*popup, "portraitButton")->state().checked);
}

void tst_AccessibleNames::disabledChoiceCannotBeChosen()
{
    const std::unique_ptr<QWidget> panel(newPrintPanel());
    static_cast<PrintWidget*>(panel.get())->setRangeValues(0, 9, false);
    QAccessibleInterface* choice = accessiblePart(*panel, "allRecordsRadio");
    QVERIFY(choice->state().disabled);
    QCOMPARE(choice->actionInterface()->actionNames(), QStringList());
    act(choice, QAccessibleActionInterface::toggleAction());
    QVERIFY(!choice->state().checked);
}

void tst_AccessibleNames::tickingTheLadderIsAClick()
{
    const std::unique_ptr<QWidget> panel(newPrintPanel());
    QSignalSpy changed(panel.get(), SIGNAL(tinyLadderSupplyChangedSignal(bool)));
    QAccessibleInterface* check = accessiblePart(*panel, "tinyLadderCheck");
    QCOMPARE(check->role(), QAccessible::CheckBox);
    act(check, QAccessibleActionInterface::toggleAction());
    QVERIFY(check->state().checked);
    QCOMPARE(changed.size(), 1);
}

void tst_AccessibleNames::widthIsDescribedByItsUnit()
{
    PrintWidget panel(false, nullptr);
    panel.showSupplyInfo({QStringLiteral("#ffffff")}, false, 12.0, 1, false);
    QCOMPARE(descriptionOf(panel, "supplyWidthEdit"), QStringLiteral("Millimeters"));
    panel.showSupplyInfo({QStringLiteral("#ffffff")}, false, 0.5, 0, false);
    QCOMPARE(descriptionOf(panel, "supplyWidthEdit"), QStringLiteral("Inches"));
}

void tst_AccessibleNames::stepButtonsAreDescribedByTheCopies_data()
{
    QTest::addColumn<Create>("create");
    QTest::newRow("print") << Create(newPrintPanel);
    QTest::newRow("quick") << Create(newQuickPanel);
    QTest::newRow("multi-page") << Create(newMultiPagePanel);
}

void tst_AccessibleNames::stepButtonsAreDescribedByTheCopies()
{
    QFETCH(const Create, create);
    const std::unique_ptr<QWidget> panel(create());
    QCOMPARE(descriptionOf(*panel, "plusButton"), QStringLiteral("1"));
    part<QAbstractButton>(*panel, "plusButton")->click();
    QCOMPARE(descriptionOf(*panel, "plusButton"), QStringLiteral("2"));
    qobject_cast<PrintWidgetInterface*>(panel.get())->setNumberOfCopies(7);
    part<QAbstractButton>(*panel, "minusButton")->click();
    QCOMPARE(descriptionOf(*panel, "minusButton"), QStringLiteral("6"));
}

void tst_AccessibleNames::listIsDescribedByItsState_data()
{
    addColumns<QString, QString>("text", "description");
    const auto addTexts = [](const char* name, const char* text, const char* description) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(description);
    };
    const char* const hint = "Enter a list of record numbers and/or ranges, separated by comma.\n"
                             "Example:  1,4-5,11-20,33";
    addTexts("nothing", "", hint);
    addTexts("number", "1", "The list is complete.");
    addTexts("comma", "1,", "The list is not complete yet.");
    addTexts("hyphen", "4-", "The list is not complete yet.");
    addTexts("range", "4-5", "The list is complete.");
    addTexts("from a host", "x", "The list is not complete yet.");
}

void tst_AccessibleNames::listIsDescribedByItsState()
{
    QFETCH(const QString, text);
    const std::unique_ptr<QWidget> records(newPrintPanel());
    part<QLineEdit>(*records, "recordListEdit")->setText(text);
    QTEST(descriptionOf(*records, "recordListEdit"), "description");
    const std::unique_ptr<QWidget> pages(newMultiPagePanel());
    part<QLineEdit>(*pages, "pageListEdit")->setText(QStringLiteral("2"));
    part<QLineEdit>(*pages, "pageListEdit")->setText(text);
    QTEST(descriptionOf(*pages, "pageListEdit"), "description");
}

void tst_AccessibleNames::previewIsDescribedByItsPicture()
{
    QuickPrintWidget panel(false, nullptr);
    QCOMPARE(accessiblePart(panel, "PreviewView")->role(), QAccessible::Graphic);
    panel.updateQuickPrint(QImage());
    QCOMPARE(descriptionOf(panel, "PreviewView"), QStringLiteral("No picture"));
    part<QWidget>(panel, "PreviewView")->resize(200, 200);
    panel.updateQuickPrint(QImage(400, 300, QImage::Format_RGB32));
    QCOMPARE(descriptionOf(panel, "PreviewView"), QStringLiteral("400 x 300 pixels, shown at 50%"));
}

void tst_AccessibleNames::descriptionOfThePreviewFollowsItsScale()
{
    PrintPreviewDialog popup(nullptr, Qt::FramelessWindowHint,
                             QImage(300, 100, QImage::Format_RGB32), QSizeF(), QSizeF(), true, true,
                             true, 1, 1, QString());
    part<QWidget>(popup, "PreviewView")->resize(300, 100);
    popup.updatePreview(QImage(300, 100, QImage::Format_RGB32), QSizeF(), QSizeF(), true, true,
                        true, 1, 1, QString());
    popup.zoomIn();
    QCOMPARE(descriptionOf(popup, "PreviewView"),
             QStringLiteral("300 x 100 pixels, shown at 110%"));
    popup.zoomFit();
    popup.zoomOut();
    QCOMPARE(descriptionOf(popup, "PreviewView"), QStringLiteral("300 x 100 pixels, shown at 91%"));
}

void tst_AccessibleNames::hostDescribesAPreviewInItsOwnWords()
{
    QuickPrintWidget panel(false, nullptr);
    auto* view = part<QWidget>(panel, "PreviewView");
    view->setAccessibleName(QStringLiteral("Label"));
    view->setAccessibleDescription(QStringLiteral("EYE WASH STATION"));
    QCOMPARE(accessibleName(accessiblePart(panel, "PreviewView")), QStringLiteral("Label"));
    QCOMPARE(descriptionOf(panel, "PreviewView"), QStringLiteral("EYE WASH STATION"));
}

QTEST_MAIN(tst_AccessibleNames)

#include "tst_accessiblenames.moc"
