// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_STOPREPEATONHIDE_H
#define PRINTPANELS_STOPREPEATONHIDE_H

#include <QtCore/QObject>

class QAbstractButton;

namespace PrintPanels {

/**
 * Releases a button that is hidden while it is held down, and so stops its auto-repeat. The release
 * never arrives then, and the button loses the focus, which would stop it too, only in the active
 * window.
 */
class StopRepeatOnHide : public QObject
{
    Q_DISABLE_COPY_MOVE(StopRepeatOnHide)

public:
    /** Watches @p button, which becomes the parent. */
    explicit StopRepeatOnHide(QAbstractButton* button);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace PrintPanels

#endif
