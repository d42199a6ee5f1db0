set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(ZV_TARGET windows64)
set(ZV_MINGW x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
