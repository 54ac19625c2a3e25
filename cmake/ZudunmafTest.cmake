# Labels: "fast" is the inner loop, "slow" is the rest.

# zudunmaf_add_test(NAME LABEL [ENVIRONMENT ...] [TIMEOUT seconds] COMMAND ...)
function(zudunmaf_add_test name label)
    cmake_parse_arguments(PARSE_ARGV 2 test "" "TIMEOUT" "ENVIRONMENT;COMMAND")
    if(NOT test_TIMEOUT)
        set(test_TIMEOUT 300)
    endif()
    add_test(NAME ${name} COMMAND ${test_COMMAND})
    set_tests_properties(${name} PROPERTIES
        LABELS ${label}
        ENVIRONMENT "LC_ALL=C.UTF-8;${test_ENVIRONMENT}"
        TIMEOUT ${test_TIMEOUT})
endfunction()

# zudunmaf_missing_test(NAME LABEL WHAT): adds a test that cannot run here, so that ctest reports it as skipped.
function(zudunmaf_missing_test name label what)
    message(STATUS "${what} was not found: the test ${name} is skipped")
    add_test(NAME ${name} COMMAND "${CMAKE_COMMAND}" -E echo "skipped: ${what} was not found")
    set_tests_properties(${name} PROPERTIES LABELS ${label} SKIP_REGULAR_EXPRESSION "skipped: ")
endfunction()

# zudunmaf_test(NAME SOURCES ... LIBRARIES ...): adds a Qt Test program, which runs without a display.
function(zudunmaf_test name)
    cmake_parse_arguments(PARSE_ARGV 1 test "" "" "SOURCES;LIBRARIES")
    add_executable(${name} ${test_SOURCES})
    zudunmaf_target(${name})
    # This file is empty, since a test program includes its own .moc file.
    set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp"
        PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    target_link_libraries(${name} PRIVATE ${test_LIBRARIES} Qt${ZUDUNMAF_QT_MAJOR}::Test)
    zudunmaf_add_test(${name} fast COMMAND ${name} ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# zudunmaf_schema_test(NAME SCRIPT ARGUMENT...): adds a test in Python that needs the module jsonschema.
function(zudunmaf_schema_test name script)
    find_package(Python3 QUIET COMPONENTS Interpreter)
    set(missing 1)
    if(Python3_FOUND)
        execute_process(COMMAND "${Python3_EXECUTABLE}" -c "import jsonschema"
            RESULT_VARIABLE missing OUTPUT_QUIET ERROR_QUIET)
    endif()
    if(missing)
        zudunmaf_missing_test(${name} fast "jsonschema for Python 3")
    else()
        zudunmaf_add_test(${name} fast COMMAND "${Python3_EXECUTABLE}" "${CMAKE_CURRENT_SOURCE_DIR}/${script}" ${ARGN})
    endif()
endfunction()
