// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/fittedfont.h"
#include "support/stricttest.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

using PrintPanels::FittedFont;
using PrintPanels::fitText;
using PrintPanels::TextLine;

namespace {

constexpr int width = 200;
constexpr int size = 20;

using Factory = QWidget* (*)(const QString&);

template <typename Control>
QWidget* create(const QString& text)
{
    return new Control(text);
}

QWidget* createEdit(const QString& text)
{
    auto* edit = new QLineEdit;
    edit->setPlaceholderText(text);
    return edit;
}

/** A control in a window, in which it has @p width pixels. */
struct Place
{
    explicit Place(Factory create, const QString& text, int pixelSize = size)
        : control(create(text))
    {
        QFont font;
        font.setPixelSize(pixelSize);
        control->setFont(font);
        control->setParent(&window);
        fitText(control, width);
        window.show();
    }

    QWidget window;
    QWidget* control;
};

// What the style asks for; an edit's hint has nothing to do with its placeholder.
int neededWidth(const QWidget* control)
{
    if (const auto* edit = qobject_cast<const QLineEdit*>(control))
        return edit->fontMetrics().horizontalAdvance(edit->placeholderText()) + 8;
    return control->sizeHint().width();
}

const QString shortText = QStringLiteral("Short");
const QString longText = QStringLiteral("Longer than English is");
const QString endlessText = QString(200, u'W');

} // namespace

class tst_FittedFont : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void textThatFitsKeepsItsFont_data();
    void textThatFitsKeepsItsFont();
    void textThatIsTooWideHasTheLargestFontThatFits_data();
    void textThatIsTooWideHasTheLargestFontThatFits();
    void fontStaysReadable();
    void pointSizesAreReducedToo();
    void boldFontOfASheetCounts();
    void controlsOfALineShareItsWidth();
    void gapsOfALayoutCount();
    void linesShareTheirSize();
    void largerFontIsReducedAgain();
    void smallerFontIsKept();
    void anotherFamilyKeepsTheSizeToComeBackTo();
    void changedSheetIsFollowed();
    void sizeOfASheetIsLeftAlone();
    void deletedControlsNeedNothing();
};

void tst_FittedFont::textThatFitsKeepsItsFont_data()
{
    QTest::addColumn<Factory>("create");
    addRow("label", Factory(create<QLabel>));
    addRow("push button", Factory(create<QPushButton>));
    addRow("check box", Factory(create<QCheckBox>));
    addRow("radio button", Factory(create<QRadioButton>));
    addRow("edit", Factory(createEdit));
}

void tst_FittedFont::textThatFitsKeepsItsFont()
{
    QFETCH(const Factory, create);
    const Place place(create, shortText);
    QFont own;
    own.setPixelSize(size);
    QCOMPARE(place.control->font(), own);
    QCOMPARE(place.control->font().resolveMask(), own.resolveMask());
}

void tst_FittedFont::textThatIsTooWideHasTheLargestFontThatFits_data()
{
    textThatFitsKeepsItsFont_data();
}

void tst_FittedFont::textThatIsTooWideHasTheLargestFontThatFits()
{
    QFETCH(const Factory, create);
    const Place place(create, longText);
    const int reduced = place.control->font().pixelSize();
    QVERIFY(reduced < size);
    QVERIFY(neededWidth(place.control) <= width);
    const Place larger(create, longText, reduced);
    QCOMPARE(larger.control->font().pixelSize(), reduced);
    std::unique_ptr<QWidget> tooLarge(create(longText));
    QFont font;
    font.setPixelSize(reduced + 1);
    tooLarge->setFont(font);
    QVERIFY(neededWidth(tooLarge.get()) > width);
}

void tst_FittedFont::fontStaysReadable()
{
    const Place place(create<QLabel>, endlessText);
    QCOMPARE(place.control->font().pixelSize(), 9);
    const Place tiny(create<QLabel>, endlessText, 5);
    QCOMPARE(tiny.control->font().pixelSize(), 5);
    const Place huge(create<QLabel>, shortText, 3000);
    QVERIFY(huge.control->font().pixelSize() <= 100);
    QVERIFY(neededWidth(huge.control) <= width);
}

void tst_FittedFont::pointSizesAreReducedToo()
{
    QLabel label(longText);
    QFont font;
    font.setPointSizeF(15.5);
    label.setFont(font);
    fitText(&label, width);
    label.show();
    QVERIFY(neededWidth(&label) <= width);
    // With room for it, the size is exactly the given one again.
    label.setText(shortText);
    label.hide();
    label.show();
    QCOMPARE(label.font().pointSizeF(), 15.5);
    QCOMPARE(label.font().pixelSize(), -1);
}

void tst_FittedFont::boldFontOfASheetCounts()
{
    QWidget window;
    window.setStyleSheet(QStringLiteral("QPushButton { font: bold; border: 1px solid red; }"));
    const QString text = QStringLiteral("Just wide enough");
    auto* button = new QPushButton(text, &window);
    QFont font;
    font.setPixelSize(size);
    button->setFont(font);
    QFont bold = font;
    bold.setBold(true);
    const int plainWidth = QFontMetrics(font).horizontalAdvance(text) + 4;
    QVERIFY(QFontMetrics(bold).horizontalAdvance(text) > plainWidth);
    fitText(button, plainWidth);
    window.show();
    QVERIFY(button->font().bold());
    QVERIFY(button->font().pixelSize() < size);
    QVERIFY(neededWidth(button) <= plainWidth);
}

void tst_FittedFont::controlsOfALineShareItsWidth()
{
    QWidget window;
    QFont font;
    font.setPixelSize(size);
    window.setFont(font);
    auto* one = new QCheckBox(shortText, &window);
    auto* other = new QPushButton(longText, &window);
    const int needed = neededWidth(one) + neededWidth(other);
    new FittedFont({TextLine{{one, other}, needed, 0}});
    window.show();
    QCOMPARE(one->font().pixelSize(), size);
    QCOMPARE(other->font().pixelSize(), size);

    auto* third = new QCheckBox(shortText, &window);
    auto* fourth = new QPushButton(longText, &window);
    new FittedFont({TextLine{{third, fourth}, needed - 10, 0}});
    third->show();
    fourth->show();
    QVERIFY(third->font().pixelSize() < size);
    QCOMPARE(fourth->font().pixelSize(), third->font().pixelSize());
    QVERIFY(neededWidth(third) + neededWidth(fourth) <= needed - 10);
}

void tst_FittedFont::gapsOfALayoutCount()
{
    QWidget window;
    QFont font;
    font.setPixelSize(size);
    window.setFont(font);
    auto* layout = new QHBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < 3; ++i)
        layout->addWidget(new QLabel(shortText));
    QList<QWidget*> labels;
    for (int i = 0; i < 3; ++i)
        labels.append(layout->itemAt(i)->widget());
    const int enough = layout->sizeHint().width();
    new FittedFont({TextLine{labels, enough, 2}});
    window.show();
    QCOMPARE(labels.first()->font().pixelSize(), size);

    QWidget narrow;
    narrow.setFont(font);
    auto* label = new QLabel(shortText, &narrow);
    new FittedFont({TextLine{{label}, neededWidth(label) + layout->spacing() - 1, 1}});
    narrow.show();
    QVERIFY(layout->spacing() > 0);
    QVERIFY(label->font().pixelSize() < size);
}

void tst_FittedFont::linesShareTheirSize()
{
    QWidget window;
    QFont font;
    font.setPixelSize(size);
    window.setFont(font);
    auto* one = new QPushButton(shortText, &window);
    auto* other = new QPushButton(longText, &window);
    new FittedFont({{{one}, width}, {{other}, width}});
    window.show();
    QVERIFY(other->font().pixelSize() < size);
    QCOMPARE(one->font().pixelSize(), other->font().pixelSize());
}

void tst_FittedFont::largerFontIsReducedAgain()
{
    const Place place(create<QLabel>, QStringLiteral("Fits"));
    QFont font;
    font.setPixelSize(150);
    font.setItalic(true);
    place.control->setFont(font);
    QVERIFY(place.control->font().pixelSize() < 150);
    QVERIFY(place.control->font().italic());
    QVERIFY(neededWidth(place.control) <= width);
}

void tst_FittedFont::smallerFontIsKept()
{
    const Place place(create<QLabel>, longText);
    QFont font;
    font.setPixelSize(10);
    place.control->setFont(font);
    QCOMPARE(place.control->font().pixelSize(), 10);
}

void tst_FittedFont::anotherFamilyKeepsTheSizeToComeBackTo()
{
    const Place place(create<QLabel>, longText);
    QFont font = place.control->font();
    QVERIFY(font.pixelSize() < size);
    font.setItalic(true);
    place.control->setFont(font);
    auto* label = static_cast<QLabel*>(place.control);
    label->setText(shortText);
    label->hide();
    label->show();
    QVERIFY(label->font().italic());
    QCOMPARE(label->font().pixelSize(), size);
}

void tst_FittedFont::changedSheetIsFollowed()
{
    Place place(create<QCheckBox>, QStringLiteral("Half the width"));
    QCOMPARE(place.control->font().pixelSize(), size);
    place.window.setStyleSheet(QStringLiteral("QCheckBox::indicator { width: 90px; }"));
    QVERIFY(place.control->font().pixelSize() < size);
    QVERIFY(neededWidth(place.control) <= width);
    place.window.setStyleSheet(QString());
    QCOMPARE(place.control->font().pixelSize(), size);
}

// It wins over every other font, so there is nothing to do, and no end if one tried.
void tst_FittedFont::sizeOfASheetIsLeftAlone()
{
    Place place(create<QPushButton>, longText);
    place.window.setStyleSheet(QStringLiteral("QPushButton { font-size: 40px; }"));
    QCOMPARE(place.control->font().pixelSize(), 40);
    place.window.setStyleSheet(QString());
    QVERIFY(neededWidth(place.control) <= width);
}

void tst_FittedFont::deletedControlsNeedNothing()
{
    QWidget window;
    QFont font;
    font.setPixelSize(size);
    window.setFont(font);
    auto* one = new QLabel(shortText, &window);
    auto* other = new QLabel(longText, &window);
    new FittedFont({TextLine{{one, other}, width, 0}});
    window.show();
    QVERIFY(one->font().pixelSize() < size);
    delete other;
    one->hide();
    one->show();
    QCOMPARE(one->font().pixelSize(), size);
    delete one;
}

QTEST_MAIN(tst_FittedFont)
#include "tst_fittedfont.moc"
