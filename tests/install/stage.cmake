# SPDX-FileCopyrightText: VornFrame contributors
# SPDX-License-Identifier: MIT

# Installs the build in BUILD_DIR into the empty folder STAGE.
file(REMOVE_RECURSE ${STAGE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --config ${CONFIG} --prefix ${STAGE}
    COMMAND_ERROR_IS_FATAL ANY)
