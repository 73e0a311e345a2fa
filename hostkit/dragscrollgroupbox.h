// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_DRAGSCROLLGROUPBOX_H
#define PRINTPANELS_HOSTKIT_DRAGSCROLLGROUPBOX_H

#include <hostkit_export.h>

#include <QtWidgets/QWidget>

#include <memory>

namespace HostKit {
class DragScroller;
}

/**
 * A plain container. A drag that starts on it, or on a child that does not use the mouse itself,
 * scrolls the nearest enclosing QScrollArea that has something to scroll. It paints the background
 * and border that a style sheet gives it.
 */
class HOSTKIT_EXPORT DragScrollGroupBox : public QWidget
{
    Q_OBJECT

public:
    /** Creates an empty container without a layout; @p parent (may be null) owns it. */
    explicit DragScrollGroupBox(QWidget* parent = nullptr);
    ~DragScrollGroupBox() override;

protected:
    void hideEvent(QHideEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::unique_ptr<HostKit::DragScroller> m_scroller;
};

#endif
