# Builds and runs the README's first programs as a user would, and checks what they print.
#   cmake -DKIND=find_package|add_subdirectory|pkg-config -DSOURCE=top folder -DPREFIX=installation -DLIBDIR=its libraries
#         -DSCRATCH=folder -DC_COMPILER=... -DCXX_COMPILER=... -P consumer.cmake
file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})

# The programs are taken out of the README, so that what is read is what is built.
file(READ ${SOURCE}/README.md readme)
# extract(LANGUAGE FILE...): the programs in that language, in their order.
function(extract language)
    set(fence "\n```${language}\n")
    string(LENGTH "${fence}" length)
    set(rest "${readme}")
    foreach(file ${ARGN})
        string(FIND "${rest}" "${fence}" start)
        if(start LESS 0)
            message(FATAL_ERROR "README.md has no program in ${language} for ${file}")
        endif()
        math(EXPR start "${start} + ${length}")
        string(SUBSTRING "${rest}" ${start} -1 rest)
        string(FIND "${rest}" "\n```" end)
        string(SUBSTRING "${rest}" 0 ${end} program)
        file(WRITE ${SCRATCH}/${file} "${program}\n")
    endforeach()
endfunction()
extract(c first.c streams.c)
extract(cpp first.cpp)

if(KIND STREQUAL "pkg-config")
    set(ENV{PKG_CONFIG_PATH} ${LIBDIR}/pkgconfig)
    execute_process(COMMAND pkg-config --cflags --libs qorl_zet OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    foreach(program first streams)
        execute_process(COMMAND ${C_COMPILER} -std=c11 ${program}.c -o ${program}_c ${flags}
                        WORKING_DIRECTORY ${SCRATCH} COMMAND_ERROR_IS_FATAL ANY)
    endforeach()
    execute_process(COMMAND ${CXX_COMPILER} -std=c++17 first.cpp -o first_cpp ${flags} WORKING_DIRECTORY ${SCRATCH}
                    COMMAND_ERROR_IS_FATAL ANY)
    set(ENV{LD_LIBRARY_PATH} ${LIBDIR})
else()
    if(KIND STREQUAL "add_subdirectory")
        set(where -DQORL_SOURCE=${SOURCE})
    else()
        set(where -DCMAKE_PREFIX_PATH=${PREFIX})
    endif()
    execute_process(
        COMMAND ${CMAKE_COMMAND} -S ${SOURCE}/tests/packaging/consumer -B ${SCRATCH} -G Ninja -DPROGRAMS=${SCRATCH}
                -DCMAKE_C_COMPILER=${C_COMPILER} -DCMAKE_CXX_COMPILER=${CXX_COMPILER} ${where}
        COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${CMAKE_COMMAND} --build ${SCRATCH} COMMAND_ERROR_IS_FATAL ANY)
endif()

function(expect program text)
    execute_process(COMMAND ${SCRATCH}/${program} WORKING_DIRECTORY ${SCRATCH} OUTPUT_VARIABLE output
                    COMMAND_ERROR_IS_FATAL ANY)
    string(FIND "${output}" "${text}" place)
    if(place LESS 0)
        message(FATAL_ERROR "${program} does not print \"${text}\" but:\n${output}")
    endif()
endfunction()
expect(first_c "exp(1) = 2.7182818284590451")
expect(first_c "overflow in the last call")
expect(first_cpp "largest tanh: 0.999909")
expect(streams_c "the same number")
