# zudunmaf_test(NAME SOURCES ... LIBRARIES ...): a test program of Qt Test, and the test of that name that runs it,
# without a display and under a locale of UTF-8.
function(zudunmaf_test name)
    cmake_parse_arguments(PARSE_ARGV 1 test "" "" "SOURCES;LIBRARIES")
    add_executable(${name} ${test_SOURCES})
    zudunmaf_target(${name})
    target_link_libraries(${name} PRIVATE ${test_LIBRARIES} Qt${ZUDUNMAF_QT_MAJOR}::Test)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8"
        TIMEOUT 300)
endfunction()
