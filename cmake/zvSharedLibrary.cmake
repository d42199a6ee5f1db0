# Links the layers' objects into the shared library, and into a static library for the tests, which need
# hidden symbols and bring their own logging library.
get_property(layers GLOBAL PROPERTY ZV_LAYERS)

add_library(zvCommonUtilsExport SHARED)
add_library(zvCommonUtilsExport::zvCommonUtilsExport ALIAS zvCommonUtilsExport)
add_library(zvAllObjects STATIC)
foreach(layer IN LISTS layers)
    target_sources(zvCommonUtilsExport PRIVATE $<TARGET_OBJECTS:${layer}>)
    target_sources(zvAllObjects PRIVATE $<TARGET_OBJECTS:${layer}>)
    foreach(library zvCommonUtilsExport zvAllObjects)
        target_include_directories(${library} PUBLIC $<BUILD_INTERFACE:$<TARGET_PROPERTY:${layer},INTERFACE_INCLUDE_DIRECTORIES>>)
        target_link_libraries(${library} PUBLIC $<BUILD_INTERFACE:$<TARGET_PROPERTY:${layer},INTERFACE_LINK_LIBRARIES>>)
    endforeach()
endforeach()
set_target_properties(zvAllObjects zvCommonUtilsExport PROPERTIES LINKER_LANGUAGE CXX)
set_target_properties(zvCommonUtilsExport PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
if(ZV_LINK_TIME_OPTIMISATION)
    target_link_options(zvCommonUtilsExport PRIVATE -flto=auto -O3)
    target_link_options(zvAllObjects INTERFACE -fno-lto)
endif()
target_link_libraries(zvCommonUtilsExport PRIVATE zvLogger)
target_link_options(zvCommonUtilsExport PRIVATE ${ZV_NO_UNDEFINED})
if(WIN32)
    # Existing programs import the DLL by this name.
    set_target_properties(zvCommonUtilsExport PROPERTIES PREFIX "")
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        target_sources(zvCommonUtilsExport PRIVATE
            ${PROJECT_SOURCE_DIR}/zvPlatform.m/src/windows/zvProgramFrames.cpp)
    endif()
endif()
if(UNIX AND NOT APPLE)
    target_link_options(zvCommonUtilsExport PRIVATE LINKER:-Bsymbolic-functions)
endif()
