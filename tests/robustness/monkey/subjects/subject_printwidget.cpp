// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "recordsmodel.h"
#include "subjects.h"

#include <colormenu.h>
#include <expandingtabbar.h>
#include <printpanels/printwidget.h>

#include <QtGui/QColor>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStackedWidget>

namespace Monkey {

namespace {

/** The full print settings panel, for every module and in every layout. */
class PrintWidgetSubject : public Subject
{
public:
    explicit PrintWidgetSubject(World& sharedWorld) : Subject(sharedWorld)
    {
        const bool withTestControls = world.random.coin();
        m_panel = new PrintWidget(withTestControls, nullptr);
        m_model.emplace(m_panel);
        watchTyping(part<QLineEdit>(*m_panel, "recordListEdit"), {});
        const auto module = JxModuleInfo::JxModuleTypes(world.random.below(11));
        if (!world.random.oneIn(5))
            m_panel->setModule(module);
        world.trail.note(QStringLiteral("NEW PrintWidget, test controls %1, module %2")
                             .arg(withTestControls)
                             .arg(module));
        if (!world.random.oneIn(4))
            setUpLikeAHost();
        adopt(m_panel, printWidgetCalls(),
              {"widgetPrintSignal", "printPreviewSignal", "openPreferencesSignal", "testPrintError",
               "tinyLadderSupplyChangedSignal", "supplyColorsChangedSignal"});
    }

    void aboutToCall(const QByteArray& name, const QVariantList& arguments) override;
    void check() override;

protected:
    void received(const QByteArray& signal, const QVariantList& arguments) override;

private:
    void setUpLikeAHost();
    void checkRecords();
    void checkCopiesAndPrinter();
    void checkSupply();
    void checkAmmonia();
    void checkColors(const QStringList& colors);

    PrintWidget* m_panel;
    std::optional<RecordsModel> m_model;
};

void PrintWidgetSubject::setUpLikeAHost()
{
    m_panel->updateListOfPrinters({QStringLiteral("Alpha"), QStringLiteral("Beta")}, 0);
    m_panel->setRangeValues(2, 11, true);
    m_model->setRangeValues(2, 11);
    m_panel->setNupSeqRepVisible(true);
    m_panel->enableAllButtons();
    if (world.random.coin())
        m_panel->showSupplyInfo({QStringLiteral("#000000"), QStringLiteral("#ffffff")},
                                world.random.coin(), 4.0, 0, true);
}

void PrintWidgetSubject::aboutToCall(const QByteArray& name, const QVariantList& arguments)
{
    if (name == "setRangeValues")
        m_model->setRangeValues(arguments.at(0).toInt(), arguments.at(1).toInt());
    else if (name == "updateCurrentRangeIndex")
        m_model->setCurrentIndex(arguments.at(0).toInt());
    else if (name == "setNupDynamicLength")
        m_model->setDynamicLength(arguments.at(0).toBool());
    else if (name == "listRangeParse" || name == "listRangeChanged")
        m_model->parseList();
    else if (name == "checkRange" || name == "recordsRadioChangedSlot")
        m_model->classify();
    if (name == "listRangeChanged" || name == "recordsRadioChangedSlot")
        m_model->applyNup();
}

void PrintWidgetSubject::received(const QByteArray& signal, const QVariantList& arguments)
{
    if (signal == "widgetPrintSignal" || signal == "printPreviewSignal") {
        const Request shown = m_model->request({m_model->currentRecord(), -1, QString()});
        require(Request::of(arguments) == shown, "the request is what the widgets show",
                describe(arguments));
    } else if (signal == "testPrintError") {
        const auto* number = part<QSpinBox>(*m_panel, "errorNumberSpinBox");
        require(number && number->value() == arguments.at(0).toInt() && number->value() >= 0 &&
                    number->value() <= 25,
                "the error number is the one shown", describe(arguments));
    } else if (signal == "supplyColorsChangedSignal") {
        checkColors(arguments.at(0).toStringList());
    } else if (signal == "currentPrinterSelectionChanged" && !world.underWay()) {
        const auto* combo = part<QComboBox>(*m_panel, "PrinterListCombo");
        require(combo->currentText() == arguments.at(0).toString() &&
                    combo->toolTip() == combo->currentText(),
                "the printer told is the printer shown", describe(arguments));
    } else if (signal == "ammoniaPrintTagChanged" && !world.underWay()) {
        const auto* combo = part<QComboBox>(*m_panel, "AmmoniaPrintCombo");
        require(combo && combo->currentIndex() >= 0 &&
                    combo->currentData() == arguments.at(0).toInt(),
                "the tag told is the tag shown", describe(arguments));
    } else if (signal == "tinyLadderSupplyChangedSignal") {
        require(arguments.at(0).toBool() == m_panel->isTinySupply(),
                "the ladder tube told is the one shown", describe(arguments));
    }
}

// A place without anything is blank on a ribbon's tab and see-through on the supply's.
void PrintWidgetSubject::checkColors(const QStringList& colors)
{
    require(colors.size() == 3, "three colours are told", describe(QVariant(colors)));
    const auto* menus = part<QStackedWidget>(*m_panel, "colorStack");
    const auto* bar = part<ExpandingTabBar>(*m_panel, "colorTabBar");
    require(menus && bar, "colours are told when there are any to choose", QString());
    if (world.underWay() || !menus || colors.size() != 3)
        return;
    // The user picks from the page that is shown.
    const QByteArrayList names = {"ribbon1Menu", "ribbon2Menu", "supplyMenu"};
    for (int i = 0; i < names.size(); ++i) {
        const auto* menu = part<ColorMenu>(*m_panel, names.at(i).constData());
        if (menus->currentWidget() != menu)
            continue;
        const QString code = selectedColor(menu);
        const bool nothing = code == QLatin1String("transparent");
        require(colors.at(i) == (nothing ? QStringLiteral("#fffffe") : code),
                "the colour told is the one picked", describe(QVariant(colors)));
    }
}

void PrintWidgetSubject::check()
{
    checkRecords();
    checkCopiesAndPrinter();
    checkSupply();
    checkAmmonia();
}

void PrintWidgetSubject::checkRecords()
{
    const Request preset{-7, -8, QStringLiteral("preset")};
    Request request = preset;
    m_panel->whatToPrint(request.start, request.end, request.list);
    const Request shown = m_model->request(preset);
    require(
        request == shown, "what to print is what the widgets show",
        describe({request.start, request.end, request.list, shown.start, shown.end, shown.list}));
    require(countChecked(m_panel, {"currentRecordRadio", "allRecordsRadio", "recordListRadio"}) ==
                1,
            "one records radio is checked", QString());
    require(countChecked(m_panel, {"replicatingRadio", "sequencingRadio"}) == 1,
            "one N-up radio is checked", QString());

    const auto* frame = part<QFrame>(*m_panel, "recordsFrame");
    const auto* edit = part<QLineEdit>(*m_panel, "recordListEdit");
    require(edit->isEnabledTo(frame) ==
                part<QAbstractButton>(*m_panel, "recordListRadio")->isChecked(),
            "the list can be typed when it is chosen", QString());
    QString text = edit->text();
    int position = 0;
    require(edit->validator()->validate(text, position) != QValidator::Invalid,
            "the list is the beginning of a valid one", describe(text));

    const auto* nup = part<QFrame>(*m_panel, "nupFrame");
    require(nup->isEnabledTo(frame) == m_model->nupEnabled() || !m_model->nupKnown(),
            "the N-up choice follows the records", QString());
    const bool sequencing = part<QAbstractButton>(*m_panel, "sequencingRadio")->isChecked();
    require(sequencing == m_model->sequencingShown() || !m_model->nupKnown(),
            "the N-up choice is the user's", QString());
    require(m_panel->getNupSeqRepOption() == (nup->isVisible() && sequencing),
            "the N-up option is what is shown", QString());
}

void PrintWidgetSubject::checkCopiesAndPrinter()
{
    const auto* copies = part<QSpinBox>(*m_panel, "copiesSpinBox");
    require(m_panel->getNumberOfCopies() == copies->value() && copies->value() >= 1 &&
                copies->value() <= 999,
            "the copies are in range", QString::number(m_panel->getNumberOfCopies()));
    const auto* combo = part<QComboBox>(*m_panel, "PrinterListCombo");
    require(m_panel->getSelectedPrinter() == combo->currentText(), "the printer is the one shown",
            describe(m_panel->getSelectedPrinter()));
    const auto* toFile = part<QAbstractButton>(*m_panel, "printToFileCheck");
    require(m_panel->getPrintToFileEnabled() == (toFile && toFile->isChecked()),
            "print to file is what is shown", QString());
    require(m_panel->getPrintUserBackground() ==
                part<QAbstractButton>(*m_panel, "userBackgroundCheck")->isChecked(),
            "user background is what is shown", QString());
}

void PrintWidgetSubject::checkSupply()
{
    const auto* section = part<QFrame>(*m_panel, "supplyInfoWidget");
    require(m_panel->isSupplyInfoVisible() == !section->isHidden(),
            "the supply is shown when it says so", QString());
    const auto* bar = part<ExpandingTabBar>(*m_panel, "colorTabBar");
    const auto* stack = part<QStackedWidget>(*m_panel, "colorStack");
    if (!bar)
        return;
    require(bar->count() == stack->count(), "every tab has a page",
            describe({bar->count(), stack->count()}));
    require(bar->currentIndex() == stack->currentIndex(), "the page is the current tab's",
            describe({bar->currentIndex(), stack->currentIndex()}));
    require(m_panel->isTinySupply() ==
                part<QAbstractButton>(*m_panel, "tinyLadderCheck")->isChecked(),
            "the ladder tube is what is shown", QString());
}

void PrintWidgetSubject::checkAmmonia()
{
    const auto* combo = part<QComboBox>(*m_panel, "AmmoniaPrintCombo");
    const auto* section = part<QFrame>(*m_panel, "ammoniaWidget");
    if (!combo || section->isHidden())
        return;
    require(combo->count() > 1 && combo->currentIndex() >= 0 && combo->itemData(0) == 0,
            "the tags are offered beside the label", QString::number(combo->count()));
    const auto* separator = m_panel->findChild<QWidget*>(QStringLiteral("ammoniaSeparator"));
    require(separator, "the tags have a separator", QString());
}

} // namespace

std::unique_ptr<Subject> createPrintWidgetSubject(World& world)
{
    return std::make_unique<PrintWidgetSubject>(world);
}

} // namespace Monkey
