# Runs the command lines of a transcript and compares their output with it.
#
# A line that begins with "$ " is a command line, quoted as for a shell: its first word is either
# NAME, which stands for PROGRAM, or "cmake" (as in "cmake -E cat file"). It is followed by its
# standard output; if it writes to standard error, by the line "-- standard error:" and that text;
# and by the line "-- exit code: N". Output without a line feed at its end is not completed, so the
# next line follows it directly. Lines before the first command line that begin with "#" are
# comments.
#
# PROGRAM     the program
# NAME        its name in the transcript
# TRANSCRIPT  the expected transcript
# FOLDER      where the commands run; removed and created first
# SETUP       a CMake script that fills the folder, or a folder to copy from (optional)
# EMULATOR    the command that runs a program of another system (optional)

function(run_command command_line folder result)
    separate_arguments(words UNIX_COMMAND "${command_line}")
    list(POP_FRONT words command)
    if(command STREQUAL NAME)
        set(command ${EMULATOR} "${PROGRAM}")
    elseif(command STREQUAL "cmake")
        set(command "${CMAKE_COMMAND}")
    else()
        message(FATAL_ERROR "${TRANSCRIPT}: '${command}' is not '${NAME}'")
    endif()
    # Captured in files, because a variable loses carriage returns.
    execute_process(COMMAND ${command} ${words}
        WORKING_DIRECTORY "${folder}"
        OUTPUT_FILE "${FOLDER}/output.txt" ERROR_FILE "${FOLDER}/error.txt"
        RESULT_VARIABLE exit_code)
    read_text("${FOLDER}/output.txt" output)
    read_text("${FOLDER}/error.txt" error)
    if(NOT error STREQUAL "")
        set(error "-- standard error:\n${error}")
    endif()
    set(${result} "${output}${error}-- exit code: ${exit_code}\n" PARENT_SCOPE)
endfunction()

# Only a Windows program may write carriage returns. file(READ) drops them at line ends, so they are
# searched for in the bytes.
function(read_text file result)
    file(READ "${file}" text)
    file(READ "${file}" bytes HEX)
    if(NOT PROGRAM MATCHES "\\.exe$" AND bytes MATCHES "^(..)*0d")
        string(APPEND text "-- a carriage return was written\n")
    endif()
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

# Removes the first line, with its line feed, from the variable named `text`.
macro(take_line text line)
    string(FIND "${${text}}" "\n" end)
    if(end LESS 0)
        set(${line} "${${text}}")
        set(${text} "")
    else()
        math(EXPR end "${end} + 1")
        string(SUBSTRING "${${text}}" 0 ${end} ${line})
        string(SUBSTRING "${${text}}" ${end} -1 ${text})
    endif()
endmacro()

function(show_difference expected actual)
    find_program(DIFF diff)
    if(DIFF)
        execute_process(COMMAND "${DIFF}" -u "${expected}" "${actual}")
    else()
        file(READ "${actual}" text)
        message("${text}")
    endif()
    message(FATAL_ERROR "'${actual}' differs from '${expected}'")
endfunction()

file(REMOVE_RECURSE "${FOLDER}")
set(work "${FOLDER}/work")
file(MAKE_DIRECTORY "${work}")
if(IS_DIRECTORY "${SETUP}")
    file(COPY "${SETUP}/" DESTINATION "${work}")
elseif(SETUP)
    include("${SETUP}")
endif()

file(READ "${TRANSCRIPT}" expected)
set(rest "${expected}")
set(actual "")
set(commands 0)
while(NOT rest STREQUAL "")
    take_line(rest line)
    if(line MATCHES "^\\$ ")
        string(STRIP "${line}" command_line)
        string(SUBSTRING "${command_line}" 2 -1 command_line)
        run_command("${command_line}" "${work}" text)
        string(APPEND actual "${line}${text}")
        math(EXPR commands "${commands} + 1")
    elseif(commands EQUAL 0 AND line MATCHES "^#")
        string(APPEND actual "${line}")
    endif()
endwhile()

if(commands EQUAL 0)
    message(FATAL_ERROR "'${TRANSCRIPT}' has no command line")
endif()
if(NOT actual STREQUAL expected)
    file(WRITE "${FOLDER}/actual.txt" "${actual}")
    show_difference("${TRANSCRIPT}" "${FOLDER}/actual.txt")
endif()
message("${commands} command lines as expected")
