// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_LABELVIEW_H
#define SAMPLEHOST_LABELVIEW_H

#include <QtCore/QSizeF>
#include <QtWidgets/QWidget>

#include <functional>

namespace SampleHost {

/** Shows one sheet as paper with a shadow, scaled to the available space. */
class LabelView : public QWidget
{
    Q_OBJECT

public:
    /** Paints the contents of the sheet into a rectangle of the painter's coordinates. */
    using Paint = std::function<void(QPainter& painter, const QRectF& paper)>;

    /** A view without a sheet. */
    explicit LabelView(QWidget* parent = nullptr);

    /** Shows a sheet of sheetMm (millimetres). An empty size, or no function, shows no sheet. */
    void setSheet(const QSizeF& sheetMm, Paint paint);

    /** The rectangle of the paper in the view; empty without a sheet. */
    QRectF paperRect() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSizeF m_sheetMm;
    Paint m_paint;
};

} // namespace SampleHost

#endif
