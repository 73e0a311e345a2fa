// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "golden/paneldocument.h"
#include "golden/textfile.h"
#include "states/panelstate.h"
#include "support/stricttest.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

using Gallery::PanelState;

namespace {

const QString document = QStringLiteral(DOCUMENT);

QWidget* createNothing()
{
    return nullptr;
}

const QList<PanelState> twoStates = {
    {"SomePanel", "some-first", "First", "The first state.", createNothing},
    {"OtherPanel", "other-only", "Only", "The state of another panel.", createNothing},
    {"SomePanel", "some-second", "Second", "The second state.", createNothing}};

const QString madeOfTwoStates = QStringLiteral(
    "Text before.\n<!-- states of SomePanel -->\n\n| state | what it shows |\n|---|---|\n"
    "| ![First](../tests/golden/pictures/ltr/some-first.png) | **First**<br>The first state. |\n"
    "| ![Second](../tests/golden/pictures/ltr/some-second.png) | **Second**<br>The second state. "
    "|\n"
    "\n<!-- end of states -->\nText after.\n");

} // namespace

class tst_PanelDocument : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void statesAreDescribedBetweenTheComments_data();
    void statesAreDescribedBetweenTheComments();
    void aSectionWithoutEndIsEnded();
    void theDocumentIsUpToDate();
    void theDocumentDescribesEveryPanel();
    void everyPictureExists();
};

void tst_PanelDocument::statesAreDescribedBetweenTheComments_data()
{
    addColumns<QString>("before");
    addRow("empty section", QStringLiteral("Text before.\n<!-- states of SomePanel -->\n"
                                           "<!-- end of states -->\nText after.\n"));
    addRow("outdated section",
           QStringLiteral("Text before.\n<!-- states of SomePanel -->\n\n| Gone |\n"
                          "<!-- end of states -->\nText after.\n"));
    addRow("section that is up to date", madeOfTwoStates);
}

void tst_PanelDocument::statesAreDescribedBetweenTheComments()
{
    QFETCH(QString, before);
    QCOMPARE(withStates(before, twoStates), madeOfTwoStates);
}

void tst_PanelDocument::aSectionWithoutEndIsEnded()
{
    const QString made = withStates(QStringLiteral("<!-- states of OtherPanel -->\n"), twoStates);
    QVERIFY(made.contains(QStringLiteral("The state of another panel.")));
    QVERIFY(made.endsWith(QStringLiteral("<!-- end of states -->\n")));
}

void tst_PanelDocument::theDocumentIsUpToDate()
{
    const QString expected = withStates(readText(document), Gallery::panelStates());
    if (isRenewing())
        QVERIFY(renewText(document, expected));
    if (readText(document) != expected)
        QFAIL("docs/panels.md does not describe the states in examples/gallery/states as they are. "
              "scripts/goldens --update makes it anew");
}

void tst_PanelDocument::theDocumentDescribesEveryPanel()
{
    QStringList panels;
    const QList<PanelState> states = Gallery::panelStates();
    for (const PanelState& state : states)
        panels.append(QLatin1String(state.panel));
    panels.removeDuplicates();
    QCOMPARE(documentedPanels(readText(document)), panels);
}

void tst_PanelDocument::everyPictureExists()
{
    const QDir folder = QFileInfo(document).dir();
    const QStringList pictures = shownPictures(readText(document));
    QVERIFY(!pictures.isEmpty());
    for (const QString& picture : pictures)
        QVERIFY2(folder.exists(picture), qPrintable(picture));
}

QTEST_GUILESS_MAIN(tst_PanelDocument)
#include "tst_paneldocument.moc"
