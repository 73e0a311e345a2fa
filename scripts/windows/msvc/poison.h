// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Names that clang or MinGW-w64 know and Visual C++ does not: an error wherever they occur after
// this.
#undef strcasecmp
#undef strncasecmp
#pragma GCC poison __PRETTY_FUNCTION__ __asm__                                                     \
    __attribute__ __extension__ __int128 __typeof__ typeof
#pragma GCC poison __builtin_clz __builtin_ctz __builtin_expect __builtin_popcount
#pragma GCC poison __builtin_trap __builtin_unreachable
#pragma GCC poison mode_t pid_t ssize_t useconds_t
#pragma GCC poison clock_gettime gettimeofday gmtime_r localtime_r nanosleep
#pragma GCC poison strtok_r usleep
#pragma GCC poison strcasecmp strncasecmp
