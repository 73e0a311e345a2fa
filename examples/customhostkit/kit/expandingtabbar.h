// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_EXPANDINGTABBAR_H
#define CUSTOMKIT_EXPANDINGTABBAR_H

#include <customkit_export.h>

#include <QtWidgets/QTabBar>

/** The tabs of the ribbons and the supply, each with a rectangle of its colour. */
class CUSTOMKIT_EXPORT ExpandingTabBar : public QTabBar
{
    Q_OBJECT

public:
    using QTabBar::QTabBar;

    /** Shows a colour code on a tab; any other text, such as "blank", shows no rectangle. */
    void setTabColorRect(int index, const QString& color);

protected:
    void initStyleOption(QStyleOptionTab* option, int tabIndex) const override;
};

#endif
