# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# The library shows its interface and nothing else: every exported symbol belongs to a public class or
# to the record lists.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")

set(public_names
    PrintWidgetInterface PrintWidget QuickPrintWidget PrintPreviewDialog
    MultiPagePrintWidget MultiPagePrintDialog RecordList)

execute_process(COMMAND "${NM}" -DC --defined-only "${LIBRARY}"
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE ";" "," symbols "${symbols}")
string(REGEX MATCHALL "[^\n]+" symbols "${symbols}")
list(JOIN public_names "|" public_pattern)
foreach(symbol IN LISTS symbols)
    # Code and data of our own; weak symbols are instances of Qt's and the standard library's templates.
    if(NOT symbol MATCHES "^[0-9a-f]+ [TDBR] (.*)$")
        continue()
    endif()
    set(name "${CMAKE_MATCH_1}")
    if(name MATCHES "^(_init|_fini|_edata|_end|__bss_start|__odr_asan.*)$")
        continue()
    endif()
    if(NOT name MATCHES "^((vtable|typeinfo|typeinfo name|VTT|non-virtual thunk to|guard variable) (for |to )?)?(${public_pattern})(::|$)")
        list(APPEND leaked "${name}")
    endif()
endforeach()
if(leaked)
    list(JOIN leaked "\n" leaked)
    message(FATAL_ERROR "Exported, but not part of the interface:\n${leaked}")
endif()
foreach(name IN LISTS public_names)
    if(NOT "${symbols}" MATCHES " T ${name}::")
        message(FATAL_ERROR "${name} is not exported")
    endif()
endforeach()
