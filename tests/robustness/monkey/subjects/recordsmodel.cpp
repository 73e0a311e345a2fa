// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "recordsmodel.h"

#include "subjects.h"

#include <printpanels/recordlist.h>

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>

#include <limits>

namespace Monkey {

namespace {

int numberFromIndex(int index)
{
    return index == std::numeric_limits<int>::max() ? index : index + 1;
}

} // namespace

RecordsModel::RecordsModel(QWidget* panel)
    : m_current(part<QRadioButton>(*panel, "currentRecordRadio")),
      m_all(part<QRadioButton>(*panel, "allRecordsRadio")),
      m_list(part<QRadioButton>(*panel, "recordListRadio")),
      m_edit(part<QLineEdit>(*panel, "recordListEdit"))
{
    const auto* group = panel->findChild<QButtonGroup*>(QStringLiteral("recordsButtonGroup"));
    QObject::connect(group, &QButtonGroup::buttonClicked, m_edit, [this] {
        classify();
        applyNup();
    });
    QObject::connect(m_edit, &QLineEdit::textChanged, m_edit, [this] {
        parseList();
        applyNup();
    });
    const auto* nup = panel->findChild<QButtonGroup*>(QStringLiteral("nupButtonGroup"));
    QObject::connect(nup, &QButtonGroup::idClicked, m_edit,
                     [this](int id) { m_sequencingChosen = id != 0; });
}

void RecordsModel::setRangeValues(int currentIndex, int lastIndex)
{
    m_currentRecord = numberFromIndex(currentIndex);
    m_numberOfRecords = numberFromIndex(lastIndex);
    classify();
    applyNup();
}

void RecordsModel::setCurrentIndex(int index)
{
    m_currentRecord = numberFromIndex(index);
    classify();
}

void RecordsModel::setDynamicLength(bool on)
{
    m_dynamicLength = on;
    applyNup();
}

void RecordsModel::parseList()
{
    const bool several = RecordList::classify(m_edit->text(), m_numberOfRecords) ==
                         RecordList::Extent::SeveralRecords;
    m_rangeStart = several ? 1 : m_currentRecord;
    m_rangeEnd = several ? m_numberOfRecords : m_currentRecord;
}

void RecordsModel::classify()
{
    if (m_list->isChecked()) {
        parseList();
        return;
    }
    m_rangeStart = m_all->isChecked() ? 1 : m_currentRecord;
    m_rangeEnd = m_all->isChecked() ? m_numberOfRecords : m_currentRecord;
}

void RecordsModel::applyNup()
{
    m_nupEnabled = !m_dynamicLength && m_rangeEnd > m_rangeStart;
    m_nupKnown = true;
}

Request RecordsModel::request(const Request& preset) const
{
    if (m_current->isChecked())
        return preset;
    if (m_all->isChecked())
        return {m_rangeStart, m_rangeEnd, preset.list};
    return m_edit->text().isEmpty() ? preset : Request{0, 0, m_edit->text()};
}

} // namespace Monkey
