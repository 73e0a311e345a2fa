// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "panelwindows.h"
#include "support/inputevents.h"
#include "support/panelfixture.h"
#include "support/stricttest.h"
#include "support/textfit.h"

#include <applicationfont.h>
#include <containertitlebar.h>

#include <QtGui/QFont>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace {

// In points.
constexpr int smallest = 7;
constexpr int largest = 16;
int fontSize = 0;

QFont fontOfTheHost()
{
    QFont font;
    font.setPointSize(fontSize);
    return font;
}

} // namespace

// These stand before the kit's own: the loader gives the executable's symbols to every library.
QFont ApplicationFont::getWidgetFont(bool)
{
    return fontOfTheHost();
}

QFont ApplicationFont::getWidgetFontSmall(bool)
{
    return fontOfTheHost();
}

class tst_FontSizes : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextFits_data();
    void everyTextFits();
    void popupHasTheFontsOfTheHost_data();
    void popupHasTheFontsOfTheHost();
};

void tst_FontSizes::everyTextFits_data()
{
    addColumns<PanelWindow, QString, int>("window", "language", "size");
    const auto addRows = [](const PanelWindow& window, const QString& language, int step) {
        for (int size = smallest; size <= largest; size += step)
            QTest::addRow("%s, %s, %d pt", qPrintable(language), window.name, size)
                << window << language << size;
    };
    for (const QString& language : languages()) {
        for (const PanelWindow& window : popupWindows())
            addRows(window, language, 1);
        for (const PanelWindow& window : panelsAndDialogs())
            addRows(window, language, 3);
    }
}

void tst_FontSizes::everyTextFits()
{
    QFETCH(const PanelWindow, window);
    QFETCH(const QString, language);
    QFETCH(const int, size);
    const Language installed(language);
    QVERIFY(installed.isInstalled());
    fontSize = size;
    const std::unique_ptr<QWidget> widget = window.create();
    QVERIFY(showPanel(*widget));
    QCOMPARE(clippedTexts(*widget).join(u'\n'), QString());
    QCOMPARE(measuredTexts(*widget), window.texts);
    if (auto* bar = widget->findChild<ContainerTitleBar*>()) {
        // A title that is elided is the tool tip.
        askForToolTip(bar, QPoint(20, 20));
        QCOMPARE(visibleToolTip(), QString());
    }
}

void tst_FontSizes::popupHasTheFontsOfTheHost_data()
{
    addColumns<int>("size");
    for (int size = smallest; size <= largest; ++size)
        QTest::addRow("%d pt", size) << size;
}

void tst_FontSizes::popupHasTheFontsOfTheHost()
{
    QFETCH(const int, size);
    fontSize = size;
    const std::unique_ptr<QWidget> popup = popupWindows().first().create();
    QVERIFY(showPanel(*popup));
    for (const char* name : {"printButton", "closeButton"})
        QCOMPARE(part<QPushButton>(*popup, name)->font().pointSize(), size);
    const auto* bar = popup->findChild<ContainerTitleBar*>();
    QCOMPARE(bar->font().pointSize(), size);
    QCOMPARE(bar->findChild<QLabel*>()->font().pointSize(), size);
    QCOMPARE(popup->size(), QSize(860, 500));
}

QTEST_MAIN(tst_FontSizes)
#include "tst_fontsizes.moc"
