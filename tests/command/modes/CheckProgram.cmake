# Runs PROGRAM with lines and compares output, errors and exit codes.
function(expect arguments code output error)
    execute_process(COMMAND ${EMULATOR} "${PROGRAM}" ${arguments}
        RESULT_VARIABLE actual_code OUTPUT_VARIABLE actual_output ERROR_VARIABLE actual_error)
    string(REPLACE "\r\n" "\n" actual_output "${actual_output}")
    if(NOT actual_code STREQUAL code OR NOT actual_output STREQUAL output
            OR NOT actual_error STREQUAL error)
        message(FATAL_ERROR "arguments: ${arguments}\nexit code: ${actual_code}\n"
            "output: ${actual_output}\nerrors: ${actual_error}")
    endif()
endfunction()

expect("" 0 "quiet 3\n" "")
expect("-v;--lev=7;größe;-" 0 "verbose 7 <größe> <->\n" "")
expect("-l;9" 9 "quiet 9\n" "")
expect("--level;5" 2 "" "shared: Value '5' is not valid for option 'level' in argument '--level': \
is not wanted\nTry 'shared --help'.\n")
expect("--levle=5" 2 "" "shared: Unknown option: --levle=5\n  did you mean '--level'?\n\
Try 'shared --help'.\n")
expect("--level=10" 2 "" "shared: Value '10' is not valid for option 'level' in argument \
'--level=10': greater than 9\n  allowed are 1 to 9\nTry 'shared --help'.\n")
expect("--help" 0 "Usage: shared [options] [word...]

Is declared in another unit.

Arguments:
  word                What to say

Options:
  -v, --verbose       Say more
  -l, --level=NUMBER  How much [from 1 to 9; default: 3]
  -h, --help          Show this help
" "")

# A mistake of the program: an exception that nobody catches, or the text and an abort.
execute_process(COMMAND ${EMULATOR} "${PROGRAM}" misuse
    RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE error)
set(text "kexa: command 'shared', declaration 'verbose': the name 'verbose' is taken already")
if(code STREQUAL 0 OR NOT output STREQUAL "" OR NOT error MATCHES "${text}")
    message(FATAL_ERROR "misuse: exit code ${code}\noutput: ${output}\nerrors: ${error}")
endif()
