# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Helpers of the package tests.

# Runs a command and stops the test with its output when it fails.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        string(REPLACE ";" " " command "${ARGN}")
        message(FATAL_ERROR "${command}\nanswered ${result}:\n${output}")
    endif()
endfunction()

# The command that runs a program of a build. A program for Windows finds DLLs in the folders that
# DLL_FOLDERS lists.
function(program_command program result)
    set(command "${program}${PROGRAM_SUFFIX}")
    if(EMULATOR)
        list(JOIN DLL_FOLDERS ":" folders)
        set(command "${CMAKE_COMMAND}" -E env "PRINTPANELS_WINDOWS_DLLS=${folders}"
            "${EMULATOR}" "${command}")
    endif()
    set(${result} "${command}" PARENT_SCOPE)
endfunction()

# Runs a program of a build and stops the test with its output when it fails.
function(run_program program)
    program_command("${program}" command)
    run(${command} ${ARGN})
endfunction()

# Configures a project with the compiler of the build under test.
function(configure_project source build)
    run("${CMAKE_COMMAND}" -S "${source}" -B "${build}" -G "${GENERATOR}"
        ${TOOLCHAIN} "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
        -DCMAKE_BUILD_TYPE=Debug ${ARGN})
endfunction()

# Configures and builds a project.
function(build_project source build)
    configure_project("${source}" "${build}" ${ARGN})
    run("${CMAKE_COMMAND}" --build "${build}")
endfunction()

# Lists what is below a folder, links included, as paths relative to it.
function(list_files folder result)
    file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE "${folder}" "${folder}/*")
    list(SORT files)
    set(${result} "${files}" PARENT_SCOPE)
endfunction()

# Stops the test when two lists differ, in whatever order they are.
function(compare_lists what actual expected)
    list(SORT actual)
    list(SORT expected)
    if(NOT actual STREQUAL expected)
        string(REPLACE ";" "\n  " actual "${actual}")
        string(REPLACE ";" "\n  " expected "${expected}")
        message(FATAL_ERROR "${what}:\n  ${actual}\nexpected:\n  ${expected}")
    endif()
endfunction()

# Writes the README's C++ example to a file, so that what is printed there is what is compiled.
function(extract_readme_example file)
    file(READ "${SOURCE_DIR}/README.md" readme)
    string(FIND "${readme}" "```cpp\n" begin)
    if(begin LESS 0)
        message(FATAL_ERROR "README.md has no C++ example")
    endif()
    math(EXPR begin "${begin} + 7")
    string(SUBSTRING "${readme}" ${begin} -1 rest)
    string(FIND "${rest}" "```" end)
    string(SUBSTRING "${rest}" 0 ${end} example)
    file(WRITE "${file}" "${example}")
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
