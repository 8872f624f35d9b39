# Installs the build tree BUILD into PREFIX, which is removed first.
file(REMOVE_RECURSE "${PREFIX}")
execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIG}" --prefix "${PREFIX}"
    COMMAND_ERROR_IS_FATAL ANY)
