# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Tests of samplehost/data/ and samplehost/label/.
find_package(Qt6 6.4 REQUIRED COMPONENTS Pdf)

printpanels_add_test(tst_chemicalseed WITHOUT_WIDGETS
    SOURCES tst_chemicalseed.cpp
    LIBRARIES samplehost_data)
printpanels_add_test(tst_recordsource WITHOUT_WIDGETS
    SOURCES tst_recordsource.cpp
    LIBRARIES samplehost_data)
printpanels_add_test(tst_labelpainter WITHOUT_WIDGETS
    SOURCES tst_labelpainter.cpp
    LIBRARIES samplehost_label Qt6::Pdf)
