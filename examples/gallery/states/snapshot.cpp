// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "snapshot.h"

#include "panelstate.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <memory>

namespace Gallery {

namespace {

// Combo boxes take the width of their contents 20 milliseconds after these change, and ask the
// layout whether it has room for that. On a busy machine both waits end in the same turn of the
// event loop.
void settle()
{
    QEventLoop loop;
    QTimer::singleShot(30, &loop, &QEventLoop::quit);
    loop.exec();
    QCoreApplication::processEvents();
}

// A host has a column for its panels, which is wider only if a panel needs that.
constexpr int columnWidth = 320;

void fit(QWidget& window)
{
    const int width = qMax(columnWidth, window.minimumSizeHint().width());
    window.resize(width, window.sizeHint().height());
    settle();
}

void show(QWidget& window)
{
    // Away from the mouse pointer, which stands in the corner of a screen that has none.
    window.move(100, 100);
    window.show();
    window.activateWindow();
    fit(window);
    if (QWidget* focused = window.focusWidget())
        focused->clearFocus();
}

// The window with the lists that are open.
QImage picture(QWidget& window)
{
    QPixmap pixmap = window.grab();
    QPainter painter(&pixmap);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* popup : windows) {
        if (popup != &window && popup->isVisible())
            painter.drawPixmap(window.mapFromGlobal(popup->mapToGlobal(QPoint())), popup->grab());
    }
    painter.end();
    return pixmap.toImage();
}

} // namespace

QImage snapshot(const PanelState& state)
{
    const std::unique_ptr<QWidget> window(state.create());
    show(*window);
    if (state.operate != nullptr) {
        state.operate(*window);
        fit(*window);
    }
    return picture(*window);
}

} // namespace Gallery
