# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# The library as static libraries: a program that is linked to them has the panels with all of their
# images, though nothing in it refers to an image.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")

# Without debugging information, to be quick.
build_project("${SOURCE_DIR}" "${WORK_DIR}/library"
    -DBUILD_SHARED_LIBS=OFF -DBUILD_TESTING=OFF -DCMAKE_CXX_FLAGS_DEBUG=-O0 "-DPRINTPANELS_PCH=${PCH}"
    -DPRINTPANELS_SAMPLE_HOST=OFF -DPRINTPANELS_BENCHMARKS=OFF -DPRINTPANELS_TRANSLATIONS=OFF)
run("${CMAKE_COMMAND}" --install "${WORK_DIR}/library" --prefix "${WORK_DIR}/first")
file(RENAME "${WORK_DIR}/first" "${WORK_DIR}/moved")
file(REMOVE_RECURSE "${WORK_DIR}/library")

file(COPY "${CMAKE_CURRENT_LIST_DIR}/consumer" DESTINATION "${WORK_DIR}")
build_project("${WORK_DIR}/consumer" "${WORK_DIR}/build" "-DCMAKE_PREFIX_PATH=${WORK_DIR}/moved")
run_program("${WORK_DIR}/build/consumer")
