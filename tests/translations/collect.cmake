# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT

# Collects the texts of the sources into fresh copies of the translation files, for the test that
# compares them. The tool runs here, because it belongs to the system that builds, and the test may be a
# program of another.
#   LUPDATE, ARGUMENTS (separated by "|"), FILES (a pattern), SOURCE_DIR, WORK_DIR
file(REMOVE_RECURSE "${WORK_DIR}")
file(GLOB translations "${SOURCE_DIR}/translations/${FILES}")
file(COPY ${translations} DESTINATION "${WORK_DIR}"
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(GLOB copies "${WORK_DIR}/*.ts")
string(REPLACE "|" ";" arguments "${ARGUMENTS}")
execute_process(COMMAND "${LUPDATE}" ${arguments} -ts ${copies}
    WORKING_DIRECTORY "${SOURCE_DIR}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
