#include "samplehost/app/demostates.h"

#include "samplehost/app/labelpage.h"
#include "samplehost/app/mainwindow.h"
#include "samplehost/app/pipepage.h"
#include "samplehost/app/supplysimulator.h"
#include "samplehost/app/userhands.h"

#include <printpanels/printwidget.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QSpinBox>

namespace SampleHost {

namespace {

QWidget* panelWidget(const PrintPage& page, const char* name)
{
    return page.panel().findChild<QWidget*>(QString::fromLatin1(name));
}

bool showPlain(MainWindow& window)
{
    window.setCurrentPage(window.labelPage());
    return true;
}

bool showListWithNup(MainWindow& window)
{
    const LabelPage& page = window.labelPage();
    window.settings().setNup(NupLayout{2, 2});
    return UserHands::click(panelWidget(page, "recordListRadio")) &&
           UserHands::type(panelWidget(page, "recordListEdit"), QStringLiteral("1,4-5,11-20,33")) &&
           UserHands::click(panelWidget(page, "sequencingRadio"));
}

bool showSupply(MainWindow& window)
{
    SupplySimulator& supply = window.supply();
    auto* secondRibbon = supply.findChild<QComboBox*>(QStringLiteral("ribbon2Combo"));
    supply.setReport(SupplySimulator::Report::TwoRibbons);
    // The last colour stands for a place without a ribbon.
    secondRibbon->setCurrentIndex(secondRibbon->count() - 1);
    supply.findChild<QCheckBox*>(QStringLiteral("ladderCheck"))->setChecked(true);
    return window.labelPage().panel().isSupplyInfoVisible();
}

bool showPipe(MainWindow& window)
{
    PipePage& page = window.pipePage();
    window.setCurrentPage(page);
    page.setCurrentMarker(0);
    auto* items = page.panel().findChild<QComboBox*>(QStringLiteral("AmmoniaPrintCombo"));
    return items != nullptr && items->isVisible();
}

bool showTestControls(MainWindow& window)
{
    return choosePrintToFile(window.labelPage());
}

struct State
{
    const char* name;
    bool (*apply)(MainWindow& window);
};

constexpr State states[] = {
    {"plain", showPlain}, {"list-nup", showListWithNup},       {"supply", showSupply},
    {"pipe", showPipe},   {"test-controls", showTestControls},
};

} // namespace

bool choosePrintToFile(const PrintPage& page)
{
    if (!page.panel().getPrintToFileEnabled()) {
        UserHands::click(panelWidget(page, "printToFileCheck"));
    }
    return page.panel().getPrintToFileEnabled();
}

QStringList demoStateNames()
{
    QStringList names;
    for (const State& state : states) {
        names.append(QString::fromLatin1(state.name));
    }
    return names;
}

QString testControlsStateName()
{
    return QStringLiteral("test-controls");
}

bool applyDemoState(MainWindow& window, const QString& name)
{
    for (const State& state : states) {
        if (name == QLatin1String(state.name)) {
            return state.apply(window);
        }
    }
    return false;
}

} // namespace SampleHost
