# SPDX-FileCopyrightText: VornFrame contributors
# SPDX-License-Identifier: MIT

# Runs PROGRAM: right is that it goes on until it is stopped, or ends with 0.
execute_process(COMMAND ${PROGRAM} TIMEOUT 2 RESULT_VARIABLE result)
if(NOT result MATCHES "^(0|Process terminated due to timeout)$")
    message(FATAL_ERROR "${PROGRAM} ended with: ${result}")
endif()
