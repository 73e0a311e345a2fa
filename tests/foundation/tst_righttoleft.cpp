// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "livepanel.h"
#include "support/stricttest.h"

#include <printpanels/printpreviewdialog.h>
#include <printpanels/printwidget.h>
#include <printpanels/quickprintwidget.h>

#include <QtCore/QTranslator>
#include <QtGui/QImage>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>

#include <algorithm>
#include <memory>

using Create = QWidget* (*)();
Q_DECLARE_METATYPE(Create)

/** The panels in layouts from right to left, with texts of either direction. */
class tst_RightToLeft : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsMirrored_data();
    void everythingIsMirrored();
    void everythingIsMirroredWhileItIsShown_data();
    void everythingIsMirroredWhileItIsShown();
    void textsStandAtTheStartOfTheLine_data();
    void textsStandAtTheStartOfTheLine();
    void theTitleKeepsItsMargin_data();
    void theTitleKeepsItsMargin();
    void hostTextsReadInTheirOwnDirection_data();
    void hostTextsReadInTheirOwnDirection();
    void theEndOfALongHostTextIsLeftOut_data();
    void theEndOfALongHostTextIsLeftOut();
    void optionsKeepTheirColonAtTheEnd();
    void printerNamesReadInTheirOwnDirection_data();
    void printerNamesReadInTheirOwnDirection();
    void numbersStayTogetherInTranslations();

protected Q_SLOTS:
    void cleanup() override;
};

namespace {

const QString hebrew = QStringLiteral("\u05e7\u05d5\u05de\u05d4"); // "floor"

/** Translates all letters into letters of Hebrew, and nothing else. */
class HebrewLetters : public QTranslator
{
public:
    HebrewLetters() { QCoreApplication::installTranslator(this); }

    QString translate(const char*, const char* text, const char*, int) const override
    {
        QString translation = QString::fromUtf8(text);
        bool marker = false;
        for (QChar& character : translation) {
            if (character.isLetter() && !marker && character != u'X')
                character = QChar(u'\u05d0' + character.unicode() % 22);
            marker = character == u'%';
        }
        return translation;
    }
    bool isEmpty() const override { return false; }
};

/** What is painted in a place, on a ground of another colour. */
struct Ink
{
    /** The ends, in pixels from the left of the place; -1 without any. */
    int left = -1;
    int right = -1;
    /** Whether the text has a letter there and not a dot, a colon or an ellipsis. */
    bool letterAtLeft = false;
    bool letterAtRight = false;
    /** Pixels in a column there. */
    int heightAtLeft = 0;
};

/** The ink in @p place of @p control, as it is on the screen. */
Ink inkOf(const QWidget* control, const QRect& place)
{
    constexpr int stem = 3;
    const QPoint corner = control->mapTo(control->window(), place.topLeft());
    const QImage picture = control->window()
                               ->grab(QRect(corner, place.size()))
                               .toImage()
                               .convertToFormat(QImage::Format_Grayscale8);
    const int ground = qGray(picture.pixel(picture.width() / 2, 0));
    const auto isInk = [&](int x, int y) {
        return qAbs(qGray(picture.pixel(x, y)) - ground) >= 100;
    };
    const auto topOfColumn = [&](int x) {
        int y = 0;
        while (y < picture.height() && !isInk(x, y))
            ++y;
        return y;
    };
    QList<int> tops;
    Ink ink;
    for (int x = 0; x < picture.width(); ++x) {
        tops.append(topOfColumn(x));
        if (tops.constLast() < picture.height()) {
            ink.left = ink.left < 0 ? x : ink.left;
            ink.right = x;
        }
    }
    if (ink.right - ink.left < stem)
        return ink;
    const int top = *std::min_element(tops.cbegin(), tops.cend());
    const auto isLetter = [&](int first) {
        const auto begin = tops.cbegin() + first;
        return *std::min_element(begin, begin + stem) <= top + 4;
    };
    ink.letterAtLeft = isLetter(ink.left);
    for (int x = ink.left; x < ink.left + 2; ++x) {
        int height = 0;
        for (int y = 0; y < picture.height(); ++y)
            height += isInk(x, y) ? 1 : 0;
        ink.heightAtLeft = qMax(ink.heightAtLeft, height);
    }
    ink.letterAtRight = isLetter(ink.right - stem + 1);
    return ink;
}

Ink inkOf(const QWidget* control)
{
    return inkOf(control, control->rect());
}

struct Place
{
    QString name;
    QRect rect;
};

/** The widgets of @p panel with their places as they are, or mirrored within their parents. */
QList<Place> places(const QWidget& panel, bool mirrored)
{
    QList<Place> result;
    const QList<QWidget*> children = panel.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        // The edit of a spin box is placed by the style.
        const QWidget* parent = child->parentWidget();
        const bool isPart = qobject_cast<const QAbstractSpinBox*>(parent) != nullptr;
        if (!child->isVisible() || child->isWindow() || isPart)
            continue;
        QRect rect = child->geometry();
        if (mirrored)
            rect.moveLeft(parent->width() - rect.x() - rect.width());
        const QString kind = QString::fromLatin1(child->metaObject()->className());
        result.append({kind + u' ' + child->objectName(), rect});
    }
    return result;
}

/**
 * For failure messages: where two lists of widgets differ. What is in the middle of an odd width is
 * a pixel off to one side.
 */
QByteArray differences(const QList<Place>& actual, const QList<Place>& expected)
{
    QByteArray lines;
    for (qsizetype i = 0; i < qMax(actual.size(), expected.size()); ++i) {
        const Place a = actual.value(i);
        const Place b = expected.value(i);
        const bool isNear = a.rect.size() == b.rect.size() && a.rect.y() == b.rect.y() &&
                            qAbs(a.rect.x() - b.rect.x()) <= 1;
        if (a.name != b.name || !isNear)
            lines += QStringLiteral("%1 at %2 instead of %3 at %4\n")
                         .arg(a.name)
                         .arg(a.rect.x())
                         .arg(b.name)
                         .arg(b.rect.x())
                         .toUtf8();
    }
    return lines;
}

void addPanels()
{
    addColumns<Create>("create");
    for (const PanelKind& kind : panelKinds())
        addRow(kind.name, kind.create);
}

} // namespace

void tst_RightToLeft::cleanup()
{
    deleteWidgetsLeft();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_RightToLeft::everythingIsMirrored_data()
{
    addPanels();
}

void tst_RightToLeft::everythingIsMirrored()
{
    QFETCH(Create, create);
    QList<Place> plain;
    {
        const std::unique_ptr<QWidget> panel(create());
        QVERIFY(showPanel(*panel));
        plain = places(*panel, false);
        QVERIFY(plain.size() > 5);
    }
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const std::unique_ptr<QWidget> panel(create());
    QVERIFY(showPanel(*panel));
    QCOMPARE(differences(places(*panel, true), plain), QByteArray());
}

void tst_RightToLeft::everythingIsMirroredWhileItIsShown_data()
{
    addPanels();
}

void tst_RightToLeft::everythingIsMirroredWhileItIsShown()
{
    QFETCH(Create, create);
    const std::unique_ptr<QWidget> panel(create());
    QVERIFY(showPanel(*panel));
    const QList<Place> before = places(*panel, false);
    const QImage picture = panel->grab().toImage();
    panel->setLayoutDirection(Qt::RightToLeft);
    QTRY_COMPARE(differences(places(*panel, true), before), QByteArray());
    panel->setLayoutDirection(Qt::LeftToRight);
    QTRY_COMPARE(differences(places(*panel, false), before), QByteArray());
    QTRY_COMPARE(panel->grab().toImage(), picture);
}

void tst_RightToLeft::textsStandAtTheStartOfTheLine_data()
{
    addPanels();
}

// Captions and values, also those that are wider than their texts.
void tst_RightToLeft::textsStandAtTheStartOfTheLine()
{
    QFETCH(Create, create);
    constexpr int nearby = 12;
    const std::unique_ptr<QWidget> panel(create());
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        panel->setLayoutDirection(direction);
        QVERIFY(showPanel(*panel));
        const QList<QWidget*> children = panel->findChildren<QWidget*>();
        for (const QWidget* child : children) {
            const auto* label = qobject_cast<const QLabel*>(child);
            const auto* edit = qobject_cast<const QLineEdit*>(child);
            const QString text = label ? label->text() : (edit ? edit->text() : QString());
            // The cursor in an edit is no text.
            if (text.isEmpty() || !child->isVisible() || !child->isEnabled() || child->hasFocus())
                continue;
            const QRect inside = child->rect().adjusted(edit ? 2 : 0, 3, edit ? -2 : 0, -3);
            const Ink ink = inkOf(child, inside);
            QVERIFY2(ink.left >= 0, qPrintable(text));
            const int gap = direction == Qt::LeftToRight ? ink.left : child->width() - ink.right;
            QVERIFY2(gap <= nearby, qPrintable(text));
        }
    }
}

void tst_RightToLeft::theTitleKeepsItsMargin_data()
{
    addColumns<Create>("create");
    addRow("multi-page dialog", Create(newMultiPageDialog));
    addRow("preview popup", Create(newPreviewPopup));
}

void tst_RightToLeft::theTitleKeepsItsMargin()
{
    QFETCH(Create, create);
    const std::unique_ptr<QWidget> window(create());
    QVERIFY(showPanel(*window));
    const auto* close = part<QWidget>(*window, "CloseButton");
    QWidget* titleBar = close->parentWidget();
    const auto* title = titleBar->findChild<QLabel*>();
    const int margin = title->x();
    const int closeMargin = titleBar->width() - close->geometry().right();
    QVERIFY(margin > closeMargin);
    window->setLayoutDirection(Qt::RightToLeft);
    QTRY_COMPARE(titleBar->width() - title->x() - title->width(), margin);
    QCOMPARE(close->x() + 1, closeMargin);
    const Ink ink = inkOf(title);
    QVERIFY(title->width() - ink.right < 5);
}

void tst_RightToLeft::hostTextsReadInTheirOwnDirection_data()
{
    addColumns<QString, bool>("text", "endsAtLeft");
    addRow("from left to right", QStringLiteral("Hall 7 ..."), false);
    addRow("from right to left", hebrew + QStringLiteral(" 7 ..."), true);
}

// Each at the start of its line, and with its full stops where it ends itself.
void tst_RightToLeft::hostTextsReadInTheirOwnDirection()
{
    QFETCH(QString, text);
    QFETCH(bool, endsAtLeft);
    PrintWidget panel(false, nullptr);
    QuickPrintWidget quickPanel(true, nullptr);
    panel.updatePrinterLocation(text);
    quickPanel.setCurrentPrinterName(text);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        panel.setLayoutDirection(direction);
        quickPanel.setLayoutDirection(direction);
        QVERIFY(showPanel(panel));
        QVERIFY(showPanel(quickPanel));
        const QList<QLabel*> labels = {part<QLabel>(panel, "locationLabel"),
                                       part<QLabel>(quickPanel, "printerNameLabel")};
        for (const QLabel* label : labels) {
            const Ink ink = inkOf(label);
            QCOMPARE(ink.letterAtLeft, !endsAtLeft);
            QCOMPARE(ink.letterAtRight, endsAtLeft);
            const bool fromLeft = direction == Qt::LeftToRight;
            QVERIFY((fromLeft ? ink.left : label->width() - ink.right) < 5);
        }
    }
}

void tst_RightToLeft::theEndOfALongHostTextIsLeftOut_data()
{
    addColumns<QString>("text");
    addRow("from left to right", QStringLiteral("Hall "));
    addRow("from right to left", hebrew + u' ');
}

// Texts that differ only in what is left out look the same; others do not.
void tst_RightToLeft::theEndOfALongHostTextIsLeftOut()
{
    QFETCH(QString, text);
    const QString start = text.repeated(30);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        PrintWidget panel(false, nullptr);
        QuickPrintWidget quickPanel(true, nullptr);
        panel.setLayoutDirection(direction);
        quickPanel.setLayoutDirection(direction);
        QVERIFY(showPanel(panel));
        QVERIFY(showPanel(quickPanel));
        const auto picture = [&](const QString& shown) {
            panel.updatePrinterLocation(shown);
            quickPanel.setCurrentPrinterName(shown.repeated(3));
            QCoreApplication::processEvents();
            return part<QLabel>(panel, "locationLabel")->grab().toImage();
        };
        const QImage beginning = picture(start + QStringLiteral("1"));
        QCOMPARE(picture(start + QStringLiteral("2")), beginning);
        QVERIFY(picture(QStringLiteral("7 ") + start) != beginning);
    }
}

void tst_RightToLeft::optionsKeepTheirColonAtTheEnd()
{
    PrintWidget panel(false, nullptr);
    const auto* radio = part<QRadioButton>(panel, "recordListRadio");
    constexpr int indicator = 30;
    // The stem of the "R" is taller than a colon.
    constexpr int stem = 9;
    QVERIFY(showPanel(panel));
    QVERIFY(inkOf(radio, radio->rect().adjusted(indicator, 0, 0, 0)).heightAtLeft >= stem);
    // Some styles go by the application.
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QVERIFY(showPanel(panel));
    QVERIFY(inkOf(radio, radio->rect().adjusted(0, 0, -indicator, 0)).heightAtLeft >= stem);
    QCOMPARE(radio->text(), QStringLiteral("Range or List of Records:"));
}

void tst_RightToLeft::printerNamesReadInTheirOwnDirection_data()
{
    hostTextsReadInTheirOwnDirection_data();
}

// In the combo box and in its list.
void tst_RightToLeft::printerNamesReadInTheirOwnDirection()
{
    QFETCH(QString, text);
    QFETCH(bool, endsAtLeft);
    PrintWidget panel(false, nullptr);
    panel.updateListOfPrinters({text, QStringLiteral("Alpha")}, 0);
    auto* combo = part<QComboBox>(panel, "PrinterListCombo");
    constexpr int arrow = 40;
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const bool fromLeft = direction == Qt::LeftToRight;
        panel.setLayoutDirection(direction);
        QVERIFY(showPanel(panel));
        const QRect name =
            combo->rect().adjusted(fromLeft ? 3 : arrow, 3, fromLeft ? -arrow : -3, -3);
        QCOMPARE(inkOf(combo, name).letterAtLeft, !endsAtLeft);
        QCOMPARE(inkOf(combo, name).letterAtRight, endsAtLeft);
        combo->showPopup();
        const QAbstractItemView* view = combo->view();
        QVERIFY(QTest::qWaitForWindowExposed(view->window()));
        const QRect item = view->visualRect(combo->model()->index(0, 0)).adjusted(3, 3, -3, -3);
        QCOMPARE(inkOf(view->viewport(), item).letterAtLeft, !endsAtLeft);
        QCOMPARE(inkOf(view->viewport(), item).letterAtRight, endsAtLeft);
        combo->hidePopup();
        QCOMPARE(panel.getSelectedPrinter(), text);
    }
}

// Marks around the numbers keep "1,4-5" and the sizes as they are typed and written.
void tst_RightToLeft::numbersStayTogetherInTranslations()
{
    const QChar open(u'\u2066');
    const QChar close(u'\u2069');
    const HebrewLetters translator;
    PrintWidget panel(false, nullptr);
    const auto* edit = part<QLineEdit>(panel, "recordListEdit");
    const QString list = QStringLiteral("1,4-5,11-20,33");
    QVERIFY(edit->placeholderText().trimmed().isRightToLeft());
    QVERIFY(edit->placeholderText().endsWith(open + list + close));
    QVERIFY(edit->toolTip().endsWith(open + list + close));
    PrintPreviewDialog popup(nullptr, Qt::FramelessWindowHint, QImage(), QSizeF(4, 2), QSizeF(4, 2),
                             true, true, false, 1, 1, QString());
    const auto* title = part<QWidget>(popup, "CloseButton")->parentWidget()->findChild<QLabel*>();
    QVERIFY(title->text().isRightToLeft());
    QVERIFY(title->text().contains(open + QStringLiteral("4.00") + close));
    QVERIFY(title->text().contains(open + QStringLiteral("2.00") + close));
}

QTEST_MAIN(tst_RightToLeft)
#include "tst_righttoleft.moc"
