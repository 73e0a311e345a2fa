// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <QtCore/QRegularExpression>

void StrictTest::init()
{
    // Warnings of the offscreen platform plugin about windows with a size limit, popups and tool
    // tips.
    QTest::failOnWarning(QRegularExpression(
        QStringLiteral("^(?!This plugin does not support "
                       "(propagateSizeHints\\(\\)|raise\\(\\)|grabbing the (keyboard|mouse))$)")));
}
