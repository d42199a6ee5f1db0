# The install rules, the CMake package and pkg-config files, and the test of an installed tree.
include(CMakePackageConfigHelpers)

set(header_folder ${CMAKE_INSTALL_INCLUDEDIR}/zvCommonUtilsExport)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/zvCommonUtilsExport)
set(generated_folder ${PROJECT_BINARY_DIR}/package)

# The umbrella header includes every public header.
get_target_property(public_headers zvCommonUtilsExport PUBLIC_HEADER)
set(umbrella_includes "")
foreach(header IN LISTS public_headers)
    get_filename_component(name ${header} NAME)
    list(APPEND umbrella_includes "#include \"${name}\"")
endforeach()
list(SORT umbrella_includes)
list(JOIN umbrella_includes "\n" umbrella_includes)
configure_file(${CMAKE_CURRENT_LIST_DIR}/zvCommonUtilsExport.h.in ${generated_folder}/zvCommonUtilsExport.h @ONLY)
zv_add_public_header(${generated_folder}/zvCommonUtilsExport.h)

target_include_directories(zvCommonUtilsExport INTERFACE $<INSTALL_INTERFACE:${header_folder}>)

install(TARGETS zvCommonUtilsExport
    EXPORT zvCommonUtilsExportTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    PUBLIC_HEADER DESTINATION ${header_folder} COMPONENT development)
if(ZV_HAS_LOGGER)
    install(TARGETS zvLogger
        EXPORT zvCommonUtilsExportTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT logger
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT logger
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endif()
install(EXPORT zvCommonUtilsExportTargets NAMESPACE zvCommonUtilsExport:: DESTINATION ${package_folder}
    COMPONENT development)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/zvCommonUtilsExportConfig.cmake.in
    ${generated_folder}/zvCommonUtilsExportConfig.cmake
    INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${generated_folder}/zvCommonUtilsExportConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${generated_folder}/zvCommonUtilsExportConfig.cmake
    ${generated_folder}/zvCommonUtilsExportConfigVersion.cmake
    DESTINATION ${package_folder} COMPONENT development)

# Relative paths, so that an installed tree can be moved.
file(RELATIVE_PATH ZV_LIBDIR_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR} ${CMAKE_INSTALL_PREFIX})
configure_file(${CMAKE_CURRENT_LIST_DIR}/zvCommonUtilsExport.pc.in ${generated_folder}/zvCommonUtilsExport.pc @ONLY)
install(FILES ${generated_folder}/zvCommonUtilsExport.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)

# Not with sanitizers: consumers are built without the runtime that a sanitized library needs.
if(ZV_BUILD_TESTS AND NOT ZV_SANITIZE AND NOT CMAKE_CROSSCOMPILING)
    add_test(NAME package.consumers COMMAND ${CMAKE_CURRENT_LIST_DIR}/consumers/test-consumers
        ${PROJECT_BINARY_DIR} ${CMAKE_CXX_COMPILER})
    set_tests_properties(package.consumers PROPERTIES TIMEOUT 1200)
    # What the documents show is run, against an installed tree and with the installed program.
    add_test(NAME documents COMMAND ${PROJECT_SOURCE_DIR}/docs/test-documents
        ${PROJECT_BINARY_DIR} ${CMAKE_CXX_COMPILER})
    set_tests_properties(documents PROPERTIES TIMEOUT 300 ENVIRONMENT XDG_CACHE_HOME=${PROJECT_BINARY_DIR}/cache)
    # Each installs the build.
    set_tests_properties(package.consumers documents PROPERTIES RESOURCE_LOCK install)
endif()
