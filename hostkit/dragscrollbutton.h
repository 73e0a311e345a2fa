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
 * A push button for use in a scroll area, which scrolls when the user drags the button.
 *
 * A drag of at least QApplication::startDragDistance() scrolls the nearest enclosing QScrollArea
 * whose contents do not fit. When it starts, the button emits released(), but not clicked(), and
 * stops auto-repeating. Without such a scroll area it behaves like a QPushButton.
 */
class HOSTKIT_EXPORT DragScrollButton : public QPushButton
{
    Q_OBJECT

public:
    /** Creates a button without text. @p parent (may be null) owns it. */
    explicit DragScrollButton(QWidget* parent = nullptr);
    /** Creates a button with the text @p text. @p parent (may be null) owns it. */
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
