# SPDX-FileCopyrightText: VornFrame contributors
# SPDX-License-Identifier: MIT

# Runs PROGRAM: right is that it goes on until it is stopped, or ends with 0. The time limit of execute_process() is no
# help: CMake 3.31 gives up waiting, but leaves the program running.
execute_process(COMMAND timeout --kill-after=2 2 ${PROGRAM} RESULT_VARIABLE result)
if(NOT result MATCHES "^(0|124)$")
    message(FATAL_ERROR "${PROGRAM} ended with: ${result}")
endif()
