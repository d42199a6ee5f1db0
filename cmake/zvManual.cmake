# The manual pages, which pandoc makes of the documents and of what the program's --help says.
find_program(ZV_PANDOC pandoc)
find_program(ZV_GZIP gzip)
mark_as_advanced(ZV_PANDOC ZV_GZIP)
if(ZV_SANITIZE)
    return()
elseif(NOT ZV_PANDOC OR NOT ZV_GZIP)
    if(ZV_DEBIAN_PACKAGES)
        message(FATAL_ERROR "pandoc and gzip are needed for the manual pages: scripts/setup --packages")
    endif()
    return()
endif()

set(manual ${PROJECT_SOURCE_DIR}/packages/manual)
set(manual_pages "")

# zv_add_manual_page(NAME SECTION DOCUMENT "what it is" SEE_ALSO ... [SECTIONS ...] [LEFT_OUT ...] [PROGRAM target])
#
# Of DOCUMENT the page has the SECTIONS, all but LEFT_OUT, or all, after what the --help of PROGRAM says.
function(zv_add_manual_page NAME SECTION DOCUMENT TITLE)
    cmake_parse_arguments(ARG "" "PROGRAM" "SEE_ALSO;SECTIONS;LEFT_OUT" ${ARGN})
    set(document ${PROJECT_SOURCE_DIR}/docs/${DOCUMENT})
    set(page ${PROJECT_BINARY_DIR}/manual/${NAME}.${SECTION})
    string(TOUPPER ${NAME} heading)
    list(JOIN ARG_SEE_ALSO ", " see_also)
    set(options -M title=${heading} -M section=${SECTION} -M "footer=zvgateway ${PROJECT_VERSION}" -M hyphenate=false
        -M "name=${NAME} - ${TITLE}" -M seealso=${see_also})
    foreach(part SECTIONS LEFT_OUT)
        if(ARG_${part})
            string(TOLOWER ${part} key)
            list(JOIN ARG_${part} "|" titles)
            list(APPEND options -M ${key}=${titles})
        endif()
    endforeach()
    if(ARG_PROGRAM)
        list(APPEND options -M program=$<TARGET_FILE:${ARG_PROGRAM}>)
    endif()
    add_custom_command(OUTPUT ${page}.gz
        COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8 ${ZV_PANDOC} --standalone --from gfm --to man
            --lua-filter ${manual}/page.lua ${options} ${document} --output ${page}
        COMMAND ${ZV_GZIP} -9nf ${page}
        DEPENDS ${document} ${manual}/page.lua ${manual}/help.lua ${ARG_PROGRAM}
        VERBATIM)
    install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man${SECTION})
    set(manual_pages ${manual_pages} ${page}.gz PARENT_SCOPE)
endfunction()

file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/manual)
set(home_sections "The gateway home" "The log" "The file server")
zv_add_manual_page(zvgateway 1 operating.md "takes events through the gateway between two systems"
    PROGRAM zvgateway LEFT_OUT ${home_sections}
    SEE_ALSO zvgateway-home\(5\) zvgateway-configuration\(5\) zvgateway-conditions\(7\) zvgateway-packages\(7\))
zv_add_manual_page(zvgateway-home 5 operating.md "the files of the folder that GATEWAY_HOME names"
    SECTIONS ${home_sections} SEE_ALSO zvgateway\(1\) zvgateway-configuration\(5\))
zv_add_manual_page(zvgateway-configuration 5 configuration.md "the mapping between the two systems"
    SEE_ALSO zvgateway\(1\) zvgateway-home\(5\) zvgateway-conditions\(7\))
zv_add_manual_page(zvgateway-authoring 7 authoring.md "cases of a configuration, and why an object is mapped as it is"
    SEE_ALSO zvgateway\(1\) zvgateway-configuration\(5\) zvgateway-conditions\(7\))
zv_add_manual_page(zvgateway-conditions 7 conditions.md "the language of mapping rules"
    SEE_ALSO zvgateway\(1\) zvgateway-configuration\(5\))
zv_add_manual_page(zvgateway-packages 7 packages.md "Debian packages of the gateway, and spools of batch files"
    SEE_ALSO zvgateway\(1\) zvgateway-home\(5\) systemd.path\(5\))
add_custom_target(manual ALL DEPENDS ${manual_pages})
