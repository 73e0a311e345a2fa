# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Takes the shapes from the host's SVG pictures where the Qt that it is built for has no Qt Svg, but the
# Qt of the system that builds has it. The names of the files stay, so that the host finds them.
#   samplehost_take_shapes(<folder> <picture>...)   sets samplehost_shapes
function(samplehost_take_shapes folder)
    if(NOT CMAKE_CROSSCOMPILING)
        message(FATAL_ERROR "The sample host needs Qt Svg. Install it, or leave the host out with "
            "-DPRINTPANELS_SAMPLE_HOST=OFF.")
    endif()
    set(tool "${folder}/tool")
    # Nothing of the caller's build may reach the tool's, which is for another system. Once CMake has
    # found a compiler, it is in the environment.
    foreach(step IN ITEMS
            "-S;${CMAKE_CURRENT_SOURCE_DIR}/shapes;-B;${tool};-G;Ninja;-DCMAKE_BUILD_TYPE=Release;-DCMAKE_PREFIX_PATH=${QT_HOST_PATH}"
            "--build;${tool}")
        execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=CXX ${CMAKE_COMMAND} ${step}
            OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
        if(NOT result EQUAL 0)
            message(FATAL_ERROR "The sample host's pictures need Qt Svg, here or in ${QT_HOST_PATH}:\n${output}")
        endif()
    endforeach()
    foreach(picture IN LISTS ARGN)
        get_filename_component(below "${picture}" DIRECTORY)
        file(MAKE_DIRECTORY "${folder}/${below}")
        execute_process(COMMAND "${tool}/svgshapes" "${folder}/${below}" "${CMAKE_CURRENT_SOURCE_DIR}/${picture}"
            ERROR_VARIABLE notes COMMAND_ERROR_IS_FATAL ANY)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${picture}")
        list(APPEND shapes "${folder}/${picture}")
    endforeach()
    set(samplehost_shapes ${shapes} PARENT_SCOPE)
endfunction()
