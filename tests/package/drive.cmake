# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Helpers of the package tests that run programs with windows: a plugin of Qt's does what a user would.

# Builds the plugin, for drive().
function(build_driver)
    build_project("${CMAKE_CURRENT_FUNCTION_LIST_DIR}/exampledriver" "${WORK_DIR}/driver")
endfunction()

# Runs a program in the work folder and does what the steps say (see exampledriver.cpp). The program may
# have one argument, or "". Stops the test unless it ends well.
#   drive(<program> <argument> <step>...)
function(drive program argument)
    list(JOIN ARGN "|" steps)
    program_command("${program}" command)
    execute_process(
        COMMAND "${CMAKE_COMMAND}" -E env
            "QT_PLUGIN_PATH=${WORK_DIR}/driver" "QT_QPA_GENERIC_PLUGINS=exampledriver"
            "EXAMPLE_STEPS=${steps}"
            ${command} ${argument}
        WORKING_DIRECTORY "${WORK_DIR}"
        TIMEOUT 60
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${program} ${argument}\nended with ${result}:\n${output}")
    endif()
    set(drive_output "${output}" PARENT_SCOPE)
endfunction()

# What the program that was driven last has to have said.
function(expect_output text)
    string(FIND "${drive_output}" "${text}" found)
    if(found LESS 0)
        message(FATAL_ERROR "The program did not say: ${text}\nIt said:\n${drive_output}")
    endif()
endfunction()
