# Installs the library, the stand-in kit if it was built, their headers and the CMake package.
include(CMakePackageConfigHelpers)

set(printpanels_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/PrintPanels")
set(printpanels_installed_targets printpanels)
if(TARGET printpanels_hostkit)
    list(APPEND printpanels_installed_targets printpanels_hostkit)
endif()

if(NOT WIN32 AND NOT APPLE)
    # The two libraries lie side by side and find each other wherever the folder is moved to.
    set_target_properties(${printpanels_installed_targets} PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()

install(TARGETS ${printpanels_installed_targets}
    EXPORT PrintPanelsTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(EXPORT PrintPanelsTargets
    NAMESPACE PrintPanels::
    DESTINATION "${printpanels_package_dir}")

get_target_property(printpanels_headers printpanels PRINTPANELS_PUBLIC_HEADERS)
install(FILES
    ${printpanels_headers}
    "${PROJECT_BINARY_DIR}/include/printpanels/printpanels_export.h"
    "${PROJECT_BINARY_DIR}/include/printpanels/printpanels_version.h"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/printpanels")
if(TARGET printpanels_hostkit)
    get_target_property(hostkit_headers printpanels_hostkit PRINTPANELS_PUBLIC_HEADERS)
    install(FILES
        ${hostkit_headers}
        "${PROJECT_BINARY_DIR}/include/printpanels-hostkit/hostkit_export.h"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/printpanels-hostkit")
endif()

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/PrintPanelsConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/PrintPanelsConfig.cmake"
    INSTALL_DESTINATION "${printpanels_package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/PrintPanelsConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/PrintPanelsConfig.cmake"
    "${PROJECT_BINARY_DIR}/PrintPanelsConfigVersion.cmake"
    DESTINATION "${printpanels_package_dir}")
