// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "subjects.h"

#include <printpanels/quickprintwidget.h>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>

namespace Monkey {

namespace {

/** The quick print panel, for every module. */
class QuickPrintSubject : public Subject
{
public:
    explicit QuickPrintSubject(World& sharedWorld) : Subject(sharedWorld)
    {
        const bool withParent = world.random.coin();
        QWidget parent;
        m_panel = new QuickPrintWidget(world.random.coin(), withParent ? &parent : nullptr);
        const auto module = JxModuleInfo::JxModuleTypes(world.random.below(11));
        if (!world.random.oneIn(3))
            m_panel->setModule(module);
        world.trail.note(QStringLiteral("NEW QuickPrintWidget, module %1").arg(module));
        watchTyping(part<QLineEdit>(*m_panel, "lengthEdit"), {"setCanvasSize"});
        watchTyping(part<QLineEdit>(*m_panel, "widthEdit"), {"setCanvasSize"});
        if (world.random.coin())
            m_panel->enableAllButtons();
        adopt(m_panel, quickPrintWidgetCalls(),
              {"widgetPrintSignal", "resizeSignal", "openModuleSignal"});
    }

    void check() override;

protected:
    void received(const QByteArray& signal, const QVariantList& arguments) override;

private:
    double shownNumber(const char* edit) const;

    QuickPrintWidget* m_panel;
};

double QuickPrintSubject::shownNumber(const char* edit) const
{
    bool converts = false;
    const double number = part<QLineEdit>(*m_panel, edit)->text().toDouble(&converts);
    return converts ? number : -1.0;
}

void QuickPrintSubject::received(const QByteArray& signal, const QVariantList& arguments)
{
    if (signal == "widgetPrintSignal") {
        require(arguments == QVariantList({-1, -1, QString()}), "the request is the label shown",
                describe(arguments));
    } else if (signal == "resizeSignal") {
        const QSizeF asked = arguments.at(0).toSizeF();
        // Equal, or both no number at all.
        const auto same = [](double a, double b) { return a == b || (a != a && b != b); };
        require(same(asked.width(), shownNumber("lengthEdit")) &&
                    same(asked.height(), shownNumber("widthEdit")),
                "the size is what is typed", describe(arguments));
    }
}

void QuickPrintSubject::check()
{
    const auto* copies = part<QSpinBox>(*m_panel, "copiesSpinBox");
    require(m_panel->getNumberOfCopies() == copies->value() && copies->value() >= 1 &&
                copies->value() <= 999,
            "the copies are in range", QString::number(m_panel->getNumberOfCopies()));
    require(m_panel->getSelectedPrinter().isEmpty() && !m_panel->getPrintToFileEnabled() &&
                !m_panel->isSupplyInfoVisible() && !m_panel->getNupSeqRepOption(),
            "what the panel does not have answers with nothing", QString());
}

} // namespace

std::unique_ptr<Subject> createQuickPrintSubject(World& world)
{
    return std::make_unique<QuickPrintSubject>(world);
}

} // namespace Monkey
