// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/combolists.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

namespace SampleHost {

void nameComboLists(const QWidget& window)
{
    const auto labels = window.findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (auto* combo = qobject_cast<QComboBox*>(label->buddy())) {
            combo->view()->setAccessibleName(label->text());
        }
    }
}

} // namespace SampleHost
