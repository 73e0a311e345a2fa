# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Installs the package, moves it, and builds and runs a consumer against it: nothing that is installed
# may remember the build tree or the place of installation.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/first")
file(RENAME "${WORK_DIR}/first" "${WORK_DIR}/moved")

file(GLOB_RECURSE texts "${WORK_DIR}/moved/*.h" "${WORK_DIR}/moved/*.cmake")
foreach(text IN LISTS texts)
    file(READ "${text}" content)
    foreach(place "${BUILD_DIR}" "${SOURCE_DIR}" "${WORK_DIR}")
        string(FIND "${content}" "${place}" found)
        if(NOT found LESS 0)
            message(FATAL_ERROR "${text} names ${place}")
        endif()
    endforeach()
endforeach()

file(COPY "${CMAKE_CURRENT_LIST_DIR}/consumer" DESTINATION "${WORK_DIR}")
extract_readme_example("${WORK_DIR}/consumer/readme_example.cpp")
build_project("${WORK_DIR}/consumer" "${WORK_DIR}/build" "-DCMAKE_PREFIX_PATH=${WORK_DIR}/moved")
set(DLL_FOLDERS "${WORK_DIR}/moved/${BINDIR}")
run_program("${WORK_DIR}/build/consumer")
