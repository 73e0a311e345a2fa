# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Helpers of the package tests that look into libraries.

find_program(cxxfilt c++filt REQUIRED)

# The names in a DLL's export table, mangled.
function(read_export_table dll result)
    execute_process(COMMAND "${OBJDUMP}" -p "${dll}"
        OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE "^.*\n\\[Ordinal/Name Pointer\\] Table[^\n]*\n" "" table "${headers}")
    string(REGEX REPLACE "\n\n.*$" "" table "${table}")
    string(REGEX REPLACE "\t[^\n]* ([^ \n]+)(\n|$)" "\\1;" names "${table}")
    set(${result} ${names} PARENT_SCOPE)
endfunction()

# The names that an ELF library defines, mangled. Weak functions are instances of Qt's and the standard
# library's templates, which DLLs do not export. The sanitizers add weak type information of Qt's classes.
function(read_dynamic_symbols library result)
    execute_process(COMMAND "${NM}" -D --defined-only "${library}"
        OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" symbols "${symbols}")
    set(names "")
    foreach(symbol IN LISTS symbols)
        if(symbol MATCHES "^[0-9a-f]+ ([TDBR] .*|V _ZT[VI][0-9]+(Q[a-z]|[^Q0-9]).*)$")
            string(SUBSTRING "${CMAKE_MATCH_1}" 2 -1 name)
            list(APPEND names "${name}")
        endif()
    endforeach()
    # Those of the linker and of the sanitizers.
    list(FILTER names EXCLUDE REGEX "^(_init|_fini|_edata|_end|__bss_start|__odr_asan.*)$")
    set(${result} "${names}" PARENT_SCOPE)
endfunction()

# What a library exports, as C++ names, the same on every system:
# - The several constructors and destructors that a compiler makes of one have one name.
# - What moc declares with Q_DECL_HIDDEN_STATIC_METACALL is hidden in ELF libraries only.
function(list_interface library result)
    if(WINDOWS)
        read_export_table("${library}" names)
    else()
        read_dynamic_symbols("${library}" names)
    endif()
    list(JOIN names "\n" names)
    file(WRITE "${WORK_DIR}/mangled" "${names}\n")
    execute_process(COMMAND "${cxxfilt}" INPUT_FILE "${WORK_DIR}/mangled"
        OUTPUT_VARIABLE names COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" names "${names}")
    list(FILTER names EXCLUDE REGEX "::qt_static_metacall\\(")
    list(REMOVE_DUPLICATES names)
    set(${result} "${names}" PARENT_SCOPE)
endfunction()

# Stops the test when a list differs from a file of the sources, which has an item in each line.
function(compare_with_file actual expected_file)
    list(SORT actual)
    file(STRINGS "${expected_file}" expected)
    set(more "${actual}")
    list(REMOVE_ITEM more ${expected})
    set(less "${expected}")
    list(REMOVE_ITEM less ${actual})
    if(more OR less)
        get_filename_component(name "${expected_file}" NAME)
        list(JOIN actual "\n" actual)
        file(WRITE "${WORK_DIR}/${name}" "${actual}\n")
        list(JOIN more "\n  + " more)
        list(JOIN less "\n  - " less)
        message(FATAL_ERROR "${name}\nmore:\n  + ${more}\nless:\n  - ${less}\n"
            "If that is meant, renew the list:\n"
            "  cp \"${WORK_DIR}/${name}\" \"${expected_file}\"")
    endif()
endfunction()
