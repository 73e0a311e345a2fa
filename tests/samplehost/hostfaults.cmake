# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Faults of the system around the host: full disks, files that cannot be written or read.
add_library(hostfaults STATIC
    faulthost.cpp faulthost.h fulldisk.cpp fulldisk.h hostprogram.cpp hostprogram.h)
printpanels_configure_target(hostfaults)
target_link_libraries(hostfaults PUBLIC samplehost_automation pdfsamples Qt6::Pdf)
target_compile_definitions(hostfaults PRIVATE
    "SAMPLEHOST_PROGRAM=\"$<TARGET_FILE:samplehost>\"")
add_dependencies(hostfaults samplehost)

foreach(name IN ITEMS database disk document output)
    printpanels_add_test(tst_hostfaults_${name}
        SOURCES tst_hostfaults_${name}.cpp
        LIBRARIES hostfaults)
endforeach()
