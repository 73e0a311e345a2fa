// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_FOCUSRETURN_H
#define PRINTPANELS_FOCUSRETURN_H

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QWidget;

namespace PrintPanels {

/**
 * Gives a push button the focus back that it lost because it was disabled, as soon as it is enabled
 * again, unless the user went elsewhere meanwhile.
 *
 * A host disables the buttons while it prints. Qt then moves the focus on, so that the next Space
 * would go to another control.
 */
class FocusReturn : public QObject
{
    Q_DISABLE_COPY_MOVE(FocusReturn)

public:
    /** Watches the push buttons that @p panel has now. The panel becomes the parent. */
    explicit FocusReturn(QWidget* panel);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void focusLost(QWidget* button, Qt::FocusReason reason);
    void lose(QWidget* button);
    void disabled(QWidget* button);
    void enabled(QWidget* button);
    void followFocus(QWidget* to);

    /** The button that has the focus of its window, active or not. */
    QPointer<QWidget> m_focused;
    /** The button that lost the focus, and the control that Qt gave it to. */
    QPointer<QWidget> m_lost;
    QPointer<QWidget> m_holder;
    bool m_isBeingDisabled = false;
};

} // namespace PrintPanels

#endif
