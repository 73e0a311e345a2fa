// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/stricttest.h"

#include <QtCore/QRegularExpression>

void StrictTest::init()
{
    // The offscreen platform says this of every window with a size limit, and of popups and
    // tool tips; it is not about us.
    QTest::failOnWarning(QRegularExpression(
        QStringLiteral("^(?!This plugin does not support "
                       "(propagateSizeHints\\(\\)|raise\\(\\)|grabbing the (keyboard|mouse))$)")));
}
