# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Compiles everything that follows so that coverage guides the fuzzers, and under the sanitizers. Their
# runtime stands in the fuzzers themselves, so shared libraries are linked with symbols missing.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "PRINTPANELS_FUZZERS needs clang++: cmake --preset fuzz")
endif()
add_compile_options(
    -fsanitize=fuzzer-no-link,address,undefined
    -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
add_link_options(-fsanitize=address,undefined)
