# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# What a program needs to run is one component, what it needs to be built is the other: together they
# are the whole package, and nothing is in both.
cmake_minimum_required(VERSION 3.21)
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --component Runtime --prefix "${WORK_DIR}/runtime")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --component Devel --prefix "${WORK_DIR}/devel")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/whole")
foreach(part IN ITEMS runtime devel whole)
    list_files("${WORK_DIR}/${part}" ${part})
endforeach()

foreach(name IN ITEMS printpanels printpanels-hostkit)
    if(WINDOWS)
        list(APPEND expected_runtime "${BINDIR}/${name}.dll")
        list(APPEND link_files "${LIBDIR}/lib${name}.dll.a" "${BINDIR}/${name}.dll.debug")
    else()
        list(APPEND expected_runtime
            "${LIBDIR}/lib${name}.so.${VERSION}" "${LIBDIR}/lib${name}.so.${INTERFACE_VERSION}")
        list(APPEND link_files "${LIBDIR}/lib${name}.so")
    endif()
endforeach()
set(translations "${runtime}")
list(FILTER translations INCLUDE REGEX "^${DATADIR}/printpanels/translations/printpanels_[a-z]+\\.qm$")
if(TRANSLATIONS AND NOT translations)
    message(FATAL_ERROR "No translations in the component Runtime")
endif()
list(APPEND expected_runtime ${translations})
compare_lists("Runtime" "${runtime}" "${expected_runtime}")

set(expected_devel "${whole}")
list(REMOVE_ITEM expected_devel ${runtime})
compare_lists("Devel" "${devel}" "${expected_devel}")
foreach(file IN ITEMS
        ${link_files}
        "${LIBDIR}/cmake/PrintPanels/PrintPanelsConfig.cmake"
        "${INCLUDEDIR}/printpanels/printwidget.h"
        "${INCLUDEDIR}/printpanels-hostkit/jxcombobox.h")
    if(NOT file IN_LIST devel)
        message(FATAL_ERROR "Not in the component Devel: ${file}")
    endif()
endforeach()
