// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "heapinuse.h"

#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__)

// GCC has the function without the header that declares it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

std::size_t heapInUse()
{
    return __sanitizer_get_current_allocated_bytes();
}

#elif defined(_WIN32)

// The C runtime of Windows keeps no sum.
std::size_t heapInUse()
{
    std::size_t bytes = 0;
    _HEAPINFO entry = {};
    while (_heapwalk(&entry) == _HEAPOK) {
        if (entry._useflag == _USEDENTRY)
            bytes += entry._size;
    }
    return bytes;
}

#else

std::size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

#endif
