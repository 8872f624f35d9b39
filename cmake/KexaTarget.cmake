# What every target of this project is compiled with. The settings are private to our own targets:
# a consumer of the library sees none of them.
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
            # GCC 12 sees copies overlap and run over in every concatenation of strings.
            target_compile_options(kexa_build_settings INTERFACE
                -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
            if(CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
                # So do the fortified functions of the C library, which warn by an attribute.
                target_compile_options(kexa_build_settings INTERFACE -Wno-attribute-warning)
            endif()
        endif()
    endif()
    if(KEXA_WARNINGS_AS_ERRORS)
        target_compile_options(kexa_build_settings INTERFACE -Werror)
    endif()
endif()

# Settings for a target of this project: the common ones, no compiler extensions.
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
