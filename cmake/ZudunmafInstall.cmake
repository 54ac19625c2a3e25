# Install rules and the CMake package. Every path in it is relative, so the tree can be moved after installation.
include(CMakePackageConfigHelpers)

set(zudunmaf_cmake_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Zudunmaf")

install(TARGETS zudunmaf_host_headers EXPORT ZudunmafHostTargets)
install(TARGETS zudunmaf EXPORT ZudunmafTargets LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/code/gdm"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/zudunmaf"
    FILES_MATCHING
    REGEX "/gdm_qt\\.h$"
    REGEX "/(attr_records|attr_roles|dml_attr_lwi|attr_filter_lwi|feature_attr_lwi)\\.h$"
    REGEX "/(attributes_filter_dialog|feature_attributes_dialog|tvx_attributes_selection_dialog)\\.h$"
    REGEX "/(gdm_export|gen_services|dml_dictionary|message_keys|config_keys)\\.h$"
    PATTERN "editing" EXCLUDE)

if(NOT ZUDUNMAF_QT_MAJOR EQUAL 4)
    install(TARGETS zudunmaf_tvx EXPORT ZudunmafTvxTargets LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
    install(TARGETS zudunmaf_gen zudunmaf_dml EXPORT ZudunmafServicesTargets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/standins/"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/zudunmaf"
        FILES_MATCHING PATTERN "*_control.h")
    install(EXPORT ZudunmafTvxTargets NAMESPACE Zudunmaf:: DESTINATION "${zudunmaf_cmake_dir}")
    install(EXPORT ZudunmafServicesTargets NAMESPACE Zudunmaf:: DESTINATION "${zudunmaf_cmake_dir}")
endif()
install(EXPORT ZudunmafHostTargets NAMESPACE Zudunmaf:: DESTINATION "${zudunmaf_cmake_dir}")
install(EXPORT ZudunmafTargets NAMESPACE Zudunmaf:: DESTINATION "${zudunmaf_cmake_dir}")

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/ZudunmafConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/ZudunmafConfig.cmake"
    INSTALL_DESTINATION "${zudunmaf_cmake_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/ZudunmafConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/ZudunmafConfig.cmake"
    "${PROJECT_BINARY_DIR}/ZudunmafConfigVersion.cmake"
    DESTINATION "${zudunmaf_cmake_dir}")
