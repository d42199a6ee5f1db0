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

# Link-time optimisation of releases, with the compiler that it was tested with.
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
# The library's functions cannot be interposed, so that calls within it may be inlined and bound directly.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fno-semantic-interposition)
endif()
# The x87 unit compares floating-point numbers with excess precision, SSE does not. Programs built by other
# compilers may call with a stack that is not aligned for SSE, so it is realigned.
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "i686")
    add_compile_options(-msse2 -mfpmath=sse -mstackrealign)
endif()
if(ZV_SANITIZE)
    add_compile_options(-fsanitize=${ZV_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${ZV_SANITIZE})
endif()
# Coverage instrumentation needs a sanitizer's runtime; without one the fuzzers are only compiled and linked.
if(ZV_BUILD_FUZZERS AND ZV_SANITIZE)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# A sanitizer's runtime is linked into the program only, which leaves its symbols undefined in a library.
if(NOT ZV_SANITIZE)
    set(ZV_NO_UNDEFINED LINKER:--no-undefined)
endif()

# What is installed makes an overflow that got past everything else end the process instead of being used.
if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT ZV_SANITIZE)
    if(MINGW)
        # Its runtime has no checked functions for every target; the linker's part is the same as elsewhere.
        add_link_options(LINKER:--dynamicbase,--nxcompat)
        if(CMAKE_SIZEOF_VOID_P EQUAL 8)
            add_link_options(LINKER:--high-entropy-va)
        endif()
    else()
        add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -fstack-protector-strong)
        if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|i[3-6]86)$")
            add_compile_options(-fcf-protection)
        endif()
        add_link_options(LINKER:-z,relro,-z,now,-z,noexecstack)
    endif()
endif()

# Strip releases: symbols multiply the size of MinGW's files, and Windows debuggers cannot read them.
if(MINGW)
    add_link_options($<$<CONFIG:Release>:-s>)
endif()

# Installed programs find the libraries relative to themselves.
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
