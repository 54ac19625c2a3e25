# zudunmaf_target(TARGET): sets the properties and options of every target of the tree.
function(zudunmaf_target target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    # Functions are not interposed, so calls inside a library can bypass the procedure linkage table.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE -fno-semantic-interposition)
    endif()
    # Makes file names in error reports relative to the root of the tree. The second option is for ccache with a base
    # directory, which passes paths relative to the build directory.
    file(RELATIVE_PATH root_from_build "${CMAKE_BINARY_DIR}" "${PROJECT_SOURCE_DIR}/")
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic
        "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=")
    if(root_from_build)
        target_compile_options(${target} PRIVATE "-fmacro-prefix-map=${root_from_build}=")
    endif()
    target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_FOREACH)
    if(ZUDUNMAF_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(ZUDUNMAF_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${ZUDUNMAF_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${ZUDUNMAF_SANITIZE})
    endif()
endfunction()

# The stand-ins have a folder of their own, which no default search path includes: a host whose base dialog library was
# not linked gets the loader's message instead of the stand-in.
set(zudunmaf_standins_dir "${CMAKE_INSTALL_LIBDIR}/zudunmaf-standins")

# zudunmaf_library(TARGET ALIAS [SYMBOLS]): a shared library that is installed, and seen as Zudunmaf::ALIAS. The installed
# library has no run path: libzudunmaf.so finds the base dialog library that the program has loaded.
#
# The exported symbols that match SYMBOLS, by default all, carry the major version of Qt. A program that was linked
# against a library for one version does not start with the library for another, which has the same file name.
function(zudunmaf_library target alias)
    zudunmaf_target(${target})
    add_library(Zudunmaf::${alias} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${alias}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    set(symbols "*;")
    if(ARGC GREATER 2)
        set(symbols "extern \"C++\" { ${ARGV2}; };")
    endif()
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}.map")
    file(WRITE "${script}" "ZUDUNMAF_QT${ZUDUNMAF_QT_MAJOR} { ${symbols} };\n")
    target_link_options(${target} PRIVATE "LINKER:--version-script,${script}")
endfunction()
