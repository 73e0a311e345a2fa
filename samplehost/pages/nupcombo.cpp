// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pages/nupcombo.h"

#include <QtCore/QSignalBlocker>

namespace SampleHost {

NupCombo::NupCombo(QWidget* parent) : QComboBox(parent)
{
    for (const NupLayout layout :
         {NupLayout{1, 1}, NupLayout{1, 2}, NupLayout{2, 1}, NupLayout{2, 2}, NupLayout{3, 2},
          NupLayout{4, 2}, NupLayout{3, 3}}) {
        offer(layout);
    }
    connect(this, &QComboBox::activated, this, [this] { Q_EMIT layoutChosen(layoutChoice()); });
}

void NupCombo::offer(const NupLayout& layout)
{
    const QString rows = layout.rows == 1 ? tr("1 row") : tr("%1 rows").arg(layout.rows);
    const QString columns =
        layout.columns == 1 ? tr("1 column") : tr("%1 columns").arg(layout.columns);
    const QString text = layout.labelsPerPage() == 1
                             ? tr("One label a page")
                             : tr("%1 x %2", "rows and columns of a sheet").arg(rows, columns);
    addItem(text, layout.text());
}

NupLayout NupCombo::layoutChoice() const
{
    return NupLayout::fromText(currentData().toString()).value_or(NupLayout{});
}

void NupCombo::setLayoutChoice(const NupLayout& layout)
{
    const QSignalBlocker blocker(this);
    const NupLayout bounded = layout.bounded();
    if (findData(bounded.text()) < 0) {
        offer(bounded);
    }
    setCurrentIndex(findData(bounded.text()));
}

} // namespace SampleHost
