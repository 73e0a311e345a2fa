# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Tests of the page of documents in samplehost/pages/.
foreach(name IN ITEMS pdfpage pdfpanel pdfprinting)
    printpanels_add_test(tst_${name}
        SOURCES tst_${name}.cpp documenthost.h hostfixture.h
        LIBRARIES samplehost_automation pdfsamples Qt6::Pdf)
endforeach()

printpanels_add_test(tst_pdfcommands
    SOURCES tst_pdfcommands.cpp
    LIBRARIES samplehost_automation pdfsamples Qt6::Pdf
    DEFINITIONS "SAMPLEHOST_PROGRAM=\"$<TARGET_FILE:samplehost>\"")
add_dependencies(tst_pdfcommands samplehost)
