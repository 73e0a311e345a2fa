# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Every installed header can be the only one that a source file includes, under our own warnings.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --component Devel --prefix "${WORK_DIR}/installed")
build_project("${CMAKE_CURRENT_LIST_DIR}/headers" "${WORK_DIR}/build"
    -DCMAKE_CXX_FLAGS_DEBUG=-O0
    "-DINCLUDE_FOLDER=${WORK_DIR}/installed/${INCLUDEDIR}" "-DWARNINGS=${WARNINGS}")
