// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/system.h"

#include <windows.h>

namespace SampleHost {

// There is always a display, and the platform "offscreen" has no fonts.
void choosePlatform(bool) {}

void closeOwnConsole()
{
    DWORD process = 0;
    if (GetConsoleProcessList(&process, 1) == 1) {
        FreeConsole();
    }
}

// A console takes any text; files and pipes get the encoding of the system.
void printLine(std::FILE* stream, const QString& text)
{
    const QString line = text + QLatin1Char('\n');
    const HANDLE handle = GetStdHandle(stream == stdout ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    DWORD mode = 0;
    if (GetConsoleMode(handle, &mode) != 0) {
        DWORD written = 0;
        WriteConsoleW(handle, line.utf16(), DWORD(line.size()), &written, nullptr);
    } else {
        std::fputs(qPrintable(line), stream);
        std::fflush(stream);
    }
}

} // namespace SampleHost
