find_package(Qt6 6.4 REQUIRED COMPONENTS Pdf)

set(stricttest "${PROJECT_SOURCE_DIR}/tests/support/stricttest.h")

printpanels_add_test(tst_pageplan
    SOURCES tst_pageplan.cpp "${stricttest}"
    LIBRARIES samplehost_print)
printpanels_add_test(tst_sheetgeometry
    SOURCES tst_sheetgeometry.cpp "${stricttest}"
    LIBRARIES samplehost_print)
printpanels_add_test(tst_printjob
    SOURCES tst_printjob.cpp "${stricttest}"
    LIBRARIES samplehost_print Qt6::Pdf)
