# Build options. In a subproject the demo is off by default, and tests are never built.
if(CMAKE_SOURCE_DIR STREQUAL PROJECT_SOURCE_DIR)
    set(ZUDUNMAF_TOP_LEVEL ON)
else()
    set(ZUDUNMAF_TOP_LEVEL OFF)
endif()

# In a subproject, BUILD_TESTING is an option of the other project.
set(zudunmaf_tests OFF)
if(ZUDUNMAF_TOP_LEVEL)
    include(CTest)
    set(zudunmaf_tests ${BUILD_TESTING})
endif()
option(ZUDUNMAF_BUILD_DEMO "Build the demo host" ${ZUDUNMAF_TOP_LEVEL})
option(ZUDUNMAF_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(ZUDUNMAF_BUILD_FUZZERS "Build the fuzzers; requires clang" OFF)
option(ZUDUNMAF_PCH "Build with precompiled Qt headers" ${ZUDUNMAF_TOP_LEVEL})
option(ZUDUNMAF_PACKAGES "Configure Debian packages with CPack, and install their additional files" OFF)
option(ZUDUNMAF_WERROR "Treat compiler warnings as errors" OFF)
set(ZUDUNMAF_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined")

if(ZUDUNMAF_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()
