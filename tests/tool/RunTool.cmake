# Runs orvik-asset once and compares its standard output, standard error and exit status with
# what is expected; any difference fails the test and shows both sides.
#   cmake -DTOOL=<orvik-asset> -DARGS=<arguments, separated by |> -DSTATUS=<exit status>
#         -DEXPECTED=<expected/name> [-DSTDIN=<file for standard input>]
#         [-DPIPE_FROM=<arguments of a first run whose output is the standard input>]
#         [-DMASK=<regular expression>] -P RunTool.cmake
# EXPECTED.out and EXPECTED.err hold the expected standard output and standard error; a missing
# file means that nothing may be written there. Every match of MASK in the standard output reads
# <varies> before it is compared.

string(REPLACE "|" ";" args "${ARGS}")
set(input)
if(STDIN)
    set(input INPUT_FILE "${STDIN}")
endif()
set(first)
if(PIPE_FROM)
    string(REPLACE "|" ";" pipeArgs "${PIPE_FROM}")
    set(first COMMAND "${TOOL}" ${pipeArgs})
endif()

execute_process(${first} COMMAND "${TOOL}" ${args} ${input}
    OUTPUT_VARIABLE out ERROR_VARIABLE err RESULTS_VARIABLE statuses)

# Every run of a pipeline must succeed but the last, whose status is the one compared.
list(POP_BACK statuses status)
foreach(earlier IN LISTS statuses)
    if(NOT earlier EQUAL 0)
        message(FATAL_ERROR "the first run of the pipeline failed with ${earlier}:\n${err}")
    endif()
endforeach()

if(MASK)
    string(REGEX REPLACE "${MASK}" "<varies>" out "${out}")
endif()

set(failures)
set(out_name "standard output")
set(err_name "standard error")
foreach(stream IN ITEMS out err)
    set(expected "")
    if(EXISTS "${EXPECTED}.${stream}")
        file(READ "${EXPECTED}.${stream}" expected)
    endif()
    if(NOT "${${stream}}" STREQUAL "${expected}")
        string(APPEND failures "${${stream}_name} differs from ${EXPECTED}.${stream}\n"
            "--- expected\n${expected}\n--- actual\n${${stream}}\n")
    endif()
endforeach()
if(NOT status STREQUAL "${STATUS}")
    string(APPEND failures "exit status ${status}, expected ${STATUS}\n")
endif()
if(failures)
    list(JOIN args " " shown)
    message(FATAL_ERROR "orvik-asset ${shown}:\n${failures}")
endif()
