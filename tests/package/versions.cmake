# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# While the major version is 0, every minor version has an interface of its own: a consumer finds the one
# that it asks for and no other, and a program loads the one that it was built with.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/installed")
configure_project("${CMAKE_CURRENT_LIST_DIR}/versions" "${WORK_DIR}/build"
    "-DCMAKE_PREFIX_PATH=${WORK_DIR}/installed" "-DVERSION=${VERSION}")

if(WINDOWS)
    return() # the names of DLLs have no version
endif()
foreach(name IN ITEMS libprintpanels.so libprintpanels-hostkit.so)
    set(library "${WORK_DIR}/installed/${LIBDIR}/${name}")
    execute_process(COMMAND "${OBJDUMP}" -p "${library}"
        OUTPUT_VARIABLE sections COMMAND_ERROR_IS_FATAL ANY)
    if(NOT sections MATCHES "SONAME +([^ \n]+)" OR NOT CMAKE_MATCH_1 STREQUAL "${name}.${INTERFACE_VERSION}")
        message(FATAL_ERROR "${library} is called \"${CMAKE_MATCH_1}\"")
    endif()
endforeach()
