# Install rules, the CMake package and the pkg-config files. All paths in them are relative, so the installed tree can be
# moved. Four components: Library, Standins, Development and Demo.
include(CMakePackageConfigHelpers)

set(zudunmaf_cmake_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Zudunmaf")

# install_libraries(EXPORT COMPONENT FOLDER TARGET...): the file to link against belongs to the development files.
function(install_libraries export component folder)
    install(TARGETS ${ARGN} EXPORT ${export}
        LIBRARY DESTINATION "${folder}" COMPONENT ${component} NAMELINK_COMPONENT Development)
    install(EXPORT ${export} NAMESPACE Zudunmaf:: DESTINATION "${zudunmaf_cmake_dir}" COMPONENT Development)
endfunction()

# install_standins(EXPORT (TARGET SYMBOL)...): a program that links a stand-in has its folder in the run path, installed
# too, and asks for a symbol of it, which carries the version of Qt.
function(install_standins export)
    set(targets)
    set(symbols ${zudunmaf_versioned_symbols})
    while(ARGN)
        list(POP_FRONT ARGN target symbol)
        target_link_options(${target} INTERFACE
            "$<INSTALL_INTERFACE:LINKER:-rpath,$<INSTALL_PREFIX>/${zudunmaf_standins_dir},-u,${symbol}>")
        list(APPEND targets ${target})
        list(APPEND symbols ${symbol})
    endwhile()
    set(zudunmaf_versioned_symbols "${symbols}" PARENT_SCOPE)
    install_libraries(${export} Standins "${zudunmaf_standins_dir}" ${targets})
endfunction()

function(install_development_files destination)
    install(FILES ${ARGN} DESTINATION "${destination}" COMPONENT Development)
endfunction()

install_libraries(ZudunmafHostTargets Development "${CMAKE_INSTALL_LIBDIR}" zudunmaf_host_headers)
install_libraries(ZudunmafTargets Library "${CMAKE_INSTALL_LIBDIR}" zudunmaf)
foreach(header zudunmaf_qt.h zudunmaf_version.h)
    configure_file("${CMAKE_CURRENT_LIST_DIR}/${header}.in" "${PROJECT_BINARY_DIR}/include/gdm/${header}" @ONLY)
    install_development_files("${CMAKE_INSTALL_INCLUDEDIR}/zudunmaf/gdm" "${PROJECT_BINARY_DIR}/include/gdm/${header}")
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/code/gdm"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/zudunmaf"
    COMPONENT Development
    FILES_MATCHING
    REGEX "/gdm_qt\\.h$"
    REGEX "/(attr_records|attr_roles|dml_attr_lwi|attr_filter_lwi|feature_attr_lwi)\\.h$"
    REGEX "/(attr_condition|attr_assignment|chosen_items|condition_matcher)\\.h$"
    REGEX "/(attr_documents|attr_restoring|filter_lines)\\.h$"
    REGEX "/(attributes_filter_dialog|feature_attributes_dialog|tvx_attributes_selection_dialog)\\.h$"
    REGEX "/(gdm_export|gen_services|dml_dictionary|message_keys|config_keys|missing_host_functions)\\.h$"
    PATTERN "editing" EXCLUDE)

if(NOT ZUDUNMAF_QT_MAJOR EQUAL 4)
    install_standins(ZudunmafTvxTargets zudunmaf_tvx
        _ZN8Zudunmaf3tvx9addChosenER28TvxAttributesSelectionDialogRK16QTableWidgetItem)
    install_standins(ZudunmafServicesTargets zudunmaf_gen gen__nls_nlst zudunmaf_dml dml__atr_next)
    set_target_properties(zudunmaf_dml PROPERTIES INSTALL_RPATH "$ORIGIN") # calls the services' stand-in
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/standins/"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/zudunmaf"
        COMPONENT Development
        FILES_MATCHING PATTERN "*_control.h")
endif()

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/ZudunmafConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/ZudunmafConfig.cmake"
    INSTALL_DESTINATION "${zudunmaf_cmake_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/ZudunmafConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install_development_files("${zudunmaf_cmake_dir}"
    "${PROJECT_BINARY_DIR}/ZudunmafConfig.cmake"
    "${PROJECT_BINARY_DIR}/ZudunmafConfigVersion.cmake")

# zudunmaf.pc is for hosts with their own libraries; zudunmaf-standins.pc adds the stand-ins.
file(RELATIVE_PATH zudunmaf_prefix_from_pc "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" zudunmaf_prefix_from_pc "${zudunmaf_prefix_from_pc}")
set(zudunmaf_pc_requires "Qt${ZUDUNMAF_QT_MAJOR}Widgets")
set(zudunmaf_pc_files zudunmaf.pc zudunmaf-standins.pc)
if(ZUDUNMAF_QT_MAJOR EQUAL 4)
    set(zudunmaf_pc_requires "QtGui")
    set(zudunmaf_pc_files zudunmaf.pc)
endif()
list(JOIN zudunmaf_versioned_symbols ",-u," zudunmaf_versioned_symbols)
foreach(file ${zudunmaf_pc_files})
    configure_file("${CMAKE_CURRENT_LIST_DIR}/${file}.in" "${PROJECT_BINARY_DIR}/${file}" @ONLY)
    install_development_files("${CMAKE_INSTALL_LIBDIR}/pkgconfig" "${PROJECT_BINARY_DIR}/${file}")
endforeach()
