# Runs bench_streams and summary in their shortest form and looks at the document: PHILOX4X32X10 has all its figures and
# is compared with a peer. Times are not judged.
file(MAKE_DIRECTORY ${SCRATCH})
foreach(command "${BENCH};--passes;1;--rounds;1;--seconds;0;--benchmark_out=${SCRATCH}/streams.json"
                "${SUMMARY};--streams;${SCRATCH}/streams.json;--output;${SCRATCH}/performance_streams.md")
    execute_process(COMMAND ${command} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${command} returned ${result}\n${output}${errors}")
    endif()
endforeach()
file(READ ${SCRATCH}/performance_streams.md document)
if(NOT document MATCHES "\\| PHILOX4X32X10 (\\| [0-9]+\\.[0-9]+ )+\\| [a-z0-9_]+ \\|"
   OR NOT document MATCHES "\\| std_mt19937 (\\| [0-9]+\\.[0-9]+ )+\\|\n")
    message(FATAL_ERROR "figures are missing in\n${document}")
endif()
