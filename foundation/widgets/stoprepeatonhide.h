// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_STOPREPEATONHIDE_H
#define PRINTPANELS_STOPREPEATONHIDE_H

#include <QtCore/QObject>

class QAbstractButton;

namespace PrintPanels {

/**
 * Stops the auto-repeat of a button that is hidden while it is held. Its release never comes then,
 * and only in the active window does it lose the focus, which would stop it, too.
 */
class StopRepeatOnHide : public QObject
{
    Q_DISABLE_COPY_MOVE(StopRepeatOnHide)

public:
    /** Watches @p button, which becomes its parent. */
    explicit StopRepeatOnHide(QAbstractButton* button);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace PrintPanels

#endif
