# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# A host that brings a kit of its own: its project defines the target, takes the library in as a
# subdirectory and names the target. The stand-in kit must then not be part of the build.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")

build_project("${CMAKE_CURRENT_LIST_DIR}/ownkit" "${WORK_DIR}/build"
    "-DPRINTPANELS_SOURCE=${SOURCE_DIR}" "-DPRINTPANELS_PCH=${PCH}")
run("${WORK_DIR}/build/host")
