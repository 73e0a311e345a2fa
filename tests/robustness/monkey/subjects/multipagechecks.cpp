// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "multipagechecks.h"

#include "hostilevalues.h"
#include "subjects.h"

#include <printpanels/recordlist.h>

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLineEdit>

#include <limits>

namespace Monkey {

void MultiPageChecks::aboutToCall(const QByteArray& name, const QVariantList& arguments)
{
    if (name == "setPageInfo") {
        m_currentPage = arguments.at(0).toInt();
        m_pageCount = arguments.at(1).toInt();
    } else if (name == "updateCurrentRangeIndex") {
        const int index = arguments.at(0).toInt();
        m_currentPage = index == std::numeric_limits<int>::max() ? index : index + 1;
    }
}

bool MultiPageChecks::isChecked(const char* button) const
{
    return part<QAbstractButton>(*m_panel, button)->isChecked();
}

int MultiPageChecks::shownStartPage() const
{
    if (isChecked("allPagesRadio"))
        return 1;
    if (isChecked("currentPageRadio"))
        return m_currentPage;
    return RecordList::firstPage(part<QLineEdit>(*m_panel, "pageListEdit")->text(), m_pageCount)
        .value_or(m_currentPage);
}

QString MultiPageChecks::checkRequest(const QVariantList& arguments) const
{
    const QString list = part<QLineEdit>(*m_panel, "pageListEdit")->text();
    QVariantList shown = {m_currentPage, m_currentPage, QString()};
    if (isChecked("allPagesRadio"))
        shown = {1, m_pageCount, QString()};
    else if (isChecked("selectionRadio") && !list.isEmpty())
        shown = {0, 0, list};
    return arguments == shown
               ? QString()
               : QStringLiteral("the request is what the widgets show: ") + describe(arguments) +
                     QStringLiteral(" and not ") + describe(shown);
}

QString MultiPageChecks::received(const QByteArray& signal, const QVariantList& arguments,
                                  const QByteArray& cause) const
{
    if (!m_panel)
        return QString();
    if (signal == "widgetPrintSignal")
        return checkRequest(arguments);
    // The list is also read when the host says so, whatever is chosen.
    if (signal == "startPageChangedSignal" && cause != "listRangeParse" &&
        arguments.at(0).toInt() != shownStartPage())
        return QStringLiteral("the start page is the one of the choice: ") + describe(arguments);
    if (signal == "currentPrinterSelectionChanged" && cause.isEmpty() &&
        arguments.at(0).toString() != m_panel->getSelectedPrinter())
        return QStringLiteral("the printer told is the printer shown: ") + describe(arguments);
    const QList<QPair<QByteArray, const char*>> checks = {
        {"printFormFillChangedSignal", "formFillCheck"},
        {"fitToPageChangedSignal", "fitToPageCheck"},
        {"orientationChangedSignal", "orientationCheck"}};
    for (const auto& [name, box] : checks) {
        if (signal == name && arguments.at(0).toInt() != (isChecked(box) ? 2 : 0))
            return QStringLiteral("the option told is the option shown: ") + describe(arguments);
    }
    return QString();
}

QString MultiPageChecks::check() const
{
    if (!m_panel)
        return QString();
    if (countChecked(m_panel, {"currentPageRadio", "allPagesRadio", "selectionRadio"}) != 1)
        return QStringLiteral("one page radio is checked");
    const auto* edit = part<QLineEdit>(*m_panel, "pageListEdit");
    if (edit->isEnabledTo(part<QFrame>(*m_panel, "pageRangeFrame")) != isChecked("selectionRadio"))
        return QStringLiteral("the list can be typed when it is chosen");
    QString text = edit->text();
    int position = 0;
    if (edit->validator()->validate(text, position) == QValidator::Invalid)
        return QStringLiteral("the list is the beginning of a valid one: ") + text;
    if (m_panel->getSelectedPrinter() !=
        part<QComboBox>(*m_panel, "PrinterListCombo")->currentText())
        return QStringLiteral("the printer is the one shown");
    if (m_panel->width() != 270)
        return QStringLiteral("the panel keeps its width: %1").arg(m_panel->width());
    return checkCopies();
}

QString MultiPageChecks::checkCopies() const
{
    const QString text = part<QLineEdit>(*m_panel, "copiesEdit")->text();
    const int shown = qMax(1, text.toInt());
    return m_panel->getNumberOfCopies() == shown
               ? QString()
               : QStringLiteral("the copies are those shown: ") + text;
}

} // namespace Monkey
