# Tests of samplehost/data/ and samplehost/label/.
find_package(Qt6 6.4 REQUIRED COMPONENTS Pdf)

set(strict_test "${PROJECT_SOURCE_DIR}/tests/support/stricttest.h")

printpanels_add_test(tst_chemicalseed
    SOURCES tst_chemicalseed.cpp "${strict_test}"
    LIBRARIES samplehost_data)
printpanels_add_test(tst_recordsource
    SOURCES tst_recordsource.cpp "${strict_test}"
    LIBRARIES samplehost_data)
printpanels_add_test(tst_labelpainter
    SOURCES tst_labelpainter.cpp "${strict_test}"
    LIBRARIES samplehost_label Qt6::Pdf)
