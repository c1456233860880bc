# What a host gets: libraries, headers, a CMake package with the components host, scripted and qt,
# and a pkg-config file for each library.
include(CMakePackageConfigHelpers)

set(KVOPT_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/kvopt")
set_target_properties(kvopt-host PROPERTIES EXPORT_NAME host)
set_target_properties(kvopt-scripted PROPERTIES EXPORT_NAME scripted)

install(TARGETS kvopt kvopt-host kvopt-scripted EXPORT kvoptTargets)
install(EXPORT kvoptTargets NAMESPACE kvopt:: DESTINATION "${KVOPT_PACKAGE_DIR}")
if(TARGET kvopt-qt)
    set_target_properties(kvopt-qt PROPERTIES EXPORT_NAME qt)
    install(TARGETS kvopt-qt EXPORT kvoptQtTargets)
    install(EXPORT kvoptQtTargets NAMESPACE kvopt:: DESTINATION "${KVOPT_PACKAGE_DIR}")
endif()

install(DIRECTORY include/kvopt DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
        FILES_MATCHING PATTERN "*.h")

configure_package_config_file(cmake/kvoptConfig.cmake.in "${PROJECT_BINARY_DIR}/kvoptConfig.cmake"
                              INSTALL_DESTINATION "${KVOPT_PACKAGE_DIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/kvoptConfigVersion.cmake"
                                 COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/kvoptConfig.cmake" "${PROJECT_BINARY_DIR}/kvoptConfigVersion.cmake"
        DESTINATION "${KVOPT_PACKAGE_DIR}")

# From the folder of the pkg-config files back to the prefix, so that an installation can be moved.
file(RELATIVE_PATH PC_PREFIX "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")

# kvopt_pkg_config(LIBRARY DESCRIPTION REQUIRES)
function(kvopt_pkg_config library description requires)
    set(PC_LIBRARY "${library}")
    set(PC_DESCRIPTION "${description}")
    set(PC_REQUIRES "${requires}")
    configure_file(cmake/kvopt.pc.in "${PROJECT_BINARY_DIR}/${library}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${library}.pc"
            DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endfunction()

kvopt_pkg_config(kvopt "Plot arguments, wizards and option pages for designed experiments" "")
kvopt_pkg_config(kvopt-host "Reference study in memory for kvopt" "kvopt = ${PROJECT_VERSION}")
kvopt_pkg_config(kvopt-scripted "A desktop without windows for kvopt" "kvopt = ${PROJECT_VERSION}")
if(TARGET kvopt-qt)
    kvopt_pkg_config(kvopt-qt "Qt front end of kvopt" "kvopt-scripted = ${PROJECT_VERSION} Qt6Widgets")
endif()
