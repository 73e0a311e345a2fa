// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/widgets/stoprepeatonhide.h"

#include <QtCore/QEvent>
#include <QtWidgets/QAbstractButton>

namespace PrintPanels {

StopRepeatOnHide::StopRepeatOnHide(QAbstractButton* button) : QObject(button)
{
    button->installEventFilter(this);
}

bool StopRepeatOnHide::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide)
        static_cast<QAbstractButton*>(watched)->setDown(false);
    return false;
}

} // namespace PrintPanels
