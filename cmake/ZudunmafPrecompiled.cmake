# Precompiled Qt headers, and ccache if it is installed. Headers of the tree are never precompiled. Every source includes
# what it uses: the presets for release, sanitizers and fuzzers build without precompiled headers.

# Keeps a launcher that the user has set, such as ccache with other options.
if(ZUDUNMAF_TOP_LEVEL AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(ZUDUNMAF_CCACHE ccache)
    if(ZUDUNMAF_CCACHE)
        # Without this sloppiness, ccache does not cache sources that use a precompiled header.
        set(CMAKE_CXX_COMPILER_LAUNCHER
            "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${ZUDUNMAF_CCACHE}")
    endif()
endif()

# Few headers: each source pays for the size of all of them, used or not.
set(zudunmaf_core_headers <memory> <QJsonObject> <QString> <QStringList> <QVariant> <QVector>)
set(zudunmaf_widgets_headers
    <memory> <QApplication> <QComboBox> <QHeaderView> <QLineEdit> <QPushButton> <QString> <QTableWidget> <QVariant>)
set(zudunmaf_test_headers ${zudunmaf_widgets_headers} <QMenu> <QTest>)
set(zudunmaf_core_link Qt${ZUDUNMAF_QT_MAJOR}::Core)
set(zudunmaf_widgets_link ${ZUDUNMAF_QT_WIDGETS})
set(zudunmaf_test_link ${ZUDUNMAF_QT_WIDGETS} Qt${ZUDUNMAF_QT_MAJOR}::Test)

# zudunmaf_precompile(core|widgets|test TARGET...): makes the targets share one precompiled header. It is compiled with the
# options of zudunmaf_target(); targets with default visibility or other machine options cannot use it.
function(zudunmaf_precompile kind)
    if(NOT ZUDUNMAF_PCH)
        return()
    endif()
    set(carrier zudunmaf_pch_${kind})
    if(NOT TARGET ${carrier})
        set(source "${PROJECT_BINARY_DIR}/${carrier}.cpp")
        file(GENERATE OUTPUT "${source}" CONTENT "")
        add_library(${carrier} OBJECT "${source}")
        zudunmaf_target(${carrier})
        set_target_properties(${carrier} PROPERTIES AUTOMOC OFF)
        target_link_libraries(${carrier} PRIVATE ${zudunmaf_${kind}_link})
        target_precompile_headers(${carrier} PRIVATE ${zudunmaf_${kind}_headers})
    endif()
    foreach(target ${ARGN})
        target_precompile_headers(${target} REUSE_FROM ${carrier})
        # Programs are compiled with -fPIE unless Qt requires -fPIC, which it does not on every architecture.
        target_compile_options(${target} PRIVATE -fPIC)
    endforeach()
    if(kind STREQUAL "test")
        # Qt Test defines macros with the folders of each target, used only by QFINDTESTDATA. GCC rejects a precompiled header
        # if a macro had another value in it.
        foreach(target ${carrier} ${ARGN})
            target_compile_options(${target} PRIVATE -UQT_TESTCASE_BUILDDIR -UQT_TESTCASE_SOURCEDIR)
        endforeach()
    endif()
endfunction()
