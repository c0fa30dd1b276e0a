# Adds a function as docs/add_a_function.md says and checks that nothing else had to be touched: one kernel source and one
# line in frame/functions.inc, in a copy of the sources; then calls the new function.
#   cmake -DSOURCE=top folder -DSCRATCH=folder -DC_COMPILER=... -DCXX_COMPILER=... -P add_a_function.cmake
file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH}/source/tests)
file(COPY ${SOURCE}/CMakeLists.txt ${SOURCE}/cmake ${SOURCE}/LICENSE ${SOURCE}/include ${SOURCE}/core ${SOURCE}/frame
          ${SOURCE}/library DESTINATION ${SCRATCH}/source)
file(COPY ${SOURCE}/tests/CMakeLists.txt ${SOURCE}/tests/main.cpp DESTINATION ${SCRATCH}/source/tests)
file(COPY ${SOURCE}/tests/packaging/toy/ DESTINATION ${SCRATCH}/source/tests/kernels FILES_MATCHING PATTERN "*test*" PATTERN "CMake*")

# The other parts of the library are left empty.
file(STRINGS ${SOURCE}/CMakeLists.txt folders REGEX "^add_subdirectory\\(")
list(TRANSFORM folders REPLACE "^add_subdirectory\\((.*)\\)$" "\\1")
list(REMOVE_ITEM folders core frame kernels library)
foreach(folder IN LISTS folders)
    file(WRITE ${SCRATCH}/source/${folder}/CMakeLists.txt "add_library(qorl_${folder} INTERFACE)\n")
endforeach()

# Of the kernels the simplest ones do, so that the build is short; the list is cut to them and the new function.
file(MAKE_DIRECTORY ${SCRATCH}/source/kernels)
file(COPY ${SOURCE}/kernels/CMakeLists.txt ${SOURCE}/kernels/abs.cpp ${SOURCE}/tests/packaging/toy/toy_d.cpp
     DESTINATION ${SCRATCH}/source/kernels)
file(STRINGS ${SOURCE}/frame/functions.inc lines)
list(FILTER lines INCLUDE REGEX "^QORL_FUNCTION\\([sd], Abs,")
list(APPEND lines "QORL_FUNCTION(d, J0, 3.9, 0.9, 26)")
list(JOIN lines "\n" functions)
file(WRITE ${SCRATCH}/source/frame/functions.inc "${functions}\n")

execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${SCRATCH}/source -B ${SCRATCH}/build -G Ninja -DQORL_TOOLS=OFF -DQORL_BENCH=OFF
            -DCMAKE_C_COMPILER=${C_COMPILER} -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${SCRATCH}/build COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${SCRATCH}/build/bin/toy_test COMMAND_ERROR_IS_FATAL ANY)
