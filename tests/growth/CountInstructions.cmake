# Runs PROGRAM under callgrind. Fails if a phase grows faster than linearly with the arguments, or
# if the cost of one argument grows with the number of options.
if(NOT OBSTACLE STREQUAL "")
    message("skipped: ${OBSTACLE}")
    return()
endif()

file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
execute_process(
    COMMAND "${VALGRIND}" --tool=callgrind --dump-before=growth_boundary
        "--callgrind-out-file=${FOLDER}/counts" "${PROGRAM}"
    OUTPUT_VARIABLE output ERROR_VARIABLE errors RESULT_VARIABLE code)
if(NOT code EQUAL 0)
    message(FATAL_ERROR "the program failed (${code}):\n${output}\n${errors}")
endif()

# Reads the instructions of the phase with a number. callgrind restarts at zero after each dump.
function(read_count phase result)
    file(STRINGS "${FOLDER}/counts.${phase}" lines REGEX "^(summary|totals): ")
    if(NOT lines MATCHES "(summary|totals): ([0-9]+)")
        message(FATAL_ERROR "phase ${phase} has no count")
    endif()
    set(${result} ${CMAKE_MATCH_2} PARENT_SCOPE)
endfunction()

set(failed FALSE)
string(REGEX MATCHALL "[a-z-]+ [0-9]+ [0-9]+" lines "${output}")
list(LENGTH lines count)
if(count EQUAL 0)
    message(FATAL_ERROR "the program printed no phases:\n${output}")
endif()
set(phase 0)
set(kind "")
foreach(line IN LISTS lines)
    math(EXPR phase "${phase} + 2") # the preparation, then the parse
    read_count(${phase} instructions)
    string(REPLACE " " ";" words "${line}")
    list(GET words 0 name)
    list(GET words 1 options)
    list(GET words 2 arguments)
    math(EXPR each "${instructions} / ${arguments}")
    message("${name}: ${options} options, ${arguments} arguments: ${instructions} instructions, ${each} each")
    if(NOT name STREQUAL kind)
        set(kind "${name}")
        set(few ${options})
        set(counts "")
    endif()
    list(APPEND counts ${instructions})
    list(LENGTH counts length)
    if(length EQUAL 3)
        # Linear growth adds twice as much in the second doubling as in the first, quadratic growth
        # four times as much. A fifth is added for noise.
        list(GET counts 0 first)
        list(GET counts 1 second)
        math(EXPR allowed "(${second} - ${first}) * 24 / 10")
        math(EXPR added "${instructions} - ${second}")
        if(added GREATER allowed)
            message("FAILED: ${kind} grows faster than linearly: ${counts}")
            set(failed TRUE)
        endif()
    elseif(length EQUAL 4)
        # 32 times as many options (or allowed values) for an equal number of arguments. One record
        # per option costs more than one record that grows, and a search may take one step more for
        # each doubling.
        list(GET counts 2 before)
        math(EXPR allowed "${before} * 25 / 10")
        if(instructions GREATER allowed)
            message("FAILED: ${kind}: an argument costs more with ${options} options than with ${few}: ${counts}")
            set(failed TRUE)
        endif()
    endif()
endforeach()
if(failed)
    message(FATAL_ERROR "costs grow faster than they may")
endif()
