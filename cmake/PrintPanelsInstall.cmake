# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Installs the library, the stand-in kit if it is built, their headers and the CMake package. The
# component Runtime contains what programs need at run time, Devel what is needed to build them.
include(CMakePackageConfigHelpers)

set(printpanels_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/PrintPanels")
set(printpanels_installed_targets printpanels)
if(TARGET printpanels_hostkit)
    list(APPEND printpanels_installed_targets printpanels_hostkit)
endif()

if(NOT WIN32 AND NOT APPLE)
    # The libraries are installed into one folder and find each other there, even if it is moved.
    set_target_properties(${printpanels_installed_targets} PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()

# A static library's images are linked as objects.
get_property(printpanels_installed_objects GLOBAL PROPERTY PRINTPANELS_INSTALLED_OBJECTS)
install(TARGETS ${printpanels_installed_targets} ${printpanels_installed_objects}
    EXPORT PrintPanelsTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Runtime
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Runtime NAMELINK_COMPONENT Devel
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Devel
    OBJECTS DESTINATION "${CMAKE_INSTALL_LIBDIR}/printpanels" COMPONENT Devel)
get_property(printpanels_debug_files GLOBAL PROPERTY PRINTPANELS_DEBUG_FILES)
if(printpanels_debug_files)
    install(FILES ${printpanels_debug_files} DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Devel)
endif()
install(EXPORT PrintPanelsTargets
    NAMESPACE PrintPanels::
    DESTINATION "${printpanels_package_dir}"
    COMPONENT Devel)

get_target_property(printpanels_headers printpanels PRINTPANELS_PUBLIC_HEADERS)
install(FILES
    ${printpanels_headers}
    "${PROJECT_BINARY_DIR}/include/printpanels/printpanels_export.h"
    "${PROJECT_BINARY_DIR}/include/printpanels/printpanels_version.h"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/printpanels"
    COMPONENT Devel)
if(TARGET printpanels_hostkit)
    get_target_property(hostkit_headers printpanels_hostkit PRINTPANELS_PUBLIC_HEADERS)
    install(FILES
        ${hostkit_headers}
        "${PROJECT_BINARY_DIR}/include/printpanels-hostkit/hostkit_export.h"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/printpanels-hostkit"
        COMPONENT Devel)
endif()

set(printpanels_translations_dir "${CMAKE_INSTALL_DATADIR}/printpanels/translations")
configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/PrintPanelsConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/PrintPanelsConfig.cmake"
    PATH_VARS printpanels_translations_dir
    INSTALL_DESTINATION "${printpanels_package_dir}")
# While the major version is 0, every minor version may change the interface.
set(printpanels_compatibility SameMajorVersion)
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(printpanels_compatibility SameMinorVersion)
endif()
write_basic_package_version_file("${PROJECT_BINARY_DIR}/PrintPanelsConfigVersion.cmake"
    COMPATIBILITY ${printpanels_compatibility})
install(FILES
    "${PROJECT_BINARY_DIR}/PrintPanelsConfig.cmake"
    "${PROJECT_BINARY_DIR}/PrintPanelsConfigVersion.cmake"
    DESTINATION "${printpanels_package_dir}"
    COMPONENT Devel)
