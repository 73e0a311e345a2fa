// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <expandingtabbar.h>

#include <QtGui/QAccessible>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QStyleOptionTab>

class TestExpandingTabBar : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void rectangleShowsItsColor_data();
    void rectangleShowsItsColor();
    void transparentIsChequeredAndBlankIsEmpty();
    void rectangleCanBeReplacedAndTakenAway();
    void invalidTextsChangeNothing_data();
    void invalidTextsChangeNothing();
    void wrongIndicesChangeNothing_data();
    void wrongIndicesChangeNothing();
    void rectanglesFollowTheirTabs();
    void pictureStandsForAGlyph_data();
    void pictureStandsForAGlyph();
    void otherTextsAreDrawnAsText();
    void paintsTheSameIconAgain_data();
    void paintsTheSameIconAgain();
    void tabsShareTheWidthOfTheBar();
    void tabMakesRoomForRectangleAndPicture();
    void toolTipNamesAGlyphTab();
    void ownAccessibleNameOfATextTabStays();
    void connectsByText();
    void paintsInEveryShape_data();
    void paintsInEveryShape();
    void endlessTextIsCutOff_data();
    void endlessTextIsCutOff();
};

namespace {
constexpr char16_t blankRibbonGlyph = 0xe92a;
constexpr char16_t supplyGlyph = 0xe917;

const QString tabSheet =
    QStringLiteral("QTabBar::tab { background-color: #ffffff; min-height: 40px; "
                   "border: 1px solid #999898; border-top-left-radius: 6px; }"
                   "QTabBar::tab:selected { background-color: #fafafa; border-bottom: none; }");

struct Bar : ExpandingTabBar
{
    Bar() : ExpandingTabBar(nullptr)
    {
        setStyleSheet(tabSheet);
        setIconSize(QSize(25, 25));
        setUsesScrollButtons(false);
        resize(300, 45);
    }

    QImage picture(int index)
    {
        show();
        return grab(tabRect(index)).toImage();
    }

    // What Qt caches the painted icon under.
    qint64 iconKey(int index) const
    {
        QStyleOptionTab option;
        initStyleOption(&option, index);
        return option.icon.cacheKey();
    }

    // How many pixels of the tab have exactly this colour.
    int pixelsOf(int index, const QColor& color)
    {
        const QImage image = picture(index);
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == color ? 1 : 0;
        }
        return count;
    }
};
} // namespace

void TestExpandingTabBar::rectangleShowsItsColor_data()
{
    addColumns<QString, QString>("text", "tabText");
    for (const char* text : {"#dc0b0b", "#00FFFF", "#0018a8", "#FFFFFE"}) {
        QTest::addRow("%s beside a picture", text) << QString::fromLatin1(text) << "!";
        QTest::addRow("%s beside a text", text) << QString::fromLatin1(text) << "x";
    }
}

void TestExpandingTabBar::rectangleShowsItsColor()
{
    QFETCH(QString, text);
    QFETCH(QString, tabText);
    Bar bar;
    bar.addTab(tabText);
    const QColor color(text);
    QCOMPARE(bar.tabColorRect(0), QString());
    const int before = bar.pixelsOf(0, color);
    bar.setTabColorRect(0, text);
    QCOMPARE(bar.tabColorRect(0), text);
    const int shown = bar.pixelsOf(0, color) - before;
    // 25 wide and 17 high, less the outline.
    QCOMPARE(shown, 23 * 15);
}

void TestExpandingTabBar::transparentIsChequeredAndBlankIsEmpty()
{
    Bar bar;
    bar.addTab(QStringLiteral("!"));
    const QImage without = bar.picture(0);
    bar.setTabColorRect(0, QStringLiteral("transparent"));
    const QImage transparent = bar.picture(0);
    QVERIFY(bar.pixelsOf(0, QColor(0xc6, 0xc6, 0xc6)) > 50);
    bar.setTabColorRect(0, QStringLiteral("blank"));
    const QImage blank = bar.picture(0);
    QCOMPARE(bar.tabColorRect(0), QStringLiteral("blank"));
    QCOMPARE(bar.pixelsOf(0, QColor(0xc6, 0xc6, 0xc6)), 0);
    QVERIFY(transparent != without);
    QVERIFY(blank != without);
    QVERIFY(blank != transparent);
}

void TestExpandingTabBar::rectangleCanBeReplacedAndTakenAway()
{
    Bar bar;
    bar.addTab(QStringLiteral("!"));
    const QImage without = bar.picture(0);
    bar.setTabColorRect(0, QStringLiteral("#dc0b0b"));
    bar.setTabColorRect(0, QStringLiteral("#248d4f"));
    QCOMPARE(bar.pixelsOf(0, QColor(0xdc, 0x0b, 0x0b)), 0);
    QVERIFY(bar.pixelsOf(0, QColor(0x24, 0x8d, 0x4f)) > 100);
    bar.setTabColorRect(0, QString());
    QCOMPARE(bar.tabColorRect(0), QString());
    QCOMPARE(bar.picture(0), without);
}

void TestExpandingTabBar::invalidTextsChangeNothing_data()
{
    QTest::addColumn<QString>("text");
    addRow("no colour", "no colour at all");
    addRow("code too short", "#12");
    addRow("code with a wrong digit", "#12345g");
    addRow("number", "123456");
    addRow("blank", " ");
    addRow("Blank in capitals", "BLANK");
    addRow("huge", QString(1000000, QLatin1Char('#')));
}

void TestExpandingTabBar::invalidTextsChangeNothing()
{
    QFETCH(QString, text);
    Bar bar;
    bar.addTab(QStringLiteral("!"));
    bar.setTabColorRect(0, QStringLiteral("#dc0b0b"));
    bar.setTabColorRect(0, text);
    QCOMPARE(bar.tabColorRect(0), QStringLiteral("#dc0b0b"));
}

void TestExpandingTabBar::wrongIndicesChangeNothing_data()
{
    QTest::addColumn<int>("index");
    addRow("negative", -1);
    addRow("behind the last", 1);
    addRow("smallest", std::numeric_limits<int>::min());
    addRow("largest", std::numeric_limits<int>::max());
}

void TestExpandingTabBar::wrongIndicesChangeNothing()
{
    QFETCH(int, index);
    Bar bar;
    bar.setTabColorRect(index, QStringLiteral("#dc0b0b"));
    bar.addTab(QStringLiteral("!"));
    bar.setTabColorRect(index, QStringLiteral("#dc0b0b"));
    bar.setTabToolTip(index, QStringLiteral("tip"));
    QCOMPARE(bar.tabColorRect(index), QString());
    QCOMPARE(bar.tabColorRect(0), QString());
}

void TestExpandingTabBar::rectanglesFollowTheirTabs()
{
    const QString black = QStringLiteral("#000000");
    const QString red = QStringLiteral("#dc0b0b");
    const QString clear = QStringLiteral("transparent");
    const QString blank = QStringLiteral("blank");
    Bar bar;
    const auto rects = [&bar] {
        QStringList all;
        for (int i = 0; i < bar.count(); ++i)
            all << bar.tabColorRect(i);
        return all;
    };
    for (const QString& color : {black, red, clear}) {
        bar.addTab(QStringLiteral("!"));
        bar.setTabColorRect(bar.count() - 1, color);
    }
    bar.removeTab(1);
    QCOMPARE(rects(), QStringList({black, clear}));
    bar.insertTab(1, QString(QChar(blankRibbonGlyph)));
    QCOMPARE(rects(), QStringList({black, QString(), clear}));
    bar.setTabColorRect(1, blank);
    QCOMPARE(rects(), QStringList({black, blank, clear}));
    bar.moveTab(2, 0);
    QCOMPARE(rects(), QStringList({clear, black, blank}));
    QVERIFY(bar.pixelsOf(1, Qt::black) > 300);
    bar.setTabText(1, QStringLiteral("Text"));
    bar.setCurrentIndex(2);
    QCOMPARE(rects(), QStringList({clear, black, blank}));
}

void TestExpandingTabBar::pictureStandsForAGlyph_data()
{
    addColumns<QString, QString>("text", "file");
    addRow("ribbon", "!", ":/hostkit/ribbon.png");
    addRow("blank ribbon", QString(QChar(blankRibbonGlyph)), ":/hostkit/blank-ribbon.png");
    addRow("supply", QString(QChar(supplyGlyph)), ":/hostkit/supply.png");
}

void TestExpandingTabBar::pictureStandsForAGlyph()
{
    QFETCH(QString, text);
    QFETCH(QString, file);
    const QImage glyph(file);
    QCOMPARE(glyph.size(), QSize(25, 25));
    Bar bar;
    bar.setDrawBase(false);
    bar.addTab(text);
    const QImage tab = bar.picture(0).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(bar.tabText(0), text);

    // Where the picture is opaque the tab shows it, in the middle of the tab to a pixel or two.
    const auto matches = [&](const QPoint& corner) {
        for (int y = 0; y < glyph.height(); ++y) {
            for (int x = 0; x < glyph.width(); ++x) {
                const QColor color = glyph.pixelColor(x, y);
                if (color.alpha() == 255 && tab.pixelColor(corner + QPoint(x, y)) != color)
                    return false;
            }
        }
        return true;
    };
    const QPoint centred((tab.width() - 25) / 2, (tab.height() - 25) / 2);
    bool found = false;
    for (int dx = -2; dx <= 2; ++dx) {
        for (int dy = -2; dy <= 2; ++dy)
            found = found || matches(centred + QPoint(dx, dy));
    }
    QVERIFY(found);
}

void TestExpandingTabBar::otherTextsAreDrawnAsText()
{
    Bar bar;
    bar.addTab(QStringLiteral("!!"));
    QTabBar plain;
    plain.setStyleSheet(tabSheet);
    plain.resize(300, 45);
    plain.addTab(QStringLiteral("!!"));
    plain.show();
    QCOMPARE(bar.picture(0), plain.grab(plain.tabRect(0)).toImage());
}

void TestExpandingTabBar::paintsTheSameIconAgain_data()
{
    QTest::addColumn<QString>("tabText");
    addRow("picture", "!");
    addRow("text", "x");
}

// Each new icon would take memory of Qt's picture cache.
void TestExpandingTabBar::paintsTheSameIconAgain()
{
    QFETCH(QString, tabText);
    Bar bar;
    for (int i = 0; i < 200; ++i) {
        bar.addTab(tabText);
        bar.setTabColorRect(i, QStringLiteral("#%1").arg(i, 6, 16, QLatin1Char('0')));
    }
    QList<qint64> keys;
    for (int i = 0; i < bar.count(); ++i)
        keys.append(bar.iconKey(i));
    for (int i = 0; i < 100; ++i)
        bar.picture(0);
    for (int i = 0; i < bar.count(); ++i)
        QCOMPARE(bar.iconKey(i), keys.at(i));
    bar.setTabColorRect(0, QStringLiteral("#248d4f"));
    QVERIFY(bar.iconKey(0) != keys.at(0));
    QPixmap own(10, 10);
    own.fill(Qt::green);
    const qint64 before = bar.iconKey(1);
    bar.setTabIcon(1, QIcon(own));
    QVERIFY(bar.iconKey(1) != before);
    const qint64 small = bar.iconKey(2);
    bar.setIconSize(QSize(40, 40));
    QVERIFY(bar.iconKey(2) != small);
}

void TestExpandingTabBar::tabsShareTheWidthOfTheBar()
{
    Bar bar;
    for (int i = 0; i < 3; ++i)
        bar.addTab(QStringLiteral("!"));
    bar.show();
    QVERIFY(bar.expanding());
    QCOMPARE(bar.tabRect(0).width(), 100);
    QCOMPARE(bar.tabRect(1).width(), 100);
    QCOMPARE(bar.tabRect(2).width(), 100);
    bar.removeTab(1);
    QCOMPARE(bar.tabRect(1).width(), 150);
    QVERIFY(bar.tabRect(0).height() >= 40);
}

void TestExpandingTabBar::tabMakesRoomForRectangleAndPicture()
{
    Bar bar;
    bar.setExpanding(false);
    bar.addTab(QStringLiteral("!"));
    bar.show();
    QVERIFY(bar.tabRect(0).width() >= 25);
    bar.setTabColorRect(0, QStringLiteral("blank"));
    QVERIFY(bar.tabRect(0).width() >= 25 + 25);
    bar.setTabText(0, QStringLiteral("Text"));
    const int withRect = bar.tabRect(0).width();
    bar.setTabColorRect(0, QString());
    QVERIFY(withRect >= bar.tabRect(0).width() + 25);
}

void TestExpandingTabBar::toolTipNamesAGlyphTab()
{
    Bar bar;
    bar.show();
    bar.insertTab(0, QStringLiteral("!"));
    bar.setTabToolTip(0, QStringLiteral("Ribbon1"));
    QCOMPARE(bar.accessibleTabName(0), QStringLiteral("Ribbon1"));
    QCOMPARE(bar.tabToolTip(0), QStringLiteral("Ribbon1"));
    bar.setTabText(0, QString(QChar(blankRibbonGlyph)));
    bar.setTabToolTip(0, QStringLiteral("Blank Ribbon1"));
    QCOMPARE(bar.accessibleTabName(0), QStringLiteral("Blank Ribbon1"));

    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&bar);
    QVERIFY(accessible);
    QCOMPARE(accessible->child(0)->text(QAccessible::Name), QStringLiteral("Blank Ribbon1"));
    bar.setTabText(0, QStringLiteral("Text"));
    QCOMPARE(accessible->child(0)->text(QAccessible::Name), QStringLiteral("Text"));
}

void TestExpandingTabBar::ownAccessibleNameOfATextTabStays()
{
    Bar bar;
    bar.addTab(QStringLiteral("Text"));
    bar.setTabToolTip(0, QStringLiteral("Tip"));
    bar.setAccessibleTabName(0, QStringLiteral("Name"));
    bar.addTab(QStringLiteral("!"));
    bar.setTabColorRect(0, QStringLiteral("blank"));
    QCOMPARE(bar.accessibleTabName(0), QStringLiteral("Name"));
}

void TestExpandingTabBar::connectsByText()
{
    Bar bar;
    QStackedWidget stack;
    QVERIFY(connect(&bar, SIGNAL(currentChanged(int)), &stack, SLOT(setCurrentIndex(int))));
    for (int i = 0; i < 3; ++i) {
        bar.addTab(QStringLiteral("!"));
        stack.addWidget(new QWidget);
    }
    bar.show();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(2).center());
    QCOMPARE(stack.currentIndex(), 2);
}

void TestExpandingTabBar::paintsInEveryShape_data()
{
    QTest::addColumn<int>("shape");
    addRow("rounded north", int(QTabBar::RoundedNorth));
    addRow("rounded south", int(QTabBar::RoundedSouth));
    addRow("rounded west", int(QTabBar::RoundedWest));
    addRow("rounded east", int(QTabBar::RoundedEast));
    addRow("triangular north", int(QTabBar::TriangularNorth));
    addRow("triangular west", int(QTabBar::TriangularWest));
}

void TestExpandingTabBar::paintsInEveryShape()
{
    QFETCH(int, shape);
    ExpandingTabBar bar(nullptr);
    bar.setShape(QTabBar::Shape(shape));
    bar.setElideMode(Qt::ElideRight);
    bar.addTab(QStringLiteral("!"));
    bar.addTab(QStringLiteral("A long text that does not fit"));
    bar.setTabColorRect(0, QStringLiteral("#dc0b0b"));
    bar.setTabColorRect(1, QStringLiteral("#248d4f"));
    bar.adjustSize();
    bar.show();
    const QImage image = bar.grab().toImage();
    int red = 0;
    int green = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            red += image.pixelColor(x, y) == QColor(0xdc, 0x0b, 0x0b) ? 1 : 0;
            green += image.pixelColor(x, y) == QColor(0x24, 0x8d, 0x4f) ? 1 : 0;
        }
    }
    QVERIFY(red > 50);
    QVERIFY(green > 50);
}

void TestExpandingTabBar::endlessTextIsCutOff_data()
{
    QTest::addColumn<int>("shape");
    addRow("north", int(QTabBar::RoundedNorth));
    addRow("west", int(QTabBar::RoundedWest));
}

// Qt's painting ends beyond some thousands of pixels, by reading memory that is not its own.
void TestExpandingTabBar::endlessTextIsCutOff()
{
    QFETCH(int, shape);
    ExpandingTabBar bar(nullptr);
    bar.setStyleSheet(tabSheet);
    bar.setUsesScrollButtons(false);
    bar.setShape(QTabBar::Shape(shape));
    bar.addTab(QString(900000, u'x'));
    bar.addTab(QStringLiteral("!"));
    bar.setTabColorRect(0, QStringLiteral("#dc0b0b"));
    const QSize size = bar.sizeHint();
    QVERIFY2(qMax(size.width(), size.height()) < 3000, qPrintable(QString::number(size.width())));
    bar.resize(size);
    QVERIFY(!bar.grab().isNull());
}

QTEST_MAIN(TestExpandingTabBar)
#include "tst_expandingtabbar.moc"
