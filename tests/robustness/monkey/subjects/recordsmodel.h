// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_RECORDSMODEL_H
#define MONKEY_RECORDSMODEL_H

#include "support/request.h"

class QLineEdit;
class QRadioButton;
class QWidget;

namespace Monkey {

/**
 * What the records section of a PrintWidget has to keep, worked out beside it from the calls that
 * it gets and from what its radio buttons and its list show.
 */
class RecordsModel
{
public:
    /** Watches the section of @p panel, which must outlive the model or delete its widgets. */
    explicit RecordsModel(QWidget* panel);

    void setRangeValues(int currentIndex, int lastIndex);
    void setCurrentIndex(int index);
    void setDynamicLength(bool on);
    /** The typed list is classified, whatever choice is made. */
    void parseList();
    /** What the choice stands for is classified. */
    void classify();
    /** The rules of the N-up choice are applied. */
    void applyNup();

    /** The request that the panel has to make of @p preset. */
    Request request(const Request& preset) const;
    int currentRecord() const { return m_currentRecord; }
    bool nupEnabled() const { return m_nupEnabled; }
    bool nupKnown() const { return m_nupKnown; }
    bool sequencingShown() const { return m_nupEnabled && m_sequencingChosen; }

private:
    QRadioButton* m_current;
    QRadioButton* m_all;
    QRadioButton* m_list;
    QLineEdit* m_edit;
    int m_rangeStart = 1;
    int m_rangeEnd = 1;
    int m_numberOfRecords = 99999;
    int m_currentRecord = 1;
    bool m_dynamicLength = false;
    bool m_sequencingChosen = false;
    bool m_nupEnabled = true;
    bool m_nupKnown = false;
};

} // namespace Monkey

#endif
