// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/printing/previewcanvas.h"

#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

namespace SampleHost {

PreviewCanvas::PreviewCanvas(QWidget& panel, const QRect& expectedPlace)
    : QObject(&panel),
      m_canvas(panel.findChild<QWidget*>(QStringLiteral("PreviewView"))),
      m_fit(expectedPlace, panel.devicePixelRatioF())
{
    if (m_canvas != nullptr) {
        m_canvas->installEventFilter(this);
    }
}

bool PreviewCanvas::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_canvas) {
        if (event->type() == QEvent::Show) {
            update();
        } else if (event->type() == QEvent::Paint) {
            // Whatever has changed, the screen or the size: it is painted then. Not now, because a
            // new picture is painted, too.
            QMetaObject::invokeMethod(this, &PreviewCanvas::update, Qt::QueuedConnection);
        }
    }
    return QObject::eventFilter(watched, event);
}

void PreviewCanvas::update()
{
    const ScreenFit fit(*m_canvas);
    if (fit != m_fit) {
        m_fit = fit;
        Q_EMIT fitChanged();
    }
}

} // namespace SampleHost
