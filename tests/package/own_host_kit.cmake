# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# A host that brings a kit of its own: the example takes the library in as a subdirectory and names its
# kit's target. The stand-in kit must then not be part of the build.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/drive.cmake")

build_project("${SOURCE_DIR}/examples/customhostkit" "${WORK_DIR}/build" "-DPRINTPANELS_PCH=${PCH}")

function(find_stand_in build answer)
    file(GLOB_RECURSE libraries "${build}/*printpanels-hostkit.*")
    set(${answer} "${libraries}" PARENT_SCOPE)
endfunction()
find_stand_in("${BUILD_DIR}/hostkit" stand_in)
if(NOT stand_in)
    message(FATAL_ERROR "The stand-in kit has another name now, so that it would not be noticed here")
endif()
find_stand_in("${WORK_DIR}/build" stand_in)
if(stand_in)
    message(FATAL_ERROR "The stand-in kit is built although the host brings its own: ${stand_in}")
endif()

build_driver()
set(DLL_FOLDERS "${WORK_DIR}/build" "${WORK_DIR}/build/printpanels")
drive("${WORK_DIR}/build/customhostkit_example" ""
    "show supplyInfoWidget"
    "show ribbon1Menu"
    "click #248d4f"
    "type supplyWidthEdit 1.5 in"
    "type copiesSpinBox 7"
    "click plusButton"
    "click PrintButton"
    "click recordListRadio"
    "type recordListEdit 2,5-7"
    "click PreviewButton"
    "click printButton"
    "click titleBarCloseButton"
    "close")
expect_output("Print 1 -1 \"\", copies: 8")
expect_output("Print 0 0 \"2,5-7\", copies: 8")
