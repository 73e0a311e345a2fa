// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "support/contrast.h"
#include "support/stricttest.h"

#include <printpanels/multipageprintdialog.h>
#include <printpanels/multipageprintwidget.h>
#include <printpanels/printwidget.h>

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

/** Panels in hosts that change their colours, or have several. */
class tst_HostPalettes : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void textsCanBeReadWhenTheApplicationChanges_data();
    void textsCanBeReadWhenTheApplicationChanges();
    void aWindowWithColorsOfItsOwnIsFollowed_data();
    void aWindowWithColorsOfItsOwnIsFollowed();
    void aPanelFollowsTheWindowThatItMovesTo();
    void aPanelInTheDialogIsLightAndLeavesItAsItCame();
    void whatAHostPutsIntoTheDialogIsLight();
    void aSheetOfTheHostWinsWhereItNamesColors();
    void theDialogKeepsItsColorsInADarkWindow();
    void partsAddedLaterHaveTheColors();

protected Q_SLOTS:
    void cleanup() override;

private:
    const QPalette m_original = QApplication::palette();
};

namespace {

QByteArray unreadable(QWidget* window)
{
    QList<TextContrast> contrasts = textContrasts(window);
    const QList<QComboBox*> combos = window->findChildren<QComboBox*>();
    for (QComboBox* combo : combos)
        contrasts += listContrasts(combo);
    const TextContrast least = leastContrast(contrasts);
    return !contrasts.isEmpty() && least.ratio >= readableContrast ? QByteArray()
                                                                   : description(least).toUtf8();
}

/** A window around @p panel whose colours are not those of the application. */
std::unique_ptr<QWidget> windowIn(const QPalette& palette, QWidget* panel)
{
    std::unique_ptr<QWidget> window(newWindowAround(panel));
    window->setPalette(palette);
    return window;
}

QLabel* caption(const QWidget* panel)
{
    return labelWithText(*panel, QStringLiteral("PRINT SETTINGS"));
}

QColor textColor(const QWidget* widget)
{
    return widget->palette().color(QPalette::Active, QPalette::WindowText);
}

} // namespace

void tst_HostPalettes::cleanup()
{
    deleteWidgetsLeft();
    qApp->setStyleSheet(QString());
    QApplication::setPalette(m_original);
}

void tst_HostPalettes::textsCanBeReadWhenTheApplicationChanges_data()
{
    addColumns<Create>("create");
    for (const PanelKind& kind : panelKinds())
        addRow(kind.name, kind.create);
}

// One after the other, in one panel that stays on the screen.
void tst_HostPalettes::textsCanBeReadWhenTheApplicationChanges()
{
    QFETCH(Create, create);
    const std::unique_ptr<QWidget> panel(create());
    QVERIFY(showPanel(*panel));
    const QString sheet = QStringLiteral("QWidget { font-size: 10pt }");
    const QString otherSheet = QStringLiteral("QToolTip { color: black }");

    QCOMPARE(unreadable(panel.get()), QByteArray());
    QApplication::setPalette(darkPalette());
    QCOMPARE(unreadable(panel.get()), QByteArray());
    qApp->setStyleSheet(sheet);
    QCOMPARE(unreadable(panel.get()), QByteArray());
    QApplication::setPalette(m_original);
    QCOMPARE(unreadable(panel.get()), QByteArray());
    qApp->setStyleSheet(otherSheet);
    QApplication::setPalette(darkPalette());
    QCOMPARE(unreadable(panel.get()), QByteArray());
    qApp->setStyleSheet(QString());
    QCOMPARE(unreadable(panel.get()), QByteArray());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Windows")));
    QApplication::setPalette(darkPalette());
    QCOMPARE(unreadable(panel.get()), QByteArray());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QCOMPARE(unreadable(panel.get()), QByteArray());
}

void tst_HostPalettes::aWindowWithColorsOfItsOwnIsFollowed_data()
{
    textsCanBeReadWhenTheApplicationChanges_data();
}

void tst_HostPalettes::aWindowWithColorsOfItsOwnIsFollowed()
{
    QFETCH(Create, create);
    const auto window = windowIn(darkPalette(), create());
    QVERIFY(showPanel(*window));
    QCOMPARE(unreadable(window.get()), QByteArray());
    window->setPalette(QPalette(Qt::white));
    QCOMPARE(unreadable(window.get()), QByteArray());
    window->setPalette(darkPalette());
    QCOMPARE(unreadable(window.get()), QByteArray());
    window->setPalette(QPalette());
    QCOMPARE(unreadable(window.get()), QByteArray());
}

void tst_HostPalettes::aPanelFollowsTheWindowThatItMovesTo()
{
    QWidget light;
    light.setPalette(QPalette(QColor(Qt::white)));
    QWidget dark;
    dark.setPalette(darkPalette());
    auto* lightLayout = new QVBoxLayout(&light);
    auto* darkLayout = new QVBoxLayout(&dark);
    QWidget* panel = newPrintPanel();
    for (int i = 0; i < 2; ++i) {
        darkLayout->addWidget(panel);
        QVERIFY(showPanel(dark));
        QCOMPARE(unreadable(&dark), QByteArray());
        QCOMPARE(textColor(caption(panel)), QColor(Qt::white));
        lightLayout->addWidget(panel);
        QVERIFY(showPanel(light));
        QCOMPARE(unreadable(&light), QByteArray());
        QCOMPARE(textColor(caption(panel)), QColor(Qt::black));
    }
}

void tst_HostPalettes::aPanelInTheDialogIsLightAndLeavesItAsItCame()
{
    QApplication::setPalette(darkPalette());
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    QWidget* panel = newMultiPagePanel();
    const QPalette before = caption(panel)->palette();
    {
        MultiPagePrintDialog dialog(panel, nullptr, Qt::FramelessWindowHint);
        QVERIFY(showPanel(dialog));
        QCOMPARE(textColor(caption(panel)).name(), QStringLiteral("#060606"));
        QCOMPARE(unreadable(&dialog), QByteArray());
        layout->addWidget(panel);
    }
    QVERIFY(showPanel(window));
    QCOMPARE(caption(panel)->palette(), before);
    QCOMPARE(unreadable(&window), QByteArray());
}

void tst_HostPalettes::whatAHostPutsIntoTheDialogIsLight()
{
    QApplication::setPalette(darkPalette());
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->addWidget(new QLabel(QStringLiteral("A host's caption")));
    layout->addWidget(newMultiPagePanel());
    {
        MultiPagePrintDialog dialog(panel, nullptr, Qt::FramelessWindowHint);
        QVERIFY(showPanel(dialog));
        QCOMPARE(unreadable(&dialog), QByteArray());
        panel->setParent(nullptr);
    }
    QVERIFY(showPanel(*panel));
    QCOMPARE(textColor(layout->itemAt(0)->widget()), QColor(Qt::white));
    QCOMPARE(unreadable(panel), QByteArray());
    delete panel;
}

void tst_HostPalettes::aSheetOfTheHostWinsWhereItNamesColors()
{
    const QColor named(0x00, 0x18, 0xa8);
    QApplication::setPalette(darkPalette());
    const std::unique_ptr<QWidget> dialog(newMultiPageDialog());
    QVERIFY(showPanel(*dialog));
    for (int i = 0; i < 2; ++i) {
        qApp->setStyleSheet(QStringLiteral("QLabel, QLineEdit { color: %1 }").arg(named.name()));
        QCOMPARE(textContrast(dialog.get(), caption(dialog.get())).text, named);
        const TextContrast copies =
            textContrast(dialog.get(), part<QLineEdit>(*dialog, "copiesEdit"));
        QCOMPARE(copies.text, named);
        QCOMPARE(copies.ground.name(), QStringLiteral("#ffffff"));
        qApp->setStyleSheet(QString());
        QCOMPARE(textContrast(dialog.get(), caption(dialog.get())).text.name(),
                 QStringLiteral("#060606"));
    }
}

void tst_HostPalettes::theDialogKeepsItsColorsInADarkWindow()
{
    QWidget window;
    window.setPalette(darkPalette());
    MultiPagePrintDialog dialog(newMultiPagePanel(), &window, Qt::FramelessWindowHint);
    QVERIFY(showPanel(window));
    QVERIFY(showPanel(dialog));
    QCOMPARE(unreadable(&dialog), QByteArray());
}

void tst_HostPalettes::partsAddedLaterHaveTheColors()
{
    auto* panel = new PrintWidget(false, nullptr);
    const auto window = windowIn(darkPalette(), panel);
    QVERIFY(showPanel(*window));
    panel->showSupplyInfo({QStringLiteral("#000000"), QStringLiteral("#ffffff")}, false, 4.0, 0,
                          true);
    panel->setModule(JxModuleInfo::PipeMarking);
    panel->setVisibleAmmoniaTag(15);
    QCOMPARE(unreadable(window.get()), QByteArray());
    const auto* tabs = part<QWidget>(*panel, "colorTabBar");
    QCOMPARE(textColor(tabs).name(), QStringLiteral("#060606"));
    QCOMPARE(textColor(part<QWidget>(*panel, "stackGroup")).name(), QStringLiteral("#060606"));
    QCOMPARE(textColor(part<QWidget>(*panel, "ribbon1Menu")).name(), QStringLiteral("#060606"));
}

QTEST_MAIN(tst_HostPalettes)
#include "tst_hostpalettes.moc"
