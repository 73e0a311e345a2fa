# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# The library shows its interface and nothing else: every exported symbol belongs to a public class or
# to the record lists. All systems have the same interface.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/symbols.cmake")

set(public_names
    PrintWidgetInterface PrintWidget QuickPrintWidget PrintPreviewDialog
    MultiPagePrintWidget MultiPagePrintDialog RecordList)

list_interface("${LIBRARY}" symbols)
list(JOIN public_names "|" public_pattern)
set(leaked "${symbols}")
list(FILTER leaked EXCLUDE REGEX
    "^((vtable|typeinfo|typeinfo name|VTT|non-virtual thunk to|guard variable) (for |to )?)?(${public_pattern})(::|$)")
if(leaked)
    list(JOIN leaked "\n" leaked)
    message(FATAL_ERROR "Exported, but not part of the interface:\n${leaked}")
endif()
foreach(name IN LISTS public_names)
    if(NOT "${symbols}" MATCHES "(^|;)${name}::")
        message(FATAL_ERROR "${name} is not exported")
    endif()
endforeach()

compare_with_file("${symbols}" "${CMAKE_CURRENT_LIST_DIR}/interface.symbols")
