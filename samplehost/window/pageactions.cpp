// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/pageactions.h"

#include "samplehost/pages/hostpage.h"
#include "samplehost/window/controlaction.h"
#include "samplehost/window/hosticons.h"

#include <QtGui/QKeySequence>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolBar>

namespace SampleHost {

PageActions::PageActions(QObject* parent) : QObject(parent)
{
    m_print = add("printAction", tr("&Print"), QKeySequence::Print);
    m_print->setIcon(printIcon());
    m_preview = add("printPreviewAction", tr("Print Pre&view"), Qt::CTRL | Qt::SHIFT | Qt::Key_P);
    m_preview->setIcon(previewIcon());
    m_current = add("currentAction", tr("&Current Record or Page"), Qt::CTRL | Qt::Key_1);
    m_all = add("allAction", tr("&All Records or Pages"), Qt::CTRL | Qt::Key_2);
    m_list = add("listAction", tr("&Range or List"), Qt::CTRL | Qt::Key_3);
    m_printer = add("printerAction", tr("&Printer"), Qt::Key_F4);
}

ControlAction* PageActions::add(const char* name, const QString& text, const QKeySequence& keys)
{
    auto* action = new ControlAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    return action;
}

void PageActions::addPage(const HostPage& page)
{
    const PageControls controls = page.controls();
    const QButtonGroup* choices = controls.list != nullptr ? controls.list->group() : nullptr;
    if (choices == nullptr || controls.listEdit == nullptr) {
        return;
    }
    // The group reports a click last, when the panel has enabled the edit.
    connect(choices, &QButtonGroup::buttonClicked, controls.listEdit,
            [list = controls.list, edit = controls.listEdit](const QAbstractButton* clicked) {
                if (clicked == list) {
                    reveal(*edit);
                    edit->setFocus(Qt::ShortcutFocusReason);
                    edit->selectAll();
                }
            });
}

void PageActions::setPage(const HostPage& page)
{
    const PageControls controls = page.controls();
    m_print->setControl(controls.print);
    m_preview->setControl(controls.preview);
    m_current->setControl(controls.current);
    m_all->setControl(controls.all);
    m_list->setControl(controls.list);
    m_printer->setControl(controls.printers);
}

void PageActions::addPrintActions(QMenu& menu) const
{
    menu.addActions({m_print, m_preview});
}

void PageActions::addPrintActions(QToolBar& toolBar) const
{
    toolBar.addActions({m_print, m_preview});
}

void PageActions::addChoices(QMenu& menu) const
{
    menu.addActions({m_current, m_all, m_list});
    menu.addSeparator();
    menu.addAction(m_printer);
}

} // namespace SampleHost
