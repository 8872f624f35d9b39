# Configures, builds and runs the project in SOURCE against the library installed in PREFIX.
#
# BUILD                            the project's build tree; removed first
# GENERATOR MAKE_PROGRAM COMPILER FLAGS TOOLCHAIN CONFIG
#                                  how the library was built
# EMULATOR                         runs programs of another system (optional)
file(REMOVE_RECURSE "${BUILD}")
set(options "-DCMAKE_BUILD_TYPE=${CONFIG}" "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}"
    "-DCMAKE_CXX_FLAGS=${FLAGS}")
if(TOOLCHAIN)
    # A cross build looks for packages below the folders of its target only.
    list(APPEND options "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}" "-DCMAKE_FIND_ROOT_PATH=${PREFIX}")
else()
    list(APPEND options "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_PREFIX_PATH=${PREFIX}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -G "${GENERATOR}" -S "${SOURCE}" -B "${BUILD}" ${options}
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${BUILD}" --config "${CONFIG}"
    COMMAND_ERROR_IS_FATAL ANY)

# The library's own warnings and definitions are not passed on to a project that links it.
file(READ "${BUILD}/compile_commands.json" commands)
string(REPLACE "${FLAGS}" "" commands "${commands}")
if(commands MATCHES "( [-/]W[^ l]*)|KEXA_BUILDING|KEXA_STATIC")
    message(FATAL_ERROR "the consumer was compiled with ${CMAKE_MATCH_0}:\n${commands}")
endif()

if(EXISTS "${PREFIX}/bin/kexa.dll")
    # Windows finds DLLs in the program's folder: a folder with all of them needs nothing else.
    set(folder "${BUILD}/shipped")
    file(COPY "${PREFIX}/bin/" DESTINATION "${folder}")
    file(GLOB_RECURSE program "${BUILD}/consumer.exe")
    file(COPY "${program}" DESTINATION "${folder}")
    set(program "${folder}/consumer.exe")
else()
    file(GLOB program "${BUILD}/consumer")
endif()
execute_process(COMMAND ${EMULATOR} "${program}" --count=3 -na=first,second --verb left
    OUTPUT_VARIABLE output RESULT_VARIABLE exit_code)
string(REPLACE "\r\n" "\n" output "${output}")
set(expected "count 3, name second, verbose
header 3.3.0
")
if(NOT exit_code EQUAL 0 OR NOT output STREQUAL expected)
    message(FATAL_ERROR "the consumer ended with ${exit_code} and wrote:\n${output}")
endif()
