// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_DRAGSCROLLBUTTON_H
#define PRINTPANELS_HOSTKIT_DRAGSCROLLBUTTON_H

#include <hostkit_export.h>

#include <QtWidgets/QPushButton>

#include <memory>

namespace HostKit {
class DragScroller;
}

/**
 * A push button for panels that lie in a scroll area: a press that turns into a drag (beyond
 * QApplication::startDragDistance()) scrolls the nearest enclosing QScrollArea that has something
 * to scroll. Such a press ends in released() without clicked(), and auto-repeat stops. Outside a
 * scroll area it is a plain QPushButton.
 */
class HOSTKIT_EXPORT DragScrollButton : public QPushButton
{
    Q_OBJECT

public:
    /** Creates a button without a text; @p parent (may be null) owns it. */
    explicit DragScrollButton(QWidget* parent = nullptr);
    /** Creates a button with @p text; @p parent (may be null) owns it. */
    explicit DragScrollButton(const QString& text, QWidget* parent = nullptr);
    ~DragScrollButton() override;

protected:
    void hideEvent(QHideEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::unique_ptr<HostKit::DragScroller> m_scroller;
};

#endif
