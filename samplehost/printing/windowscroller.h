// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_WINDOWSCROLLER_H
#define SAMPLEHOST_WINDOWSCROLLER_H

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtWidgets/QScrollArea>

#include <functional>

namespace SampleHost {

/**
 * Opens a frameless window of fixed size over another one. On a screen that is too small for it,
 * the window stands in a frameless scroll area as large as the screen.
 */
class WindowScroller : public QObject
{
    Q_OBJECT

public:
    /** Moves a window, as its own title bar does. */
    using Move = std::function<void(int x, int y)>;

    /** For a hidden window, which owns the scroller, over the window of host. */
    WindowScroller(QWidget& window, QWidget& host, Move move);

    /** Shows the window on the screen of the host, or brings it to the front. */
    void open();

    /** Likewise, inside the available part of a screen. */
    void open(const QRect& available);

    /** The scroll area; null if the window stands on its own. */
    QScrollArea* scrollArea() const { return area(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QScrollArea* area() const;
    void place(const QRect& available);
    void putIntoArea();
    void takeFromArea();
    void moveArea();

    QWidget& m_window;
    QWidget& m_host;
    Move m_move;
    Qt::WindowFlags m_flags;
    // A QPointer to a QScrollArea must not be used while the area is destroyed, which hides the
    // window.
    QPointer<QWidget> m_area;
    QRect m_available;
};

} // namespace SampleHost

#endif
