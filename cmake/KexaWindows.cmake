# Settings for Windows: the folder of programs and DLLs, the C++ runtime of MinGW, version resources,
# and running the tests of a cross build.
enable_language(RC)

# Windows searches the DLLs of a program in the program's own folder first. Everything is built into one
# folder, so that tests and examples run from the build tree.
if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_RUNTIME_OUTPUT_DIRECTORY)
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
endif()

# KEXA_RUNTIME_DLLS: the full paths of the DLLs of MinGW's C++ runtime that kexa.dll imports. Empty with
# MSVC, whose runtime has an installer of its own.
set(KEXA_RUNTIME_DLLS "")
if(MINGW)
    cmake_path(GET CMAKE_CXX_COMPILER PARENT_PATH compiler_folder)
    foreach(dll IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        # A cross compiler prints a path. A native compiler prints only the name; its DLLs are in the
        # folder of the compiler.
        execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${dll}
            OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        if(NOT IS_ABSOLUTE "${path}")
            set(path "${compiler_folder}/${dll}")
        endif()
        if(NOT EXISTS "${path}")
            message(FATAL_ERROR "kexa: ${dll} not found beside the compiler ${CMAKE_CXX_COMPILER}")
        endif()
        cmake_path(NORMAL_PATH path)
        list(APPEND KEXA_RUNTIME_DLLS "${path}")
    endforeach()
    if(CMAKE_RUNTIME_OUTPUT_DIRECTORY)
        file(COPY ${KEXA_RUNTIME_DLLS} DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    endif()
endif()

# Links the C++ runtime into a DLL, which then imports only DLLs of Windows. With MSVC the runtime is
# chosen when compiling, for the whole project.
function(kexa_link_static_runtime target)
    if(MINGW)
        target_link_options(${target} PRIVATE -static)
    endif()
endfunction()
if(MSVC AND KEXA_STATIC_RUNTIME)
    set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>")
endif()

# Adds the version resource that a template describes to a DLL.
function(kexa_add_version_resource target template)
    set(resource "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    configure_file("${template}" "${resource}" @ONLY)
    target_sources(${target} PRIVATE "${resource}")
endfunction()

# CTest runs the programs of a cross build under Wine, with a Wine prefix in the build folder.
if(CMAKE_CROSSCOMPILING AND CMAKE_HOST_UNIX AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
    set(KEXA_WINE "${PROJECT_SOURCE_DIR}/scripts/wine.sh" "${PROJECT_BINARY_DIR}/wine")
    set(CMAKE_CROSSCOMPILING_EMULATOR ${KEXA_WINE})
endif()

# Adds the tests wine_start and wine_stop. CTest runs them before and after all tests that require the
# fixture "wine", so one Wine server runs for all of them. Called once.
function(kexa_add_wine_session)
    add_test(NAME wine_start COMMAND ${KEXA_WINE} --start)
    add_test(NAME wine_stop COMMAND ${KEXA_WINE} --stop)
    set_tests_properties(wine_start PROPERTIES FIXTURES_SETUP wine)
    set_tests_properties(wine_stop PROPERTIES FIXTURES_CLEANUP wine)
endfunction()

# Makes all tests of the current folder require the fixture "wine". Takes effect after the folder's
# CMakeLists.txt has been read, so that tests added below the call are included.
function(kexa_test_folder_needs_wine)
    cmake_language(DEFER GET_CALL_IDS calls)
    if(NOT "wine" IN_LIST calls)
        cmake_language(DEFER ID wine CALL kexa_require_wine_session)
    endif()
endfunction()

function(kexa_require_wine_session)
    get_property(tests DIRECTORY PROPERTY TESTS)
    list(REMOVE_ITEM tests wine_start wine_stop)
    if(tests)
        set_property(TEST ${tests} APPEND PROPERTY FIXTURES_REQUIRED wine)
    endif()
endfunction()
