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
 * A container for use in a scroll area, which scrolls when the user drags the container.
 *
 * A drag that starts on the container, or on a child that ignores mouse events, scrolls the nearest
 * enclosing QScrollArea whose contents do not fit. The background and border set by a style sheet
 * are painted.
 */
class HOSTKIT_EXPORT DragScrollGroupBox : public QWidget
{
    Q_OBJECT

public:
    /** Creates an empty container without a layout. @p parent (may be null) owns it. */
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
