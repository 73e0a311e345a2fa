# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Packs what is installed for Windows: cpack --config build/windows-mingw/CPackConfig.cmake
# The C++ libraries of MinGW are not part of it: the DLLs of a program share one set of them.
install(FILES "${PROJECT_SOURCE_DIR}/README.md" "${PROJECT_SOURCE_DIR}/LICENSE"
    DESTINATION .
    COMPONENT Archive
    EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_VENDOR "The PrintPanels developers")
# A DLL serves programs by the same compiler only.
set(printpanels_compiler msvc)
if(MINGW)
    set(printpanels_compiler mingw)
endif()
set(CPACK_PACKAGE_FILE_NAME "${PROJECT_NAME}-${PROJECT_VERSION}-win64-${printpanels_compiler}")
set(CPACK_INSTALL_CMAKE_PROJECTS "")
foreach(component IN ITEMS Runtime Devel Archive)
    list(APPEND CPACK_INSTALL_CMAKE_PROJECTS
        "${PROJECT_BINARY_DIR}" ${PROJECT_NAME} ${component} /)
endforeach()
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
