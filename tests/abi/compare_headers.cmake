# Writes the public headers anew and compares them with the committed ones.
# Run with -DWRITER=program -DCOMMITTED=folder -DSCRATCH=folder.
file(MAKE_DIRECTORY ${SCRATCH})
execute_process(COMMAND ${WRITER} ${SCRATCH} COMMAND_ERROR_IS_FATAL ANY)
foreach(header zet.h zet_tables.h)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${SCRATCH}/${header} ${COMMITTED}/${header} RESULT_VARIABLE differs)
    if(differs)
        message(FATAL_ERROR "${header} is not what the lists give; build the target headers and commit the result")
    endif()
endforeach()
