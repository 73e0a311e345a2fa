// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/system.h"

#include <QtCore/QByteArray>

namespace SampleHost {

// Runs without a user need no display, and interactive use is impossible without one.
void choosePlatform(bool headless)
{
    const bool display =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    const bool chosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    if (headless || (!display && !chosen)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

void closeOwnConsole() {}

void printLine(std::FILE* stream, const QString& text)
{
    std::fputs(qPrintable(text + QLatin1Char('\n')), stream);
    std::fflush(stream);
}

} // namespace SampleHost
