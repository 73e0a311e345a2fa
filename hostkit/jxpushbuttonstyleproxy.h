// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_JXPUSHBUTTONSTYLEPROXY_H
#define PRINTPANELS_HOSTKIT_JXPUSHBUTTONSTYLEPROXY_H

#include <hostkit_export.h>

#include <QtWidgets/QProxyStyle>

/**
 * A style for push buttons of the host's look: no frame inside the button that has the focus, and a
 * text that stays in its place while the button is pressed.
 *
 * QWidget::setStyle() does not take a style over: whoever creates the proxy keeps it alive as long
 * as the widget uses it, best by QObject::setParent() with that widget.
 */
class HOSTKIT_EXPORT JxPushButtonStyleProxy : public QProxyStyle
{
    Q_OBJECT

public:
    /**
     * Creates a proxy of @p baseStyle, which it takes over; so never give it a style that another
     * widget uses. With null, or QApplication::style(), it works on a style of its own of the
     * application's kind.
     */
    explicit JxPushButtonStyleProxy(QStyle* baseStyle = nullptr);
    ~JxPushButtonStyleProxy() override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
};

#endif
