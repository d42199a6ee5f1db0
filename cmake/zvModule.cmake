# Functions for the modules' CMakeLists.txt.

# zv_add_layer(NAME SOURCES ... PUBLIC_HEADERS ... DIRECTORIES ... DEPENDS ... LIBRARIES ...)
#
# Adds the object library NAME, a layer of zvCommonUtilsExport. Its include path consists of its own
# DIRECTORIES and those of the layers in DEPENDS, so that an include of a higher layer does not compile.
# PUBLIC_HEADERS are installed; LIBRARIES are its third-party dependencies.
function(zv_add_layer NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC_HEADERS;DIRECTORIES;DEPENDS;LIBRARIES" ${ARGN})
    add_library(${NAME} OBJECT ${ARG_SOURCES})
    target_compile_definitions(${NAME} PRIVATE zvCommonUtilsExport_EXPORTS)
    foreach(directory IN LISTS ARG_DIRECTORIES)
        target_include_directories(${NAME} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/${directory})
    endforeach()
    foreach(layer IN LISTS ARG_DEPENDS)
        target_include_directories(${NAME} PUBLIC $<TARGET_PROPERTY:${layer},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
    target_link_libraries(${NAME} PUBLIC ${ARG_LIBRARIES})
    if(ZV_LINK_TIME_OPTIMISATION)
        # Fat objects also contain machine code, for the test programs, which are linked without LTO.
        target_compile_options(${NAME} PRIVATE -flto=auto -ffat-lto-objects)
    endif()
    list(TRANSFORM ARG_PUBLIC_HEADERS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    set_property(GLOBAL APPEND PROPERTY ZV_LAYERS ${NAME})
    set_property(GLOBAL APPEND PROPERTY ZV_PUBLIC_HEADERS ${ARG_PUBLIC_HEADERS})
endfunction()

# zv_add_tests(NAME SOURCES ... LIBRARIES ... DEFINITIONS ... [ENVIRONMENT variable=value] [NOT_ON_WINDOWS reason])
#
# Registers a GoogleTest program that is linked with the library's objects and the recording logger; each of
# its tests is a CTest test, run with ENVIRONMENT. A cross-build lists the programs in the file
# "test-programs" for the scripts that run them, and the skipped ones with the reason.
function(zv_add_tests NAME)
    cmake_parse_arguments(ARG "" "ENVIRONMENT;NOT_ON_WINDOWS" "SOURCES;LIBRARIES;DEFINITIONS" ${ARGN})
    list(TRANSFORM ARG_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    if(WIN32 AND ARG_NOT_ON_WINDOWS)
        zv_skip_tests(${NAME} ${ARG_NOT_ON_WINDOWS} ${ARG_SOURCES})
        return()
    endif()
    set_property(GLOBAL APPEND PROPERTY ZV_TEST_PROGRAMS ${NAME})
    set_property(GLOBAL PROPERTY ZV_TEST_SOURCES_${NAME} ${ARG_SOURCES})
    set_property(GLOBAL PROPERTY ZV_TEST_LIBRARIES_${NAME} ${ARG_LIBRARIES})
    set_property(GLOBAL PROPERTY ZV_TEST_DEFINITIONS_${NAME} ${ARG_DEFINITIONS})
    set_property(GLOBAL PROPERTY ZV_TEST_ENVIRONMENT_${NAME} ${ARG_ENVIRONMENT})
endfunction()

# Lists the program in "test-programs" as one to run.
function(zv_list_test_program NAME)
    set_property(GLOBAL APPEND_STRING PROPERTY ZV_TEST_LIST "run\t$<TARGET_FILE:${NAME}>\n")
endfunction()

# Lists the tests in SOURCES or, without sources, the test NAME in "test-programs" as skipped.
function(zv_skip_tests NAME REASON)
    list(JOIN ARGN " " sources)
    set_property(GLOBAL APPEND_STRING PROPERTY ZV_TEST_LIST "skip\t${NAME}\t${REASON}\t${sources}\n")
endfunction()

# Adds the registered test programs. Called once, after all modules, since each program links all of them.
function(zv_add_module_tests)
    find_package(GTest REQUIRED)
    include(GoogleTest)
    get_property(programs GLOBAL PROPERTY ZV_TEST_PROGRAMS)
    foreach(program IN LISTS programs)
        get_property(sources GLOBAL PROPERTY ZV_TEST_SOURCES_${program})
        get_property(libraries GLOBAL PROPERTY ZV_TEST_LIBRARIES_${program})
        add_executable(${program} ${sources})
        target_link_libraries(${program} PRIVATE zvTestSupport zvAllObjects GTest::gtest ${libraries})
        get_property(definitions GLOBAL PROPERTY ZV_TEST_DEFINITIONS_${program})
        target_compile_definitions(${program} PRIVATE ${definitions})
        if(CMAKE_CROSSCOMPILING)
            zv_list_test_program(${program})
            continue()
        endif()
        get_property(environment GLOBAL PROPERTY ZV_TEST_ENVIRONMENT_${program})
        set(properties TIMEOUT 300)
        if(environment)
            list(APPEND properties ENVIRONMENT ${environment})
        endif()
        gtest_discover_tests(${program} TEST_PREFIX ${program}. PROPERTIES ${properties} DISCOVERY_TIMEOUT 60)
    endforeach()
    if(CMAKE_CROSSCOMPILING)
        get_property(test_list GLOBAL PROPERTY ZV_TEST_LIST)
        file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/test-programs CONTENT "${test_list}")
    endif()
endfunction()
