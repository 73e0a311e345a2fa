// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/window/windowstate.h"

#include <QtCore/QSettings>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace SampleHost {

namespace {

const QString rectangleKey = QStringLiteral("window/rectangle");
const QString maximizedKey = QStringLiteral("window/maximized");
const QString docksKey = QStringLiteral("docks");

// Nothing beyond this is a place on a screen.
constexpr QRect farthest(-100000, -100000, 200000, 200000);

/** A dock in its area, or as a window of its own inside the screen. */
void restoreDock(QMainWindow& window, QDockWidget& dock, const QSettings& stored,
                 const QRect& available)
{
    const int area = stored.value(QStringLiteral("area")).toInt();
    if (area == Qt::RightDockWidgetArea || area == Qt::BottomDockWidgetArea ||
        area == Qt::TopDockWidgetArea) {
        window.addDockWidget(Qt::DockWidgetArea(area), &dock);
    }
    dock.setVisible(stored.value(QStringLiteral("open")).toBool());
    if (stored.value(QStringLiteral("floating")).toBool()) {
        const QRect place = stored.value(QStringLiteral("rectangle")).toRect();
        dock.setFloating(true);
        if (place.isValid() && farthest.contains(place)) {
            dock.setGeometry(WindowState::inside(place, available));
        }
    }
    const int width = stored.value(QStringLiteral("width")).toInt();
    if (width > 0) {
        window.resizeDocks({&dock}, {std::min(width, available.width())}, Qt::Horizontal);
    }
}

void storeDock(const QMainWindow& window, QDockWidget& dock, QSettings& stored)
{
    stored.setValue(QStringLiteral("area"), int(window.dockWidgetArea(&dock)));
    stored.setValue(QStringLiteral("open"), !dock.isHidden());
    stored.setValue(QStringLiteral("floating"), dock.isFloating());
    stored.setValue(QStringLiteral("rectangle"), dock.geometry());
    stored.setValue(QStringLiteral("width"), dock.width());
}

/** Calls a function for each dock, with its own group of the settings. */
template <typename Function>
void forEachDock(const QMainWindow& window, QSettings& settings, Function function)
{
    const auto docks = window.findChildren<QDockWidget*>();
    for (QDockWidget* dock : docks) {
        settings.beginGroup(docksKey + QLatin1Char('/') + dock->objectName());
        function(*dock);
        settings.endGroup();
    }
}

} // namespace

QRect WindowState::inside(const QRect& wanted, const QRect& available)
{
    QRect rect(wanted.topLeft(), wanted.size().boundedTo(available.size()));
    rect.moveRight(std::min(rect.right(), available.right()));
    rect.moveBottom(std::min(rect.bottom(), available.bottom()));
    rect.moveLeft(std::max(rect.left(), available.left()));
    rect.moveTop(std::max(rect.top(), available.top()));
    return rect;
}

void WindowState::restore(QMainWindow& window, const QRect& available)
{
    QSettings stored;
    forEachDock(window, stored,
                [&](QDockWidget& dock) { restoreDock(window, dock, stored, available); });
    // The title bar stands above the window's own rectangle.
    const int titleBar = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QRect room = available.adjusted(0, titleBar, 0, 0);
    QRect wanted = stored.value(rectangleKey).toRect();
    const bool known = wanted.isValid() && farthest.contains(wanted);
    if (!known) {
        wanted = QRect(room.topLeft(), window.size());
    }
    const QRect rect = inside(wanted, room);
    const bool tooSmall = rect.size() != wanted.size();
    if (known || tooSmall) {
        window.setGeometry(rect);
    }
    if (tooSmall || stored.value(maximizedKey).toBool()) {
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    }
}

bool WindowState::store(const QMainWindow& window)
{
    QSettings stored;
    const QRect rectangle = window.normalGeometry();
    stored.setValue(rectangleKey, rectangle.isValid() ? rectangle : window.geometry());
    stored.setValue(maximizedKey, window.isMaximized());
    // Not QMainWindow::saveState(): with damaged bytes, restoring would take minutes.
    forEachDock(window, stored, [&](QDockWidget& dock) { storeDock(window, dock, stored); });
    stored.sync();
    return stored.status() == QSettings::NoError;
}

} // namespace SampleHost
