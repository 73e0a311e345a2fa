// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

// Precompiled before every source that check-msvc reads. The headers of the standard library are
// those of MinGW-w64, which are written for GCC: they are read as GCC would, and everything after
// them as Visual C++ would.

#pragma push_macro("_MSC_VER")
#undef _MSC_VER
#include <_mingw.h>
#undef __MINGW_IMPORT
#define __MINGW_IMPORT extern __declspec(dllimport)

// What Visual C++ reports as deprecated (C4996): a declaration passes this on to those after it.
struct _iobuf;
#define DEPRECATED extern "C" __declspec(deprecated("C4996"))
DEPRECATED int __cdecl access(const char*, int);
DEPRECATED int __cdecl close(int);
DEPRECATED int __cdecl dup(int);
DEPRECATED int __cdecl dup2(int, int);
DEPRECATED _iobuf* __cdecl fopen(const char*, const char*);
DEPRECATED _iobuf* __cdecl freopen(const char*, const char*, _iobuf*);
DEPRECATED int __cdecl getpid();
DEPRECATED char* __cdecl getenv(const char*);
DEPRECATED int __cdecl isatty(int);
DEPRECATED int __cdecl putenv(const char*);
DEPRECATED int __cdecl read(int, void*, unsigned);
DEPRECATED char* __cdecl strcat(char*, const char*);
DEPRECATED char* __cdecl strcpy(char*, const char*);
DEPRECATED char* __cdecl strdup(const char*);
DEPRECATED char* __cdecl strerror(int);
DEPRECATED char* __cdecl strncat(char*, const char*, size_t);
DEPRECATED char* __cdecl strncpy(char*, const char*, size_t);
DEPRECATED char* __cdecl strtok(char*, const char*);
DEPRECATED int __cdecl unlink(const char*);
DEPRECATED int __cdecl write(int, const void*, unsigned);
#undef DEPRECATED

// Names of libstdc++ that are keywords of clang. It does not remember in precompiled headers that
// they were redefined.
#define __is_arithmetic __printpanels_is_arithmetic
#define __is_pointer __printpanels_is_pointer
#define __is_scalar __printpanels_is_scalar
#define __is_void __printpanels_is_void

#include <algorithm>
#include <any>
#include <array>
#include <atomic>
#include <bitset>
#include <cassert>
#include <cctype>
#include <cerrno>
#include <cfloat>
#include <charconv>
#include <chrono>
#include <cinttypes>
#include <climits>
#include <clocale>
#include <cmath>
#include <complex>
#include <condition_variable>
#include <csetjmp>
#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <cwchar>
#include <cwctype>
#include <deque>
#include <exception>
#include <filesystem>
#include <forward_list>
#include <fstream>
#include <functional>
#include <future>
#include <initializer_list>
#include <iomanip>
#include <ios>
#include <iosfwd>
#include <iostream>
#include <istream>
#include <iterator>
#include <limits>
#include <list>
#include <locale>
#include <map>
#include <memory>
#include <memory_resource>
#include <mutex>
#include <new>
#include <numeric>
#include <optional>
#include <ostream>
#include <queue>
#include <random>
#include <ratio>
#include <regex>
#include <scoped_allocator>
#include <set>
#include <shared_mutex>
#include <sstream>
#include <stack>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <tuple>
#include <type_traits>
#include <typeindex>
#include <typeinfo>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <valarray>
#include <variant>
#include <vector>

#include <direct.h>
#include <fcntl.h>
#include <io.h>
#include <malloc.h>
#include <process.h>
#include <sys/stat.h>
#include <sys/types.h>

#pragma pop_macro("_MSC_VER")

// What Visual C++ does not define.
#undef NOMINMAX
#undef __GNUC__
#undef __GNUG__
#undef __clang__
#undef _alloca
