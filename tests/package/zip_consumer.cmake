# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# The archive for Windows has all that is installed, and a consumer needs nothing else, wherever the
# archive is unpacked.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")

run("${CMAKE_CPACK_COMMAND}" --config "${BUILD_DIR}/CPackConfig.cmake" -G ZIP -B "${WORK_DIR}/packed")
set(name "PrintPanels-${VERSION}-win64-mingw")
set(place "${WORK_DIR}/Ünpacked here")
file(ARCHIVE_EXTRACT INPUT "${WORK_DIR}/packed/${name}.zip" DESTINATION "${place}")

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/installed")
list_files("${WORK_DIR}/installed" expected)
list(TRANSFORM expected PREPEND "${name}/")
list(APPEND expected "${name}/LICENSE" "${name}/README.md")
list_files("${place}" unpacked)
compare_lists("The archive" "${unpacked}" "${expected}")
file(REMOVE_RECURSE "${WORK_DIR}/installed")

build_project("${CMAKE_CURRENT_LIST_DIR}/consumer" "${WORK_DIR}/build"
    "-DCMAKE_PREFIX_PATH=${place}/${name}")
set(DLL_FOLDERS "${place}/${name}/${BINDIR}")
run_program("${WORK_DIR}/build/consumer")
