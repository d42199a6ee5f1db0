# Compiler settings that hold for every target of the project.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# Where the compiler is known to do it well: the library optimised as a whole when it is a release.
set(ZV_LINK_TIME_OPTIMISATION OFF)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_BUILD_TYPE STREQUAL "Release" AND UNIX)
    set(ZV_LINK_TIME_OPTIMISATION ON)
endif()

find_program(ZV_CCACHE ccache)
mark_as_advanced(ZV_CCACHE)
if(ZV_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ZV_CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion)
if(ZV_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()
# What the library calls of its own is its own: such calls may be inlined and bound within it.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fno-semantic-interposition)
endif()
# The processor's old floating-point unit compares numbers with more digits than a float or a double holds. Programs
# of other compilers call the library with a stack that the new one could not use as it is.
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "i686")
    add_compile_options(-msse2 -mfpmath=sse -mstackrealign)
endif()
if(ZV_SANITIZE)
    add_compile_options(-fsanitize=${ZV_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${ZV_SANITIZE})
endif()
# Counting what an input reaches needs a sanitizer's runtime; without one the fuzzers are only compiled and linked.
if(ZV_BUILD_FUZZERS AND ZV_SANITIZE)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# What a sanitizer adds to a library is in the program.
if(NOT ZV_SANITIZE)
    set(ZV_NO_UNDEFINED LINKER:--no-undefined)
endif()

# MinGW's files are several times as large with their symbols, which no debugger of the system reads.
if(MINGW)
    add_link_options($<$<CONFIG:Release>:-s>)
endif()

# Programs of the build tree find the build tree's libraries; installed ones find those beside them.
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
