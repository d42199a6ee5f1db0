# Xerces-C as scripts/bundled-xerces builds it, in place of the system's: it loads neither ICU nor a second libcurl. It
# keeps its name, so that programs that use Xerces-C themselves get the same one.
if(NOT ZV_BUNDLED_XERCES)
    return()
endif()
execute_process(COMMAND ${PROJECT_SOURCE_DIR}/scripts/bundled-xerces
    OUTPUT_VARIABLE XercesC_ROOT OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
# Not one that was found before.
unset(XercesC_LIBRARY_RELEASE CACHE)
unset(XercesC_LIBRARY_DEBUG CACHE)
unset(XercesC_INCLUDE_DIR CACHE)
set(folder zvCommonUtilsExport)
install(DIRECTORY ${XercesC_ROOT}/lib/ DESTINATION ${CMAKE_INSTALL_LIBDIR}/${folder}
    FILES_MATCHING PATTERN "libxerces-c-*.so" PATTERN cmake EXCLUDE PATTERN pkgconfig EXCLUDE)
list(APPEND CMAKE_INSTALL_RPATH "$ORIGIN/${folder}" "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}/${folder}")
