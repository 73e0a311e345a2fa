// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "panelwindows.h"
#include "support/inputevents.h"
#include "support/panelfixture.h"
#include "support/stricttest.h"
#include "support/textfit.h"

#include <containertitlebar.h>

class tst_TextFit : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextFits_data();
    void everyTextFits();
};

void tst_TextFit::everyTextFits_data()
{
    addColumns<PanelWindow, QString>("window", "language");
    for (const QString& language : languages()) {
        for (const PanelWindow& window : popupWindows() + panelsAndDialogs())
            QTest::addRow("%s, %s", qPrintable(language), window.name) << window << language;
    }
}

void tst_TextFit::everyTextFits()
{
    QFETCH(const PanelWindow, window);
    QFETCH(const QString, language);
    const Language installed(language);
    QVERIFY(installed.isInstalled());
    const std::unique_ptr<QWidget> widget = window.create();
    QVERIFY(showPanel(*widget));

    for (const QSize& size : {widget->sizeHint(), widget->minimumSizeHint()}) {
        widget->resize(size);
        QTest::qWait(0);
        QCOMPARE(clippedTexts(*widget).join(u'\n'), QString());
        QCOMPARE(measuredTexts(*widget), window.texts);
    }
    if (auto* bar = widget->findChild<ContainerTitleBar*>()) {
        // A title that is elided is the tool tip.
        askForToolTip(bar, QPoint(20, 20));
        QCOMPARE(visibleToolTip(), QString());
    }
}

QTEST_MAIN(tst_TextFit)
#include "tst_textfit.moc"
