// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_DRAGGUARD_H
#define PRINTPANELS_DRAGGUARD_H

#include <QtCore/QObject>

class QWidget;

namespace PrintPanels {

/**
 * What a drag switches on and has to switch off again: the application's override cursor and the
 * mouse tracking of the dragged widget.
 *
 * The release that ends a drag never comes when the widget is hidden, disabled, blocked by a modal
 * window or destroyed under the pressed button, and goes elsewhere when a list or a menu opens
 * meanwhile. The guard watches for that and takes back exactly what its presses pushed, so that the
 * whole application does not keep the closed hand.
 */
class DragGuard : public QObject
{
    Q_DISABLE_COPY_MOVE(DragGuard)

public:
    /** Watches @p dragged, which must outlive the guard. */
    explicit DragGuard(QWidget* dragged);
    /** Ends a drag that is still going on. */
    ~DragGuard() override;

    /** A press: pushes the closed hand and turns mouse tracking on. */
    void press();
    /**
     * A release: takes one override cursor back and turns mouse tracking off. Does so without a
     * matching press, too.
     */
    void release();
    /** Takes back every cursor still pushed; nothing without a drag. */
    void abandon();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void releasedElsewhere(bool arrived);

    QWidget* m_dragged;
    int m_pushed = 0;
};

} // namespace PrintPanels

#endif
