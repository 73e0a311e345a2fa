// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <jxpushbuttonstyleproxy.h>

#include <QtWidgets/QApplication>

JxPushButtonStyleProxy::JxPushButtonStyleProxy(QStyle* baseStyle)
    : QProxyStyle(baseStyle == QApplication::style() ? nullptr : baseStyle)
{
}

JxPushButtonStyleProxy::~JxPushButtonStyleProxy() = default;

void JxPushButtonStyleProxy::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                           QPainter* painter, const QWidget* widget) const
{
    if (element != PE_FrameFocusRect)
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int JxPushButtonStyleProxy::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                        const QWidget* widget) const
{
    if (metric == PM_ButtonShiftHorizontal || metric == PM_ButtonShiftVertical)
        return 0;
    return QProxyStyle::pixelMetric(metric, option, widget);
}
