// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_CONTAINERTITLEBAR_H
#define PRINTPANELS_HOSTKIT_CONTAINERTITLEBAR_H

#include <hostkit_export.h>

#include <QtCore/QPoint>
#include <QtWidgets/QWidget>

#include <optional>

namespace HostKit {
class TitleBarButton;
class TitleBarLabel;
} // namespace HostKit

/**
 * The title bar of a frameless window, with a title and a close button.
 *
 * The title bar does not close the window or move it when dragged; it emits signals for the window
 * to handle.
 */
class HOSTKIT_EXPORT ContainerTitleBar : public QWidget
{
    Q_OBJECT

public:
    /**
     * Creates a title bar that shows @p title as plain text. A title that is too wide is shown
     * smaller, or elided if it would become too small.
     *
     * The font size is @p titlePixelSize pixels, or unchanged if that is not positive; setFont()
     * changes the font of the title. @p closeToolTip is the tool tip of the close button; if empty,
     * there is none. @p parent (may be null) owns the title bar.
     */
    ContainerTitleBar(QWidget* parent, const QString& title, const QString& closeToolTip,
                      int titlePixelSize);
    ~ContainerTitleBar() override;

    /** Returns the full title, even if it is shown elided. */
    QString title() const;

    /** Sets the title to @p title. */
    void setTitle(const QString& title);

Q_SIGNALS:
    /** Emitted when the user clicks the close button. */
    void closeButtonClicked();

    /**
     * Emitted while the user drags the title bar with the left mouse button. The window should move
     * to the screen position (@p x, @p y), in device-independent pixels, with QWidget::move(). Not
     * emitted if the window is already there.
     */
    void signalMove(int x, int y);

protected:
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    HostKit::TitleBarLabel* m_label = nullptr;
    HostKit::TitleBarButton* m_closeButton = nullptr;
    // The window's position relative to the pointer, while the user drags.
    std::optional<QPoint> m_grip;
};

#endif
