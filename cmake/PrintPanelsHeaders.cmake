# Public headers are written <printpanels/name.h> by everybody: the library itself, the sample host and
# a consumer of the installed package. In the build tree that name is a forwarding header.
#
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
