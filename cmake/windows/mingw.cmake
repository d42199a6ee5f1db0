# Toolchain file for Debian's MinGW-w64, the variant with std::thread. The including file sets ZV_MINGW to the
# compiler's prefix and ZV_TARGET to the preset's name.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${ZV_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZV_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${ZV_MINGW}-windres)

# The libraries built by scripts/windows/libraries, and, where its source was to be had, by scripts/windows/log4cxx.
set(ZV_CACHE $ENV{XDG_CACHE_HOME})
if(NOT ZV_CACHE)
    set(ZV_CACHE $ENV{HOME}/.cache)
endif()
set(ZV_LIBRARIES ${ZV_CACHE}/zvCommonUtilsExport/${ZV_TARGET}-libraries CACHE PATH "Libraries for Windows")
set(ZV_LOG4CXX ${ZV_CACHE}/zvCommonUtilsExport/${ZV_TARGET}-log4cxx CACHE PATH "log4cxx for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZV_LIBRARIES ZV_LOG4CXX)

set(CMAKE_FIND_ROOT_PATH ${ZV_LIBRARIES} ${ZV_LOG4CXX} /usr/${ZV_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The compiler's runtimes are linked statically: no DLL but the system's is needed.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)
