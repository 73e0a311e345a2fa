// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PREVIEWCANVAS_H
#define SAMPLEHOST_PREVIEWCANVAS_H

#include "samplehost/printing/screenfit.h"

#include <QtCore/QObject>

class QWidget;

namespace SampleHost {

/** Watches the preview in one of the panels: what its pictures have to be like on its screen. */
class PreviewCanvas : public QObject
{
    Q_OBJECT

public:
    /** Watches the preview of a panel, which owns this. Until it is shown, its place is a guess. */
    PreviewCanvas(QWidget& panel, const QRect& expectedPlace);

    /** What the current picture has to be like. */
    const ScreenFit& fit() const { return m_fit; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /** The preview needs a new picture: it got another size, or is on another screen. */
    void fitChanged();

private:
    void update();

    QWidget* m_canvas = nullptr;
    ScreenFit m_fit;
};

} // namespace SampleHost

#endif
