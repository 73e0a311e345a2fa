// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "support/contrast.h"
#include "support/stricttest.h"

#include <QtGui/QPalette>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>

#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

/** Whether texts can be read in light and dark hosts, measured on what the panels paint. */
class tst_Contrast : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheRatiosOfTheFormula();
    void everyTextCanBeRead_data();
    void everyTextCanBeRead();
    void everyTextCanBeReadUnderTheMouse_data();
    void everyTextCanBeReadUnderTheMouse();
    void selectedTextCanBeRead_data();
    void selectedTextCanBeRead();
    void examplesInEditsCanBeRead_data();
    void examplesInEditsCanBeRead();
    void listsOfCombosCanBeRead_data();
    void listsOfCombosCanBeRead();
    void disabledEditsLookDisabled_data();
    void disabledEditsLookDisabled();
    void disabledCombosLookDisabled_data();
    void disabledCombosLookDisabled();

protected Q_SLOTS:
    void cleanup() override;

private:
    void addRows();
    std::unique_ptr<QWidget> shownPanel();
    const QPalette m_original = QApplication::palette();
};

namespace {

struct Host
{
    const char* name;
    QPalette palette;
    QString sheet;
};

/** Applications as they are found. */
QList<Host> hosts()
{
    QPalette careless(Qt::black);
    careless.setColor(QPalette::Base, Qt::black);
    careless.setColor(QPalette::Text, Qt::white);
    QPalette light(QColor(0xf2, 0xf2, 0xf2));
    light.setColor(QPalette::Base, Qt::white);
    const QString fontSheet = QStringLiteral("QWidget { font-size: 10pt }");
    return {
        {"default", QPalette(), QString()},       {"light", light, QString()},
        {"dark", darkPalette(), QString()},       {"careless dark", careless, QString()},
        {"light with a sheet", light, fontSheet}, {"dark with a sheet", darkPalette(), fontSheet}};
}

/** All that cannot be read, one line each; empty if all can. */
QByteArray unreadable(const QList<TextContrast>& contrasts)
{
    QStringList lines;
    for (const TextContrast& contrast : contrasts) {
        if (contrast.ratio < readableContrast)
            lines.append(description(contrast));
    }
    return lines.join(u'\n').toUtf8();
}

QList<QWidget*> editsOf(const QWidget& panel)
{
    QList<QWidget*> edits;
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
    for (QWidget* child : children) {
        const bool isInside = qobject_cast<QAbstractSpinBox*>(child->parentWidget()) != nullptr;
        if (qobject_cast<QAbstractSpinBox*>(child) != nullptr ||
            (qobject_cast<QLineEdit*>(child) != nullptr && !isInside))
            edits.append(child);
    }
    return edits;
}

QLineEdit* lineEditOf(QWidget* edit)
{
    auto* lineEdit = qobject_cast<QLineEdit*>(edit);
    return lineEdit ? lineEdit : edit->findChild<QLineEdit*>();
}

} // namespace

void tst_Contrast::cleanup()
{
    deleteWidgetsLeft();
    qApp->setStyleSheet(QString());
    QApplication::setPalette(m_original);
}

void tst_Contrast::addRows()
{
    addColumns<Create, QPalette, QString>("create", "palette", "sheet");
    for (const PanelKind& kind : panelKinds()) {
        for (const Host& host : hosts()) {
            const QByteArray name = QByteArray(kind.name) + ", " + host.name;
            addRow(name.constData(), kind.create, host.palette, host.sheet);
        }
    }
}

std::unique_ptr<QWidget> tst_Contrast::shownPanel()
{
    QFETCH(Create, create);
    QFETCH(QPalette, palette);
    QFETCH(QString, sheet);
    if (palette != QPalette())
        QApplication::setPalette(palette);
    qApp->setStyleSheet(sheet);
    std::unique_ptr<QWidget> panel(create());
    return showActive(*panel) ? std::move(panel) : nullptr;
}

void tst_Contrast::knowsTheRatiosOfTheFormula()
{
    QCOMPARE(contrastRatio(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrastRatio(Qt::white, Qt::white), 1.0);
    QCOMPARE(qRound(100 * contrastRatio(QColor(0x77, 0x77, 0x77), Qt::white)), 448);
    QCOMPARE(qRound(100 * contrastRatio(Qt::white, QColor(0xf2, 0xf2, 0xf2))), 112);
    QCOMPARE(qRound(10 * contrastRatio(QColor(0x06, 0x06, 0x06), QColor(0xfd, 0x78, 0x00))), 76);
}

void tst_Contrast::everyTextCanBeRead_data()
{
    addRows();
}

void tst_Contrast::everyTextCanBeRead()
{
    const auto panel = shownPanel();
    QVERIFY(panel);
    const QList<TextContrast> contrasts = textContrasts(panel.get());
    QVERIFY(!contrasts.isEmpty());
    QCOMPARE(unreadable(contrasts), QByteArray());
}

void tst_Contrast::everyTextCanBeReadUnderTheMouse_data()
{
    addRows();
}

void tst_Contrast::everyTextCanBeReadUnderTheMouse()
{
    const auto panel = shownPanel();
    QVERIFY(panel);
    const QList<QWidget*> children = panel->findChildren<QWidget*>();
    for (QWidget* control : children) {
        if (!control->isVisible() || !control->isEnabled() || textPlace(control).isEmpty())
            continue;
        QTest::mouseMove(panel->windowHandle(),
                         control->mapTo(panel.get(), textPlace(control).center()));
        QCOMPARE(unreadable({textContrast(panel.get(), control)}), QByteArray());
    }
}

void tst_Contrast::selectedTextCanBeRead_data()
{
    addRows();
}

void tst_Contrast::selectedTextCanBeRead()
{
    const auto panel = shownPanel();
    QVERIFY(panel);
    const QList<QWidget*> edits = editsOf(*panel);
    for (QWidget* edit : edits) {
        edit->setEnabled(true);
        QLineEdit* lineEdit = lineEditOf(edit);
        lineEdit->setText(QStringLiteral("1"));
        lineEdit->setFocus();
        lineEdit->selectAll();
        QVERIFY(lineEdit->hasFocus());
        const QColor selection = lineEdit->palette().color(QPalette::Active, QPalette::Highlight);
        // Where the selection is, which is narrower than the edit.
        const QImage picture = lineEdit->grab().toImage();
        QRect place;
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if (picture.pixelColor(x, y).rgb() == selection.rgb())
                    place |= QRect(x, y, 1, 1);
            }
        }
        QVERIFY(!place.isEmpty());
        QCOMPARE(unreadable({contrastIn(picture, place, edit->objectName())}), QByteArray());
    }
}

void tst_Contrast::examplesInEditsCanBeRead_data()
{
    addRows();
}

void tst_Contrast::examplesInEditsCanBeRead()
{
    const auto panel = shownPanel();
    QVERIFY(panel);
    const QList<QWidget*> edits = editsOf(*panel);
    for (QWidget* edit : edits) {
        if (lineEditOf(edit)->placeholderText().isEmpty())
            continue;
        edit->setEnabled(true);
        QCOMPARE(unreadable({textContrast(panel.get(), edit)}), QByteArray());
    }
}

void tst_Contrast::listsOfCombosCanBeRead_data()
{
    addRows();
}

void tst_Contrast::listsOfCombosCanBeRead()
{
    const auto panel = shownPanel();
    QVERIFY(panel);
    const QList<QComboBox*> combos = panel->findChildren<QComboBox*>();
    for (QComboBox* combo : combos) {
        const QList<TextContrast> items = listContrasts(combo);
        QVERIFY(items.size() > 1);
        QCOMPARE(unreadable(items), QByteArray());
        const QPalette palette = combo->view()->palette();
        QCOMPARE(palette.color(QPalette::HighlightedText).name(), QStringLiteral("#060606"));
        QCOMPARE(palette.color(QPalette::Highlight).name(), QStringLiteral("#fd7800"));
        // On the screen the edges of letters are paler, and a style may paint a gradient.
        QVERIFY2(items.constFirst().ratio > 6, description(items.constFirst()).toUtf8());
        QVERIFY2(qAbs(items.constFirst().ground.hue() - palette.highlight().color().hue()) < 3,
                 description(items.constFirst()).toUtf8());
        QCOMPARE(items.constLast().text.name(), QStringLiteral("#060606"));
        QCOMPARE(items.constLast().ground.name(), QStringLiteral("#ffffff"));
    }
}

void tst_Contrast::disabledEditsLookDisabled_data()
{
    addRows();
}

void tst_Contrast::disabledEditsLookDisabled()
{
    const auto panel = shownPanel();
    QVERIFY(panel);
    const QList<QWidget*> edits = editsOf(*panel);
    for (QWidget* edit : edits) {
        lineEditOf(edit)->setText(QStringLiteral("123"));
        edit->setEnabled(true);
        const TextContrast enabled = textContrast(panel.get(), edit);
        edit->setEnabled(false);
        const TextContrast disabled = textContrast(panel.get(), edit);
        QVERIFY2(disabled.ground != enabled.ground, description(disabled).toUtf8());
        QVERIFY2(disabled.text != enabled.text, description(disabled).toUtf8());
        QVERIFY2(disabled.ratio < enabled.ratio, description(disabled).toUtf8());
        // Pale, but there.
        QVERIFY2(disabled.ratio > 1.5, description(disabled).toUtf8());
    }
}

void tst_Contrast::disabledCombosLookDisabled_data()
{
    addRows();
}

void tst_Contrast::disabledCombosLookDisabled()
{
    const auto panel = shownPanel();
    QVERIFY(panel);
    const QList<QComboBox*> combos = panel->findChildren<QComboBox*>();
    for (QComboBox* combo : combos) {
        combo->setEnabled(false);
        const TextContrast disabled = textContrast(panel.get(), combo);
        QCOMPARE(disabled.ground.name(), QStringLiteral("#ffffff"));
        QCOMPARE(disabled.text.name(), QStringLiteral("#848484"));
    }
}

QTEST_MAIN(tst_Contrast)
#include "tst_contrast.moc"
