# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

find_package(Qt6 6.4 REQUIRED COMPONENTS Pdf)

printpanels_add_test(tst_pageplan WITHOUT_WIDGETS
    SOURCES tst_pageplan.cpp
    LIBRARIES samplehost_print)
printpanels_add_test(tst_sheetgeometry WITHOUT_WIDGETS
    SOURCES tst_sheetgeometry.cpp
    LIBRARIES samplehost_print)
printpanels_add_test(tst_printjob WITHOUT_WIDGETS
    SOURCES tst_printjob.cpp fulldisk.cpp fulldisk.h
    LIBRARIES samplehost_print Qt6::Pdf)

printpanels_add_test(tst_commandline WITHOUT_WIDGETS
    SOURCES tst_commandline.cpp
    LIBRARIES samplehost_commandline)

# Tests that drive the sample host's own widgets.
foreach(name IN ITEMS
        eventlog
        hostpages
        hostprinters
        hostsettings
        printing
        supplysimulator)
    printpanels_add_test(tst_${name}
        SOURCES tst_${name}.cpp hostfixture.h
        LIBRARIES samplehost_automation Qt6::Pdf)
endforeach()

# Runs the program itself.
printpanels_add_test(tst_samplehost
    SOURCES tst_samplehost.cpp hostfixture.h
    LIBRARIES samplehost_automation Qt6::Pdf
    DEFINITIONS "SAMPLEHOST_PROGRAM=\"$<TARGET_FILE:samplehost>\"")
add_dependencies(tst_samplehost samplehost)
