# Helpers with which a module's CMakeLists.txt describes itself. A target named in them may be defined later.

# The public headers alone, as they are installed: what the library's users in the build tree see.
set(ZV_PUBLIC_INCLUDE ${PROJECT_BINARY_DIR}/include)
file(REMOVE_RECURSE ${ZV_PUBLIC_INCLUDE})
file(MAKE_DIRECTORY ${ZV_PUBLIC_INCLUDE})

# The shared library, and the same objects as a static library for the tests, which reach what is hidden and bring a
# logging library of their own. Every layer adds its objects to both.
add_library(zvCommonUtilsExport SHARED)
add_library(zvAllObjects STATIC)
set_target_properties(zvCommonUtilsExport zvAllObjects PROPERTIES LINKER_LANGUAGE CXX)

# zv_add_layer(NAME SOURCES ... PUBLIC_HEADERS ... DIRECTORIES ... DEPENDS ... LIBRARIES ...)
#
# Adds the object library NAME, a layer of zvCommonUtilsExport. It sees only the headers in its own DIRECTORIES and in
# those of the layers under DEPENDS, so that an include that points upward does not compile.
# PUBLIC_HEADERS are installed; LIBRARIES are what it calls outside the project.
function(zv_add_layer NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC_HEADERS;DIRECTORIES;DEPENDS;LIBRARIES" ${ARGN})
    add_library(${NAME} OBJECT ${ARG_SOURCES})
    target_compile_definitions(${NAME} PRIVATE zvCommonUtilsExport_EXPORTS)
    foreach(directory IN LISTS ARG_DIRECTORIES)
        target_include_directories(${NAME} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/${directory})
    endforeach()
    target_link_libraries(${NAME} PUBLIC ${ARG_DEPENDS} ${ARG_LIBRARIES})
    if(ZV_LINK_TIME_OPTIMISATION)
        # Fat objects also contain machine code, for the test programs, which are linked without LTO.
        target_compile_options(${NAME} PRIVATE -flto=auto -ffat-lto-objects)
    endif()
    target_link_libraries(zvCommonUtilsExport PRIVATE ${NAME})
    target_link_libraries(zvAllObjects PUBLIC ${NAME})
    foreach(header IN LISTS ARG_PUBLIC_HEADERS)
        zv_add_public_header(${CMAKE_CURRENT_SOURCE_DIR}/${header})
    endforeach()
endfunction()

# Installs the header, and shows it to the library's users in the build tree.
function(zv_add_public_header HEADER)
    cmake_path(GET HEADER FILENAME name)
    file(CREATE_LINK ${HEADER} ${ZV_PUBLIC_INCLUDE}/${name} SYMBOLIC)
    set_property(TARGET zvCommonUtilsExport APPEND PROPERTY PUBLIC_HEADER ${HEADER})
endfunction()

if(ZV_BUILD_TESTS)
    find_package(GTest REQUIRED)
    set_target_properties(GTest::gtest GTest::gtest_main PROPERTIES IMPORTED_GLOBAL TRUE)
    include(GoogleTest)
endif()

# What a cross-build cannot run itself it lists for the scripts that do, a file for each program.
set(ZV_TEST_LIST ${PROJECT_BINARY_DIR}/test-programs)
file(REMOVE_RECURSE ${ZV_TEST_LIST})

# zv_add_tests(NAME SOURCES ... LIBRARIES ... DEFINITIONS ... [ENVIRONMENT variable=value] [NOT_ON_WINDOWS reason])
#
# Adds a GoogleTest program over the library's own objects and the recording logger; every test in it is a CTest test
# of its own, which runs with ENVIRONMENT. A cross-build lists the program, or, with NOT_ON_WINDOWS, the reason why it
# is left out.
function(zv_add_tests NAME)
    cmake_parse_arguments(ARG "" "ENVIRONMENT;NOT_ON_WINDOWS" "SOURCES;LIBRARIES;DEFINITIONS" ${ARGN})
    if(NOT ZV_BUILD_TESTS)
        return()
    endif()
    if(WIN32 AND ARG_NOT_ON_WINDOWS)
        list(TRANSFORM ARG_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
        zv_skip_tests(${NAME} ${ARG_NOT_ON_WINDOWS} ${ARG_SOURCES})
        return()
    endif()
    add_executable(${NAME} ${ARG_SOURCES})
    target_link_libraries(${NAME} PRIVATE zvTestSupport zvAllObjects GTest::gtest ${ARG_LIBRARIES})
    target_compile_definitions(${NAME} PRIVATE ${ARG_DEFINITIONS})
    if(CMAKE_CROSSCOMPILING)
        zv_list_test_program(${NAME})
        return()
    endif()
    set(properties TIMEOUT 300)
    if(ARG_ENVIRONMENT)
        list(APPEND properties ENVIRONMENT ${ARG_ENVIRONMENT})
    endif()
    gtest_discover_tests(${NAME} TEST_PREFIX ${NAME}. PROPERTIES ${properties} DISCOVERY_TIMEOUT 60)
endfunction()

# Lists the program as one to be run.
function(zv_list_test_program NAME)
    file(GENERATE OUTPUT ${ZV_TEST_LIST}/${NAME} CONTENT "run\t$<TARGET_FILE:${NAME}>\n")
endfunction()

# Lists the tests in SOURCES, or, without sources, the test NAME as left out.
function(zv_skip_tests NAME REASON)
    list(JOIN ARGN " " sources)
    file(GENERATE OUTPUT ${ZV_TEST_LIST}/${NAME} CONTENT "skip\t${NAME}\t${REASON}\t${sources}\n")
endfunction()
