# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# What a DLL exports, which other DLLs it needs, and the description that Windows shows of it.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/symbols.cmake")

# The names of the DLLs that a DLL imports from.
function(read_imported_dlls dll result)
    execute_process(COMMAND "${OBJDUMP}" -p "${dll}"
        OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "\tDLL Name: [^\n]+" names "${headers}")
    list(TRANSFORM names REPLACE "\tDLL Name: " "")
    set(${result} "${names}" PARENT_SCOPE)
endfunction()

# Texts of resources are encoded in UTF-16.
function(to_utf16 text result)
    string(HEX "${text}" digits)
    string(REGEX REPLACE "(..)" "\\100" digits "${digits}")
    set(${result} "${digits}" PARENT_SCOPE)
endfunction()

# Stops the test unless the resources of a DLL have a text.
function(expect_in_resources dll)
    set(resources "${WORK_DIR}/resources")
    run("${OBJCOPY}" --dump-section ".rsrc=${resources}" "${dll}" "${WORK_DIR}/copy.dll")
    file(READ "${resources}" content HEX)
    foreach(text IN LISTS ARGN)
        to_utf16("${text}" digits)
        string(FIND "${content}" "${digits}" found)
        if(found LESS 0)
            message(FATAL_ERROR "${dll} is not described by \"${text}\"")
        endif()
    endforeach()
endfunction()

foreach(dll IN ITEMS "${LIBRARY}" "${KIT_LIBRARY}")
    get_filename_component(name "${dll}" NAME_WE)
    read_export_table("${dll}" exports)
    compare_with_file("${exports}" "${CMAKE_CURRENT_LIST_DIR}/windows/${name}.exports")
    read_imported_dlls("${dll}" imports)
    compare_with_file("${imports}" "${CMAKE_CURRENT_LIST_DIR}/windows/${name}.imports")
    expect_in_resources("${dll}" FileDescription FileVersion "${VERSION}" "${name}.dll")
endforeach()
expect_in_resources("${LIBRARY}" "${DESCRIPTION}")
