# The target tidy runs clang-tidy with the committed .clang-tidy over everything that is built. It takes minutes and is
# not a part of the tests.
find_program(QORL_RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)
if(PROJECT_IS_TOP_LEVEL AND QORL_RUN_CLANG_TIDY)
    add_custom_target(
        tidy
        COMMAND ${QORL_RUN_CLANG_TIDY} -quiet -p ${PROJECT_BINARY_DIR}
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        USES_TERMINAL
        COMMENT "Checking the sources with clang-tidy")
endif()
