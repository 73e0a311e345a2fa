// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PRINTPANELS_HOSTKIT_JXPUSHBUTTONSTYLEPROXY_H
#define PRINTPANELS_HOSTKIT_JXPUSHBUTTONSTYLEPROXY_H

#include <hostkit_export.h>

#include <QtWidgets/QProxyStyle>

/**
 * A style for the host's push buttons: it draws no focus frame and does not shift the text of a
 * pressed button.
 *
 * QWidget::setStyle() does not take ownership of the style. Keep it alive as long as a widget uses
 * it, for example by making that widget its parent.
 */
class HOSTKIT_EXPORT JxPushButtonStyleProxy : public QProxyStyle
{
    Q_OBJECT

public:
    /**
     * Creates a style that overrides @p baseStyle and takes ownership of it, so @p baseStyle must
     * not be used by any widget. If @p baseStyle is null or QApplication::style(), the base style
     * is a new instance of QProxyStyle's default.
     */
    explicit JxPushButtonStyleProxy(QStyle* baseStyle = nullptr);
    ~JxPushButtonStyleProxy() override;

    /** Draws @p element unless it is PE_FrameFocusRect. */
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    /** Returns 0 for PM_ButtonShiftHorizontal and PM_ButtonShiftVertical. */
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
};

#endif
