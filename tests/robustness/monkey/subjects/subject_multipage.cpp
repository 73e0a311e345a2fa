// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagechecks.h"
#include "subjects.h"

#include <containertitlebar.h>
#include <printpanels/multipageprintdialog.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace Monkey {

namespace {

/** What the panel and the dialog around it have in common. */
class MultiPageSubject : public Subject
{
public:
    using Subject::Subject;

    void aboutToCall(const QByteArray& name, const QVariantList& arguments) override;
    void check() override;

protected:
    void received(const QByteArray& signal, const QVariantList& arguments) override;

    MultiPagePrintWidget* createPanel();
    static QByteArrayList clickSignals() { return {"widgetPrintSignal", "openPreferencesSignal"}; }

private:
    void report(const QString& wrong) { require(wrong.isEmpty(), "multi-page panel", wrong); }

    std::optional<MultiPageChecks> m_checks;
};

MultiPagePrintWidget* MultiPageSubject::createPanel()
{
    auto* panel = new MultiPagePrintWidget(world.random.coin(), world.random.coin(), nullptr);
    m_checks.emplace(panel);
    watchTyping(part<QLineEdit>(*panel, "pageListEdit"), {});
    watchTyping(part<QLineEdit>(*panel, "copiesEdit"),
                {"setNumberOfCopies", "increaseCopyCount", "decreaseCopyCount", "plusButton",
                 "minusButton"});
    if (!world.random.oneIn(4)) {
        panel->updateListOfPrinters({QStringLiteral("Alpha"), QStringLiteral("Beta")}, 1);
        panel->setPageInfo(2, 12, true);
        m_checks->aboutToCall("setPageInfo", {2, 12, true});
        panel->enableAllButtons();
    }
    return panel;
}

void MultiPageSubject::aboutToCall(const QByteArray& name, const QVariantList& arguments)
{
    if (m_checks)
        m_checks->aboutToCall(name, arguments);
}

void MultiPageSubject::received(const QByteArray& signal, const QVariantList& arguments)
{
    const HostCall* cause = world.underWay();
    if (m_checks)
        report(m_checks->received(signal, arguments, cause ? cause->name() : QByteArray()));
}

void MultiPageSubject::check()
{
    if (m_checks)
        report(m_checks->check());
}

/** The panel by itself. */
class MultiPagePanelSubject : public MultiPageSubject
{
public:
    explicit MultiPagePanelSubject(World& sharedWorld) : MultiPageSubject(sharedWorld)
    {
        world.trail.note(QStringLiteral("NEW MultiPagePrintWidget"));
        adopt(createPanel(), multiPagePrintWidgetCalls(), clickSignals());
    }
};

/** The dialog with the panel, with another widget, or with an empty place. */
class MultiPageDialogSubject : public MultiPageSubject
{
public:
    explicit MultiPageDialogSubject(World& sharedWorld) : MultiPageSubject(sharedWorld)
    {
        const int content = world.random.below(8);
        MultiPagePrintWidget* const panel = content > 1 ? createPanel() : nullptr;
        QWidget* held = panel;
        if (content == 1)
            held = new QLabel(QStringLiteral("host's"));
        const Qt::WindowFlags kinds[] = {Qt::FramelessWindowHint, Qt::WindowFlags(), Qt::Dialog};
        m_dialog = new MultiPagePrintDialog(held, nullptr, world.random.pick(kinds));
        world.trail.note(QStringLiteral("NEW MultiPagePrintDialog, content %1").arg(content));
        adopt(m_dialog, multiPagePrintDialogCalls(), clickSignals());
        if (panel)
            addPort(panel, multiPagePrintWidgetCalls());
    }

    void aboutToCall(const QByteArray& name, const QVariantList& arguments) override
    {
        MultiPageSubject::aboutToCall(name, arguments);
        if (name == "setTitle")
            m_title = arguments.at(0).toString();
    }

    void check() override
    {
        MultiPageSubject::check();
        require(m_dialog->size() == QSize(1010, 540), "the dialog keeps its size",
                describe(QVariant(QSizeF(m_dialog->size()))));
        const auto* bar = m_dialog->findChild<ContainerTitleBar*>();
        require(bar->title() == m_title, "the title is the host's", describe(bar->title()));
    }

private:
    MultiPagePrintDialog* m_dialog;
    QString m_title;
};

} // namespace

std::unique_ptr<Subject> createMultiPageSubject(World& world)
{
    return std::make_unique<MultiPagePanelSubject>(world);
}

std::unique_ptr<Subject> createMultiPageDialogSubject(World& world)
{
    return std::make_unique<MultiPageDialogSubject>(world);
}

} // namespace Monkey
