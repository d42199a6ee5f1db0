# How the shared library is linked; the layers have added their objects.
add_library(zvCommonUtilsExport::zvCommonUtilsExport ALIAS zvCommonUtilsExport)
set_target_properties(zvCommonUtilsExport PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
target_include_directories(zvCommonUtilsExport INTERFACE $<BUILD_INTERFACE:${ZV_PUBLIC_INCLUDE}>)
target_link_libraries(zvCommonUtilsExport PRIVATE zvLogger INTERFACE XercesC::XercesC)
target_link_options(zvCommonUtilsExport PRIVATE ${ZV_NO_UNDEFINED})
if(ZV_LINK_TIME_OPTIMISATION)
    target_link_options(zvCommonUtilsExport PRIVATE -flto=auto -O3)
    target_link_options(zvAllObjects INTERFACE -fno-lto)
endif()
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
