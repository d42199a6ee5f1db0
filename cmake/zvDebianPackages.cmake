# The Debian packages, which cpack makes in the build folder: the library, the logging library, which a site may
# replace, what programs are developed with, and the program with all that it needs to run events.
set(ZV_PACKAGE_MAINTAINER "zvCommonUtilsExport maintainers <maintainers@zvcommonutilsexport.invalid>"
    CACHE STRING "Whom the packages name as their maintainer")
set(debian ${PROJECT_SOURCE_DIR}/packages/debian)
set(made ${PROJECT_BINARY_DIR}/debian)
set(units ${PROJECT_SOURCE_DIR}/packages/systemd)
set(CPACK_DEBIAN_PACKAGE_RELEASE 0zv1)
set(package_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
set(library_package libzvcommonutilsexport${PROJECT_VERSION_MAJOR})

# What only packages install.
configure_file("${units}/zvgateway-batch@.service.in" "${made}/zvgateway-batch@.service" @ONLY)
set(only_in_package COMPONENT program EXCLUDE_FROM_ALL)
install(FILES "${made}/zvgateway-batch@.service" "${units}/zvgateway-batch@.path" DESTINATION lib/systemd/system
    ${only_in_package})
install(FILES ${units}/sysusers.conf DESTINATION lib/sysusers.d RENAME zvgateway.conf ${only_in_package})
install(FILES ${units}/tmpfiles.conf DESTINATION lib/tmpfiles.d RENAME zvgateway.conf ${only_in_package})
install(PROGRAMS ${PROJECT_SOURCE_DIR}/packages/take-spool DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/zvgateway
    ${only_in_package})
install(FILES ${PROJECT_SOURCE_DIR}/SECURITY.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/zvgateway
    ${only_in_package})
install(FILES ${PROJECT_SOURCE_DIR}/docs/library.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libzvcommonutilsexport-dev
    COMPONENT development EXCLUDE_FROM_ALL)

# The changelogs: the project's own, and the one of its packages.
string(TIMESTAMP package_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(${debian}/changelog.in ${made}/changelog.Debian @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${made}/changelog COPYONLY)
foreach(name changelog changelog.Debian)
    add_custom_command(OUTPUT ${made}/${name}.gz
        COMMAND ${ZV_GZIP} -9nc ${made}/${name} > ${made}/${name}.gz DEPENDS ${made}/${name})
endforeach()

# The symbols, and the version since which each is there. A symbol that is gone ends the build.
find_program(ZV_GENSYMBOLS dpkg-gensymbols REQUIRED)
mark_as_advanced(ZV_GENSYMBOLS)
add_custom_command(OUTPUT ${made}/symbols
    COMMAND ${ZV_GENSYMBOLS} -c1 -q -p${library_package} -v${package_version} -e$<TARGET_FILE:zvCommonUtilsExport>
        -I${debian}/symbols -O${made}/symbols
    DEPENDS zvCommonUtilsExport ${debian}/symbols)
file(WRITE ${made}/shlibs
    "libzvCommonUtilsExport ${PROJECT_VERSION_MAJOR} ${library_package} (>= ${PROJECT_VERSION})\n")
add_custom_target(zvDebianFiles ALL DEPENDS ${made}/symbols ${made}/changelog.gz ${made}/changelog.Debian.gz)

# zv_add_debian_package(COMPONENT NAME SECTION DEPENDS "summary" "description" control files ...)
macro(zv_add_debian_package COMPONENT NAME SECTION DEPENDS SUMMARY DESCRIPTION)
    string(TOUPPER ${COMPONENT} key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${NAME})
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${SECTION})
    set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS "${DEPENDS}")
    set(CPACK_COMPONENT_${key}_DESCRIPTION "${SUMMARY}\n${DESCRIPTION}")
    set(CPACK_DEBIAN_${key}_PACKAGE_CONTROL_EXTRA "${ARGN}")
    list(APPEND CPACK_COMPONENTS_ALL ${COMPONENT})
    install(FILES ${debian}/copyright ${made}/changelog.gz ${made}/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${NAME} COMPONENT ${COMPONENT} EXCLUDE_FROM_ALL)
    if(EXISTS ${debian}/${NAME}.lintian-overrides)
        install(FILES ${debian}/${NAME}.lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
            RENAME ${NAME} COMPONENT ${COMPONENT} EXCLUDE_FROM_ALL)
    endif()
endmacro()

set(CPACK_COMPONENTS_ALL "")
zv_add_debian_package(library ${library_package} libs "libzvlogger"
    "common utilities of integration gateway programs"
[[Gateway programs move engineering data between a local engineering system and
a remote product-data-management system. This library has what they are made
of: texts, typed values, logging, files, event arguments, XML, conditions, the
mapping configuration, the file server and HTTP.]]
    ${made}/symbols ${made}/shlibs ${debian}/triggers)
zv_add_debian_package(logger libzvlogger libs ""
    "logging library of integration gateway programs"
[[The log of libzvCommonUtilsExport, on Apache log4cxx. A site may replace it by
its own library with the same functions.]]
    ${debian}/triggers)
zv_add_debian_package(development libzvcommonutilsexport-dev libdevel
    "${library_package} (= ${package_version}), libzvlogger, libxerces-c-dev"
    "common utilities of integration gateway programs - development files"
[[The headers, the CMake package and the pkg-config file of
libzvCommonUtilsExport, for programs of a site's own.]])
zv_add_debian_package(program zvgateway net "${library_package} (= ${package_version})"
    "takes events through the gateway between two engineering systems"
[[One process takes one event, or a batch of them, from its arguments to the
post: it maps the event's object, sends its files to the file server and posts
its arguments. It also tries conditions, and checks and shows configurations.
.
Files are sent by a Java client, which needs a Java machine. systemd units take
batch files from spool folders.]]
    ${debian}/postinst ${debian}/prerm ${debian}/postrm)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "default-jre-headless (>= 2:1.11), libcommons-net-java (>= 3.9)")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS "systemd")

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_PACKAGE_NAME zvcommonutilsexport)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PACKAGE_CONTACT "${ZV_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR} ${PROJECT_BINARY_DIR}/zvLoggerLibrary.m)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_THREADS 0)
include(CPack)
