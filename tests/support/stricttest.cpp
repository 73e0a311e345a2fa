// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <QtCore/QRegularExpression>

void StrictTest::init()
{
    // Warnings of the offscreen platform plugin about windows with a size limit, popups and tool
    // tips; of the Windows plugin about windows that would be smaller than their frame or larger
    // than the screen; and of Qt's own connection to a window that loses the focus while it gets
    // it.
    QTest::failOnWarning(QRegularExpression(
        QStringLiteral("^(?!This plugin does not support "
                       "(propagateSizeHints\\(\\)|raise\\(\\)|grabbing the (keyboard|mouse))$|"
                       ".*setGeometry: Unable to set geometry |"
                       "QObject::connect: Cannot connect \\(nullptr\\)::focusObjectChanged)")));
}
