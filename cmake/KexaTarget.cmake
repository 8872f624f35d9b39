# Compiler settings for all targets of this project. They are private to these targets and are not
# passed on to consumers of the library.
add_library(kexa_build_settings INTERFACE)
target_compile_features(kexa_build_settings INTERFACE cxx_std_20)

if(MSVC)
    target_compile_options(kexa_build_settings INTERFACE /W4 /permissive- /utf-8 /EHsc)
    if(KEXA_WARNINGS_AS_ERRORS)
        target_compile_options(kexa_build_settings INTERFACE /WX)
    endif()
else()
    target_compile_options(kexa_build_settings INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
        -Wcast-align -Wcast-qual -Wformat=2 -Wnon-virtual-dtor -Woverloaded-virtual -Wundef
        -Wdouble-promotion -Wextra-semi -Wimplicit-fallthrough)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(kexa_build_settings INTERFACE
            -Wduplicated-cond -Wlogical-op -Wuseless-cast)
        if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
            # GCC 12 warns wrongly of overlapping copies and overflows where strings are concatenated.
            target_compile_options(kexa_build_settings INTERFACE
                -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
            if(CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
                # The fortified functions of the C library give these wrong warnings by an attribute.
                target_compile_options(kexa_build_settings INTERFACE -Wno-attribute-warning)
            endif()
        endif()
    endif()
    if(KEXA_WARNINGS_AS_ERRORS)
        target_compile_options(kexa_build_settings INTERFACE -Werror)
    endif()
endif()

# Gives a target of this project the common settings, without compiler extensions.
function(kexa_configure_target target)
    target_link_libraries(${target} PRIVATE kexa_build_settings)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    if(KEXA_WINE)
        kexa_test_folder_needs_wine()
    endif()
endfunction()
