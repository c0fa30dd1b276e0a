# Checks that no two headers of kernels/tables define one name: their constants are inline variables of one namespace, so
# two of the same name are one variable, and a kernel that does not fold it may read the other header's numbers.
#   cmake -DTABLES=folder -P table_names.cmake
file(GLOB headers ${TABLES}/*.hpp)
foreach(header ${headers})
    file(STRINGS ${header} lines REGEX "^(alignas.*)?inline constexpr")
    foreach(line ${lines})
        if(NOT line MATCHES "([A-Za-z0-9_]+)(\\[[0-9]+\\])?( = |{)")
            message(FATAL_ERROR "${header}: no name in: ${line}")
        endif()
        set(name ${CMAKE_MATCH_1})
        if(DEFINED owner_${name})
            message(SEND_ERROR "${name} stands in ${owner_${name}} and in ${header}")
        endif()
        set(owner_${name} ${header})
    endforeach()
endforeach()
