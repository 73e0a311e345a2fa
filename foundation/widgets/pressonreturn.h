// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_PRESSONRETURN_H
#define PRINTPANELS_PRESSONRETURN_H

#include <QtCore/QObject>

class QWidget;

namespace PrintPanels {

/**
 * Lets Return and Enter press the push buttons of a panel as Space does. Otherwise the key would go
 * on to the host's dialog and start its default button.
 */
class PressOnReturn : public QObject
{
    Q_DISABLE_COPY_MOVE(PressOnReturn)

public:
    /** Watches the push buttons that @p panel has now. The panel becomes the parent. */
    explicit PressOnReturn(QWidget* panel);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace PrintPanels

#endif
