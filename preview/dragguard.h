// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_DRAGGUARD_H
#define PRINTPANELS_DRAGGUARD_H

#include <QtCore/QObject>

class QWidget;

namespace PrintPanels {

/**
 * Manages what is switched on during a drag: the application's override cursor and the mouse
 * tracking of the dragged widget.
 *
 * The release that ends a drag never arrives if the widget is hidden, disabled, blocked by a modal
 * window or destroyed while the button is held, and goes elsewhere if a list or a menu opens
 * meanwhile. The guard detects all of these and restores exactly the cursors that its presses
 * pushed, so that the application is not left with the closed hand.
 */
class DragGuard : public QObject
{
    Q_DISABLE_COPY_MOVE(DragGuard)

public:
    /** Watches @p dragged, which must outlive the guard. */
    explicit DragGuard(QWidget* dragged);
    /** Ends a drag in progress. */
    ~DragGuard() override;

    /** A button was pressed: pushes the closed hand and turns mouse tracking on. */
    void press();
    /**
     * A button was released: restores one override cursor and turns mouse tracking off, even
     * without a matching press.
     */
    void release();
    /** Restores every cursor still pushed. Does nothing without a drag. */
    void cancel();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void releasedElsewhere(bool toWidget);

    QWidget* m_dragged;
    int m_pushed = 0;
};

} // namespace PrintPanels

#endif
