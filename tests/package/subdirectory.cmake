# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# A parent project that takes the library in as a subdirectory: it gets the libraries, in the kind that
# it builds, and the public headers. It gets no tests, nothing to install and no private header.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")

set(parent "${CMAKE_CURRENT_LIST_DIR}/subdirectory")
configure_project("${parent}" "${WORK_DIR}/build"
    "-DPRINTPANELS_SOURCE=${SOURCE_DIR}" -DBUILD_TESTING=ON)
run("${CMAKE_COMMAND}" --install "${WORK_DIR}/build" --prefix "${WORK_DIR}/installed")
list_files("${WORK_DIR}/installed" installed)
compare_lists("Installed with the parent" "${installed}" "")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/build" --target includes)

# A parent without tests has none of ours, even if it asks for them.
configure_project("${parent}" "${WORK_DIR}/build" -DBUILD_TESTING=OFF -DPRINTPANELS_TESTS=ON)
