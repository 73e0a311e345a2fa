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
 * The title bar of a frameless window: a title, a close button, and a surface by which the user
 * drags the window. The bar moves and closes nothing itself; its signals say what the window should
 * do.
 */
class HOSTKIT_EXPORT ContainerTitleBar : public QWidget
{
    Q_OBJECT

public:
    /**
     * Creates a bar with the text @p title, shown as plain text and elided when it is too long, in
     * a font of @p titlePixelSize pixels (kept as it is when that is not positive). @p closeToolTip
     * is the tool tip of the close button; empty for none. @p parent (may be null) owns the bar. A
     * later setFont() changes the title's font.
     */
    ContainerTitleBar(QWidget* parent, const QString& title, const QString& closeToolTip,
                      int titlePixelSize);
    ~ContainerTitleBar() override;

    /** The whole title, also while it is shown elided. */
    QString title() const;

    /** Replaces the title. */
    void setTitle(const QString& title);

Q_SIGNALS:
    /** The user clicked the close button. */
    void closeButtonClicked();

    /**
     * The user drags the bar with the left mouse button: the window that holds the bar should have
     * its top left corner at (@p x, @p y) of the screen, in device-independent pixels, for
     * QWidget::move().
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
    // From the pointer to the window's corner, while the user drags.
    std::optional<QPoint> m_grip;
};

#endif
