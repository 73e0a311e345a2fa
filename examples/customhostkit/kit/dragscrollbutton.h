// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef CUSTOMKIT_DRAGSCROLLBUTTON_H
#define CUSTOMKIT_DRAGSCROLLBUTTON_H

#include <customkit_export.h>

#include <QtWidgets/QPushButton>

/** A push button. A touch kit may let a drag that starts on it scroll the panel. */
class CUSTOMKIT_EXPORT DragScrollButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;
};

#endif
