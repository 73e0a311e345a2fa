# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# The examples as a host's engineer meets them: built against an installed library, started, operated,
# and judged by what they print.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/drive.cmake")

find_program(pdfinfo pdfinfo REQUIRED)
find_program(pdftotext pdftotext REQUIRED)

# Each fits on a screen or two.
function(check_length example)
    file(READ "${SOURCE_DIR}/examples/${example}/main.cpp" source)
    string(REGEX MATCHALL "\n" lines "${source}")
    list(LENGTH lines count)
    if(count GREATER 80)
        message(FATAL_ERROR "The example ${example} has grown to ${count} lines")
    endif()
endfunction()

# Each folder can be copied and configured by itself.
function(check_stands_alone example)
    file(COPY "${SOURCE_DIR}/examples/${example}" DESTINATION "${WORK_DIR}/copied")
    run("${CMAKE_COMMAND}" -S "${WORK_DIR}/copied/${example}" -B "${WORK_DIR}/copied/${example}/build"
        -G "${GENERATOR}" ${TOOLCHAIN} "-DCMAKE_PREFIX_PATH=${WORK_DIR}/install")
endfunction()

function(drive_example example file)
    drive("${WORK_DIR}/build/${example}/${example}_example" "${file}" ${ARGN})
    set(drive_output "${drive_output}" PARENT_SCOPE)
endfunction()

# Compares the size of the first page, in points, and the words on the pages, each of which ends in a bar.
# The file is gone afterwards.
function(expect_pdf file size words)
    execute_process(COMMAND "${pdfinfo}" "${WORK_DIR}/${file}"
        OUTPUT_VARIABLE info COMMAND_ERROR_IS_FATAL ANY)
    if(NOT info MATCHES "Page size: +${size} pts")
        message(FATAL_ERROR "${file}: the pages are not ${size} points large:\n${info}")
    endif()
    execute_process(COMMAND "${pdftotext}" -layout "${WORK_DIR}/${file}" -
        OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    string(ASCII 12 page_end)
    string(REPLACE "${page_end}" "|" text "${text}")
    string(REGEX REPLACE "[ \n]+" " " text "${text}")
    string(REPLACE " |" "|" text "${text}")
    string(REPLACE "| " "|" text "${text}")
    string(STRIP "${text}" text)
    if(NOT text STREQUAL words)
        message(FATAL_ERROR "${file} shows\n${text}\ninstead of\n${words}")
    endif()
    file(REMOVE "${WORK_DIR}/${file}")
endfunction()

# How far the first word is from the left edge, in whole points.
function(find_first_word file answer)
    execute_process(COMMAND "${pdftotext}" -bbox "${WORK_DIR}/${file}" -
        OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    if(NOT text MATCHES "<word xMin=\"([0-9]+)")
        message(FATAL_ERROR "${file} has no words")
    endif()
    set(${answer} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

function(expect_no_pdf file)
    if(EXISTS "${WORK_DIR}/${file}")
        message(FATAL_ERROR "${file} was written although there was nothing to print")
    endif()
endfunction()

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/install")
# Is copied with the examples that use it.
file(COPY "${SOURCE_DIR}/examples/previewinput" DESTINATION "${WORK_DIR}/copied")
foreach(example IN ITEMS printwidget quickprint preview multipage)
    check_length(${example})
endforeach()
foreach(example IN ITEMS printwidget quickprint preview multipage gallery kitgallery)
    check_stands_alone(${example})
endforeach()
build_project("${SOURCE_DIR}/examples" "${WORK_DIR}/build" "-DCMAKE_PREFIX_PATH=${WORK_DIR}/install")
build_driver()
set(DLL_FOLDERS "${WORK_DIR}/install/${BINDIR}")

# The print settings panel, two labels a page.
drive_example(printwidget "" "click PrintButton" "close")
expect_pdf(labels.pdf "432 x 144" "Record 1 Record 1|")
drive_example(printwidget list.pdf
    "click recordListRadio" "type recordListEdit 1,4-5" "type copiesSpinBox 2" "click PrintButton" "close")
expect_pdf(list.pdf "432 x 144"
    "Record 1 Record 1|Record 4 Record 4|Record 5 Record 5|Record 1 Record 1|Record 4 Record 4|Record 5 Record 5|")
drive_example(printwidget sequence.pdf
    "click recordListRadio" "type recordListEdit 9,11-20" "click sequencingRadio" "type copiesSpinBox 2"
    "click PrintButton" "close")
expect_pdf(sequence.pdf "432 x 144" "Record 9 Record 11|Record 12|Record 9 Record 11|Record 12|")
drive_example(printwidget all.pdf
    "click allRecordsRadio" "click sequencingRadio" "click PrintButton" "close")
expect_pdf(all.pdf "432 x 144"
    "Record 1 Record 2|Record 3 Record 4|Record 5 Record 6|Record 7 Record 8|Record 9 Record 10|Record 11 Record 12|")
drive_example(printwidget none.pdf
    "click recordListRadio" "type recordListEdit 13" "click PrintButton" "close")
expect_output("Nothing printed")
expect_no_pdf(none.pdf)

# The quick print panel: a label of another size, and a size that is none.
drive_example(quickprint sign.pdf "type copiesSpinBox 3" "click printButton" "close")
expect_pdf(sign.pdf "720 x 504" "EYE WASH STATION|EYE WASH STATION|EYE WASH STATION|")
drive_example(quickprint small.pdf
    "type lengthEdit 6" "type widthEdit 4" "click resizeButton"
    "type lengthEdit wide" "click resizeButton" "click printButton" "close")
expect_pdf(small.pdf "432 x 288" "EYE WASH STATION|")

# The preview popup, which was opened for records 1 and 4 to 5.
drive_example(preview landscape.pdf "click printButton" "click closeButton")
expect_pdf(landscape.pdf "288 x 216" "Record 1|Record 4|Record 5|")
drive_example(preview portrait.pdf "click portraitButton" "click printButton" "click closeButton")
expect_pdf(portrait.pdf "216 x 288" "Record 1|Record 4|Record 5|")

# The dialog for documents of several pages.
drive_example(multipage fitted.pdf "click PrintButton" "close")
find_first_word(fitted.pdf fitted)
expect_pdf(fitted.pdf "612 x 792" "Page 1|")
drive_example(multipage actual.pdf "click fitToPageCheck" "click PrintButton" "close")
find_first_word(actual.pdf actual)
expect_pdf(actual.pdf "612 x 792" "Page 1|")
if(NOT actual LESS fitted)
    message(FATAL_ERROR "A page of 5 inches is not enlarged to the paper: ${actual}, ${fitted}")
endif()
drive_example(multipage selection.pdf
    "click selectionRadio" "type pageListEdit 3,1-2" "type copiesEdit 2" "click PrintButton" "close")
expect_pdf(selection.pdf "612 x 792" "Page 3|Page 1|Page 2|Page 3|Page 1|Page 2|")
drive_example(multipage all.pdf "click allPagesRadio" "click PrintButton" "close")
expect_pdf(all.pdf "612 x 792" "Page 1|Page 2|Page 3|Page 4|Page 5|Page 6|Page 7|Page 8|")

# The gallery of the panels: a panel, in other colours, from right to left and disabled, and dialogs.
drive_example(gallery ""
    "show PrintWidget" "click allRecordsRadio" "click PrintButton"
    "read signalLog widgetPrintSignal(1, 48, \"\")"
    "click darkCheck" "click rightToLeftCheck" "picture dark.png" "click disabledCheck" "close")
drive_example(gallery preview-zoomed
    "show PrintPreviewDialog" "click zoomOutButton" "click printButton" "click closeButton"
    "read signalLog previewPrintSignal(1, -1, \"\")" "read signalLog popupHideSignal()" "close")
drive_example(gallery document-page
    "click allPagesRadio" "click PrintButton" "read signalLog widgetPrintSignal(1, 12, \"\")" "close")
run_program("${WORK_DIR}/build/gallery/gallery_example" "--grab" "${WORK_DIR}/states")
foreach(state IN ITEMS print-everything quick-resize preview-panned pages-turned document-page)
    if(NOT EXISTS "${WORK_DIR}/states/${state}.png")
        message(FATAL_ERROR "The gallery left no picture of ${state}")
    endif()
endforeach()

# The gallery of the kit's widgets.
drive_example(kitgallery "" "click #248d4f" "picture gallery.png" "close")
run_program("${WORK_DIR}/build/kitgallery/kitgallery_example" "--screenshot=${WORK_DIR}/screenshot.png")
foreach(picture IN ITEMS gallery.png screenshot.png)
    if(NOT EXISTS "${WORK_DIR}/${picture}")
        message(FATAL_ERROR "The gallery left no ${picture}")
    endif()
endforeach()
