# Runs PROGRAM and compares what it prints with HEADER, byte for byte.
execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE computed RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with status ${status}")
endif()
file(READ ${HEADER} committed)
if(NOT computed STREQUAL committed)
    message(FATAL_ERROR "${HEADER} is not what its program writes; build the target write_tables and look at the difference")
endif()
