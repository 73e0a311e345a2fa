// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PANELSCROLLER_H
#define SAMPLEHOST_PANELSCROLLER_H

#include <QtWidgets/QScrollArea>

namespace SampleHost {

/**
 * Shows a print panel in a column of one width, and scrolls it if it is higher than the window.
 * There is always room for the scroll bar, so that the panel never changes its width.
 */
class PanelScroller : public QScrollArea
{
    Q_OBJECT

public:
    /** Takes ownership of the panel. */
    explicit PanelScroller(QWidget* panel, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /** The height at which the whole panel is visible. */
    int fullHeight() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void updatePanelSize();
    int columnWidth() const;

    int m_panelWidth = 0;
};

} // namespace SampleHost

#endif
