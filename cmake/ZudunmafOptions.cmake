# Build options. As part of another project, tests and demo are off unless asked for.
if(CMAKE_SOURCE_DIR STREQUAL PROJECT_SOURCE_DIR)
    set(ZUDUNMAF_TOP_LEVEL ON)
else()
    set(ZUDUNMAF_TOP_LEVEL OFF)
endif()

# BUILD_TESTING belongs to the top-level project.
set(zudunmaf_tests OFF)
if(ZUDUNMAF_TOP_LEVEL)
    include(CTest)
    set(zudunmaf_tests ${BUILD_TESTING})
endif()
option(ZUDUNMAF_BUILD_DEMO "Build the demo host" ${ZUDUNMAF_TOP_LEVEL})
option(ZUDUNMAF_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(ZUDUNMAF_BUILD_FUZZERS "Build the fuzzers, which takes clang" OFF)
option(ZUDUNMAF_PCH "Build with precompiled Qt headers" ${ZUDUNMAF_TOP_LEVEL})
option(ZUDUNMAF_PACKAGES "Install what Debian packages need, and set CPack up" OFF)
option(ZUDUNMAF_WERROR "Treat compiler warnings as errors" OFF)
set(ZUDUNMAF_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined")

if(ZUDUNMAF_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Type of the build" FORCE)
endif()
