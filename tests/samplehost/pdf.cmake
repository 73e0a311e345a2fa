# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Tests of samplehost/pdf/.
find_package(Qt6 6.4 REQUIRED COMPONENTS Pdf)
find_package(qpdf 11 REQUIRED)

# The documents that the tests make for themselves, and a look at those that come out.
add_library(pdfsamples STATIC pdfoutput.cpp pdfoutput.h pdfsamples.cpp pdfsamples.h)
printpanels_configure_target(pdfsamples WITHOUT_WIDGETS)
target_include_directories(pdfsamples PUBLIC "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/tests")
target_link_libraries(pdfsamples
    PUBLIC samplehost_pdf Qt6::Test
    PRIVATE Qt6::Pdf qpdf::libqpdf)
target_compile_definitions(pdfsamples PRIVATE POINTERHOLDER_TRANSITION=4)

foreach(name IN ITEMS
        pdfdocument
        pdffill
        pdfhostile
        pdfjob
        pdfpageplan
        pdfpainting
        pdfsheet)
    printpanels_add_test(tst_${name} WITHOUT_WIDGETS
        SOURCES tst_${name}.cpp
        LIBRARIES pdfsamples Qt6::Pdf)
endforeach()
