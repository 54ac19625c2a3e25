cmake_minimum_required(VERSION 3.16)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN}\nended with ${status}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect_line line)
    run(${ARGN})
    string(FIND "\n${output}" "\n${line}\n" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "${ARGN}\nprinted no line \"${line}\" but:\n${output}")
    endif()
endfunction()

function(expect_failure text)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    string(FIND "${output}" "${text}" at)
    if(status EQUAL 0 OR at EQUAL -1)
        message(FATAL_ERROR "${ARGN}\nwas to fail with \"${text}\" but ended with ${status}:\n${output}")
    endif()
endfunction()

# build(SOURCE_DIRECTORY OPTION...): a CMake project that finds the installed package, in WORK under its own name.
function(build directory)
    get_filename_component(name "${directory}" NAME)
    run("${CMAKE_COMMAND}" -S "${SOURCE}/${directory}" -B "${WORK}/${name}" -G "${GENERATOR}"
        "-DCMAKE_PREFIX_PATH=${WORK}/prefix" "-DZUDUNMAF_QT_MAJOR=${QT_MAJOR}"
        "-DCMAKE_CXX_FLAGS=${sanitize}" "-DCMAKE_C_FLAGS=${sanitize}" ${ARGN})
    run("${CMAKE_COMMAND}" --build "${WORK}/${name}")
endfunction()

set(sanitize)
if(SANITIZE)
    set(sanitize "-fsanitize=${SANITIZE}")
endif()
set(compile "${COMPILER}" -std=c++17 -fPIC -Wall -Werror ${sanitize})

file(REMOVE_RECURSE "${WORK}")
run("${CMAKE_COMMAND}" --install "${BINARY}" --prefix "${WORK}/first")
# Moved once, so that a path of the first place would show.
file(RENAME "${WORK}/first" "${WORK}/prefix")
file(GLOB_RECURSE pc_file "${WORK}/prefix/*/zudunmaf.pc")
get_filename_component(pc_dir "${pc_file}" DIRECTORY)
set(ENV{PKG_CONFIG_PATH} "${pc_dir}")
run(pkg-config --variable=libdir zudunmaf)
string(STRIP "${output}" libdir)

# With the stand-ins: CMake, and the flags of pkg-config.
build(tests/package/consumer)
expect_line("width" "${WORK}/consumer/consumer")
expect_line("Bedingung" "${WORK}/consumer/consumer")
run(pkg-config --cflags --libs zudunmaf-standins)
separate_arguments(pc_flags UNIX_COMMAND "${output}")
run(${compile} "${SOURCE}/tests/package/consumer/main.cpp" -o "${WORK}/pc_consumer" ${pc_flags} "-Wl,-rpath,${libdir}")
expect_line("width" "${WORK}/pc_consumer")

# A host without any stand-in.
build(examples/minimal_host)
expect_line("5 <= width <= 9" "${WORK}/minimal_host/minimal_host" --once)
if(NOT SANITIZE) # which reports that two libraries define the base dialog
    run("${CMAKE_CTEST_COMMAND}" --test-dir "${WORK}/minimal_host" --no-tests=error --output-on-failure)
endif()

# The program of the README over that host's base dialog. It names no symbol of the base, and the linker drops what the
# program does not use.
set(base "${WORK}/minimal_host/libzudunmaf_tvx.so.1")
file(READ "${SOURCE}/README.md" readme)
if(NOT readme MATCHES "```cpp\n(#include \"gdm/gdm_qt.h\"[^`]*)```")
    message(FATAL_ERROR "README.md has no program that includes gdm/gdm_qt.h")
endif()
file(WRITE "${WORK}/readme_program.inc" "${CMAKE_MATCH_1}")
build(tests/package/readme_host "-DHOST_BASE=${base}" "-DREADME_PROGRAM_DIR=${WORK}")
expect_line("base dialog: ${base}" "${WORK}/readme_host/readme_host")

# The same with pkg-config. Where the base is dropped, the program does not start; the installed stand-in is not found.
run(pkg-config --cflags --libs zudunmaf)
separate_arguments(pc_flags UNIX_COMMAND "${output}")
set(host "${SOURCE}/tests/package/readme_host")
set(services "${WORK}/services.o")
foreach(standard c99 c11)
    run("${COMPILER}" -x c -std=${standard} -fPIC -Wall -Wextra -Wpedantic -Werror ${sanitize} -c "${host}/services.c"
        -o "${services}" "-I${WORK}/prefix/include/zudunmaf")
endforeach()
foreach(keep --no-as-needed --as-needed)
    run(${compile} "${host}/main.cpp" "${services}" -o "${WORK}/readme${keep}" "-I${WORK}" -Wl,--export-dynamic
        "-Wl,${keep}" "${base}" ${pc_flags} "-Wl,-rpath,${libdir}:${WORK}/minimal_host")
endforeach()
expect_line("base dialog: ${base}" "${WORK}/readme--no-as-needed")
expect_failure("libzudunmaf_tvx.so.1" "${WORK}/readme--as-needed")

# Built for another major version of Qt, each library keeps its file name; the programs do not start with it.
if(QT_MAJOR EQUAL 6)
    set(other_major 5)
else()
    set(other_major 6)
endif()
file(WRITE "${WORK}/other.cpp" "extern \"C\" __attribute__((visibility(\"default\"))) void other() {}\n")
file(WRITE "${WORK}/other.map" "ZUDUNMAF_QT${other_major} { *; };\n")
foreach(library zudunmaf zudunmaf_tvx zudunmaf_gen zudunmaf_dml)
    set(file "lib${library}.so.1")
    file(MAKE_DIRECTORY "${WORK}/other/${library}")
    run("${COMPILER}" -shared -fPIC "${WORK}/other.cpp" -o "${WORK}/other/${library}/${file}"
        "-Wl,-soname,${file},--version-script,${WORK}/other.map")
    foreach(program consumer/consumer pc_consumer)
        expect_failure("version `ZUDUNMAF_QT${QT_MAJOR}' not found"
            "${CMAKE_COMMAND}" -E env "LD_LIBRARY_PATH=${WORK}/other/${library}" "${WORK}/${program}")
    endforeach()
endforeach()

# A program that is compiled with another version is refused, too: here the library says that it was built with another.
file(READ "${WORK}/prefix/include/zudunmaf/gdm/zudunmaf_qt.h" header)
string(REPLACE "BUILT_WITH_QT ${QT_MAJOR}" "BUILT_WITH_QT ${other_major}" header "${header}")
file(WRITE "${WORK}/other/gdm/zudunmaf_qt.h" "${header}")
expect_failure("built with another major version of Qt"
    ${compile} -fsyntax-only "${SOURCE}/tests/package/consumer/main.cpp" "-I${WORK}/other" ${pc_flags})
