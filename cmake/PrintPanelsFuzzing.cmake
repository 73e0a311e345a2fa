# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Instruments all targets defined after this for coverage-guided fuzzing and with the sanitizers. The
# runtime is linked into the fuzzers only, so shared libraries are linked with undefined symbols.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "PRINTPANELS_FUZZERS needs clang++: cmake --preset fuzz")
endif()
add_compile_options(
    -fsanitize=fuzzer-no-link,address,undefined
    -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
add_link_options(-fsanitize=address,undefined)
