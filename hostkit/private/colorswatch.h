// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_COLORSWATCH_H
#define PRINTPANELS_HOSTKIT_COLORSWATCH_H

#include <dragscrollbutton.h>

namespace HostKit {

/** One entry of a ColorMenu: a checkable button that paints its colour. */
class ColorSwatch : public DragScrollButton
{
    Q_OBJECT

public:
    /** The side of a swatch, in device-independent pixels. */
    static constexpr int touchSize = 35;

    /** Creates a swatch of the colour text @p code, called @p name, which may be empty. */
    ColorSwatch(const QString& name, const QString& code, QWidget* parent);
    ~ColorSwatch() override;

    /** The colour text as it was given. */
    QString code() const;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintCheckMark(QPainter* painter, const QRectF& field) const;

    QString m_code;
};

} // namespace HostKit

#endif
