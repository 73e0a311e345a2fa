# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Settings of the targets of this build. Warnings and strictness are private: consumers choose their own.

if(MSVC)
    set(printpanels_warnings /W4 /permissive- /utf-8 /Zc:__cplusplus)
    set(printpanels_warnings_as_errors /WX)
else()
    set(printpanels_warnings
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wconversion)
    set(printpanels_warnings_as_errors -Werror)
endif()

# Sets the language level, hides symbols, and enables strict warnings and Qt's strictness macros.
#   printpanels_configure_target(<target> [WITHOUT_WIDGETS])
# WITHOUT_WIDGETS is for targets that do not link Qt Widgets: they cannot use the precompiled headers.
function(printpanels_configure_target target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WITHOUT_WIDGETS" "" "")
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_KEYWORDS
        QT_STRICT_ITERATORS
        QT_NO_URL_CAST_FROM_STRING)
    # The resource compiler of Windows does not know them.
    target_compile_options(${target} PRIVATE "$<$<COMPILE_LANGUAGE:CXX>:${printpanels_warnings}>")
    if(PRINTPANELS_WERROR)
        target_compile_options(${target} PRIVATE
            "$<$<COMPILE_LANGUAGE:CXX>:${printpanels_warnings_as_errors}>")
    endif()
    if(PRINTPANELS_PCH AND NOT arg_WITHOUT_WIDGETS)
        target_precompile_headers(${target} REUSE_FROM printpanels_pch)
    endif()
endfunction()

# The most used Qt headers. Precompiling them halves the build time but hides missing includes, so not
# every preset does.
if(PRINTPANELS_PCH)
    set(printpanels_pch_source "${CMAKE_BINARY_DIR}/printpanels_pch.cpp")
    file(CONFIGURE OUTPUT "${printpanels_pch_source}" CONTENT "// Carries the precompiled headers.\n")
    add_library(printpanels_pch OBJECT "${printpanels_pch_source}")
    printpanels_configure_target(printpanels_pch WITHOUT_WIDGETS)
    target_link_libraries(printpanels_pch PRIVATE Qt6::Widgets)
    target_precompile_headers(printpanels_pch PRIVATE
        <QtCore/QHash>
        <QtCore/QList>
        <QtCore/QMap>
        <QtCore/QObject>
        <QtCore/QPointer>
        <QtCore/QStringList>
        <QtCore/QTimer>
        <QtCore/QVariant>
        <QtGui/QImage>
        <QtGui/QPainter>
        <QtGui/QtEvents>
        <QtWidgets/QApplication>
        <QtWidgets/QComboBox>
        <QtWidgets/QLabel>
        <QtWidgets/QLayout>
        <QtWidgets/QLineEdit>
        <QtWidgets/QPushButton>)
endif()

# Describes a DLL or a program in the properties that Windows shows of a file.
#   printpanels_add_version_resource(<target> <file name without suffix> <description>)
function(printpanels_add_version_resource target name description)
    set(type VFT_DLL)
    set(suffix ${CMAKE_SHARED_LIBRARY_SUFFIX})
    get_target_property(kind ${target} TYPE)
    if(kind STREQUAL "EXECUTABLE")
        set(type VFT_APP)
        set(suffix ${CMAKE_EXECUTABLE_SUFFIX})
    endif()
    set(resource "${CMAKE_CURRENT_BINARY_DIR}/${name}.rc")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/windows/version.rc.in" "${resource}" @ONLY)
    target_sources(${target} PRIVATE "${resource}")
endfunction()

# Puts the debugging information of a DLL into a file beside it, where gdb finds it.
function(printpanels_separate_debug_file target)
    set(library "$<TARGET_FILE:${target}>")
    set(debug_file "${library}.debug")
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_OBJCOPY} --only-keep-debug "${library}" "${debug_file}"
        COMMAND ${CMAKE_STRIP} --strip-debug --strip-unneeded "${library}"
        COMMAND ${CMAKE_OBJCOPY} "--add-gnu-debuglink=${debug_file}" "${library}"
        VERBATIM)
    set_property(GLOBAL APPEND PROPERTY PRINTPANELS_DEBUG_FILES "${debug_file}")
endfunction()

# Installs the debugging information that Visual C++ writes into a file beside a DLL. Its linker keeps
# unused code if it is to write such a file, unless it is told not to.
function(printpanels_install_debug_file target)
    set(with_debug_file "$<CONFIG:RelWithDebInfo>")
    target_link_options(${target} PRIVATE
        "$<${with_debug_file}:/INCREMENTAL:NO;/OPT:REF;/OPT:ICF>")
    set_property(GLOBAL APPEND PROPERTY PRINTPANELS_DEBUG_FILES
        "$<${with_debug_file}:$<TARGET_PDB_FILE:${target}>>")
endfunction()

# Configures a library that is installed.
#   printpanels_configure_library(<target> <name in the package> <file name> <description>)
function(printpanels_configure_library target export_name name description)
    printpanels_configure_target(${target})
    # While the major version is 0, every minor version may change the interface.
    set(soversion ${PROJECT_VERSION_MAJOR})
    if(PROJECT_VERSION_MAJOR EQUAL 0)
        set(soversion ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
    endif()
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${export_name}
        OUTPUT_NAME ${name}
        POSITION_INDEPENDENT_CODE ON
        SOVERSION ${soversion}
        VERSION ${PROJECT_VERSION})
    if(BUILD_SHARED_LIBS AND NOT WIN32 AND NOT APPLE AND NOT PRINTPANELS_FUZZERS)
        # Report missing symbols when the library is linked, not when a host loads it.
        target_link_options(${target} PRIVATE "LINKER:--no-undefined")
    endif()
    if(BUILD_SHARED_LIBS AND WIN32)
        set_target_properties(${target} PROPERTIES PREFIX "")
        printpanels_add_version_resource(${target} ${name} "${description}")
        if(MINGW)
            printpanels_separate_debug_file(${target})
        elseif(MSVC)
            printpanels_install_debug_file(${target})
        endif()
    endif()
    # The only folder with public headers, so that targets in the tree see what consumers see.
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
    if(NOT BUILD_SHARED_LIBS)
        string(TOUPPER ${target} base_name)
        target_compile_definitions(${target} PUBLIC ${base_name}_STATIC_DEFINE)
    endif()
endfunction()

# Gives a library the images of an object library, which registers them when it is loaded.
#   printpanels_link_images(<target> <object library>)
# Nothing refers to that object. A linker leaves such an object of a static library out, so a program
# that is linked to a static library is linked to the object itself.
function(printpanels_link_images target images)
    if(BUILD_SHARED_LIBS)
        target_sources(${target} PRIVATE $<TARGET_OBJECTS:${images}>)
    else()
        # By the name that the object library has in the package, once it is installed.
        target_link_libraries(${target} INTERFACE $<TARGET_OBJECTS:$<TARGET_NAME:${images}>>)
        set_property(GLOBAL APPEND PROPERTY PRINTPANELS_INSTALLED_OBJECTS ${images})
    endif()
endfunction()

# Public headers are included as <printpanels/name.h>, by the library itself and the sample host just as
# by consumers of the installed package. In the build tree, forwarding headers provide these names.
#   printpanels_public_headers(<target> <include folder> <header>...)
function(printpanels_public_headers target folder)
    foreach(header IN LISTS ARGN)
        get_filename_component(path "${header}" ABSOLUTE)
        get_filename_component(name "${header}" NAME)
        file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/include/${folder}/${name}"
            CONTENT "#include \"${path}\"\n")
        set_property(TARGET ${target} APPEND PROPERTY PRINTPANELS_PUBLIC_HEADERS "${path}")
    endforeach()
endfunction()
