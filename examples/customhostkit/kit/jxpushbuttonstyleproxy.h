// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_JXPUSHBUTTONSTYLEPROXY_H
#define CUSTOMKIT_JXPUSHBUTTONSTYLEPROXY_H

#include <customkit_export.h>

#include <QtWidgets/QProxyStyle>

/** The style of the Print Preview button; a kit draws here what a style sheet cannot say. */
class CUSTOMKIT_EXPORT JxPushButtonStyleProxy : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;
};

#endif
