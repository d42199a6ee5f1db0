# The pages of the public interface: `cmake --build --preset docs` writes them to docs-html in the build folder.
# A member without a comment is fine; a wrong reference, a bad command or a parameter that is left out is an error.
find_package(Doxygen QUIET)
if(NOT DOXYGEN_FOUND)
    add_custom_target(docs
        COMMAND ${CMAKE_COMMAND} -E echo "Doxygen was not found: install it and configure again"
        COMMAND ${CMAKE_COMMAND} -E false)
    return()
endif()

set(DOXYGEN_PROJECT_BRIEF "The interface of the library")
set(DOXYGEN_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
set(DOXYGEN_HTML_OUTPUT docs-html)
set(DOXYGEN_USE_MDFILE_AS_MAINPAGE ${PROJECT_SOURCE_DIR}/docs/api-pages.md)
set(DOXYGEN_STRIP_FROM_PATH ${PROJECT_SOURCE_DIR})
set(DOXYGEN_JAVADOC_AUTOBRIEF YES)
set(DOXYGEN_EXTRACT_ALL YES)
set(DOXYGEN_HAVE_DOT NO)
set(DOXYGEN_MACRO_EXPANSION YES)
set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
set(DOXYGEN_PREDEFINED "ZV_EXPORT=" "XERCES_CPP_NAMESPACE_BEGIN=namespace xercesc {" "XERCES_CPP_NAMESPACE_END=}")
set(DOXYGEN_QUIET YES)
set(DOXYGEN_WARN_IF_UNDOCUMENTED NO)
set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)

get_property(public_headers GLOBAL PROPERTY ZV_PUBLIC_HEADERS)
doxygen_add_docs(docs ${public_headers} ${DOXYGEN_USE_MDFILE_AS_MAINPAGE} COMMENT "Writing docs-html")
