# Runs one korvane command line and compares what it did with what is expected.
# Inputs: EXE, ARGS (arguments separated by '|'), optional STDIN (text fed to
# standard input), RC (expected exit status), optional OUT and ERR (expected
# standard output and standard error, exact), optional OUT_MATCH (a regular
# expression for standard output). In STDIN, OUT and ERR, "\n" is a line end.

foreach(v STDIN OUT ERR)
  if(DEFINED ${v})
    string(REPLACE "\\n" "\n" ${v} "${${v}}")
  endif()
endforeach()

set(args "")
if(DEFINED ARGS AND NOT ARGS STREQUAL "")
  string(REPLACE "|" ";" args "${ARGS}")
endif()

set(input_option "")
if(DEFINED STDIN)
  string(MD5 tag "${ARGS}${STDIN}")
  set(input_file ${CMAKE_CURRENT_BINARY_DIR}/cli_stdin_${tag}.txt)
  file(WRITE ${input_file} "${STDIN}")
  set(input_option INPUT_FILE ${input_file})
endif()

execute_process(COMMAND ${EXE} ${args} ${input_option}
                OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc)
if(DEFINED input_file)
  file(REMOVE ${input_file})
endif()

set(failures "")
if(NOT rc STREQUAL RC)
  string(APPEND failures "exit status ${rc}, expected ${RC}\n")
endif()
if(DEFINED OUT AND NOT out STREQUAL OUT)
  string(APPEND failures "standard output:\n[${out}]\nexpected:\n[${OUT}]\n")
endif()
if(DEFINED OUT_MATCH AND NOT out MATCHES "${OUT_MATCH}")
  string(APPEND failures "standard output:\n[${out}]\ndoes not match ${OUT_MATCH}\n")
endif()
if(DEFINED ERR AND NOT err STREQUAL ERR)
  string(APPEND failures "standard error:\n[${err}]\nexpected:\n[${ERR}]\n")
endif()
if(failures)
  list(JOIN args " " shown)
  message(FATAL_ERROR "korvane ${shown}:\n${failures}")
endif()
