// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_FOCUSRING_H
#define PRINTPANELS_FOCUSRING_H

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace PrintPanels {

/**
 * A ring around whichever control of a panel has the focus. The panels' style sheets switch the
 * outline of the style off.
 *
 * It consists of a dark and a light line, so that it stands out from any background. It lies on top
 * of the panel, out of reach of the mouse, and takes no part in the layout. A control inside a
 * panel inside a dialog gets the ring of the panel alone.
 */
class FocusRing : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FocusRing)

public:
    /** Follows the focus inside @p panel, which becomes the parent. */
    explicit FocusRing(QWidget* panel);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow(QWidget* focused);
    void watchControl();
    void place();

    QPointer<QWidget> m_control;
    /** The control and what it lies in, up to the panel: the ring moves with any of them. */
    QList<QPointer<QObject>> m_watched;
    /** Where the ring is, of which a scroll area may show a part only. */
    QRect m_frame;
};

} // namespace PrintPanels

#endif
