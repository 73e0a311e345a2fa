// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_COLORSWATCH_H
#define PRINTPANELS_HOSTKIT_COLORSWATCH_H

#include <dragscrollbutton.h>

namespace HostKit {

/** An entry of a ColorMenu: a checkable button that paints its colour. */
class ColorSwatch : public DragScrollButton
{
    Q_OBJECT

public:
    /** The minimum width and height of a swatch, in device-independent pixels. */
    static constexpr int touchSize = 35;

    /**
     * Creates a swatch for the colour @p code with @p name, which may be empty, as its tool tip.
     * Screen readers are told the name and the code. @p parent owns it.
     */
    ColorSwatch(const QString& name, const QString& code, QWidget* parent);
    ~ColorSwatch() override;

    /** Returns the code that was passed to the constructor. */
    QString code() const;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    /** Does nothing: the menu checks the swatch that is picked. */
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintFocus(QPainter* painter) const;
    void paintCheckMark(QPainter* painter, const QRectF& field) const;

    QString m_code;
};

} // namespace HostKit

#endif
