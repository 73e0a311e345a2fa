// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_DRAGSCROLLGROUPBOX_H
#define CUSTOMKIT_DRAGSCROLLGROUPBOX_H

#include <customkit_export.h>

#include <QtWidgets/QWidget>

/** The container around the colour menus. */
class CUSTOMKIT_EXPORT DragScrollGroupBox : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

#endif
