# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

find_package(Qt6 6.4 REQUIRED COMPONENTS Pdf)

# Tests of the preview popup and of the catalogue page.
foreach(name IN ITEMS
        catalogitem
        catalogpage
        hosttools
        labelpreview
        orientation)
    printpanels_add_test(tst_${name}
        SOURCES tst_${name}.cpp hostfixture.h
        LIBRARIES samplehost_automation Qt6::Pdf)
endforeach()

# Runs the program itself.
printpanels_add_test(tst_catalogcommands
    SOURCES tst_catalogcommands.cpp hostfixture.h
    LIBRARIES samplehost_automation Qt6::Pdf
    DEFINITIONS "SAMPLEHOST_PROGRAM=\"$<TARGET_FILE:samplehost>\"")
add_dependencies(tst_catalogcommands samplehost)

# Whether the host uses all that the library offers.
printpanels_add_test(tst_librarycoverage
    SOURCES tst_librarycoverage.cpp hostfixture.h
    LIBRARIES samplehost_automation Qt6::Pdf
    DEFINITIONS "PROJECT_SOURCE_DIR=\"${PROJECT_SOURCE_DIR}\"")
