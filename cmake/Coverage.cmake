# Line and branch coverage of the library by the test suite (g++ --coverage, Debian's gcovr).
# The `coverage` target prints the figures of the sources and headers of the core library; run the
# tests first (cmake --workflow --preset coverage does both).

add_compile_options(--coverage)
add_link_options(--coverage)

find_program(GCOVR_EXECUTABLE gcovr REQUIRED)
set(ORVIK_COVERAGE_REPORT "${PROJECT_BINARY_DIR}/coverage.txt")
add_custom_target(coverage
    COMMAND "${GCOVR_EXECUTABLE}"
        --root "${PROJECT_SOURCE_DIR}"
        --object-directory "${PROJECT_BINARY_DIR}"
        --filter "${PROJECT_SOURCE_DIR}/BusinessEntityModel/BaseTypes/"
        --filter "${PROJECT_SOURCE_DIR}/BusinessEntityModel/MediaAssets/Core/"
        --filter "${PROJECT_SOURCE_DIR}/TimePoints/"
        --filter "${PROJECT_SOURCE_DIR}/include/"
        # g++ attributes to the rows of a braced table only the clean-up that runs when building
        # a later row throws, so the rows of the enumeration tables would count as lines never run.
        --exclude-lines-by-pattern "^ *\\{[A-Za-z0-9_:]+, \"[^\"]*\"\\},$"
        --exclude-unreachable-branches
        --exclude-throw-branches
        --print-summary
        --output "${ORVIK_COVERAGE_REPORT}"
        # Only this build's data: without a search path gcovr scans the whole source tree, and
        # another build directory's stale data there makes gcov fail.
        "${PROJECT_BINARY_DIR}"
    COMMAND "${CMAKE_COMMAND}" -E echo "Per-file figures: ${ORVIK_COVERAGE_REPORT}"
    WORKING_DIRECTORY "${PROJECT_BINARY_DIR}"
    COMMENT "Coverage of the library by the tests"
    VERBATIM)
