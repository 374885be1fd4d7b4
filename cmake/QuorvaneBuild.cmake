# How every target of this project is compiled: the language, the warnings, the sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

# Warnings for our own code. They are errors.
add_library(quorvane_warnings INTERFACE)
target_compile_options(quorvane_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror
    -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wcast-align -Wcast-qual
    -Wextra-semi -Wformat=2 -Wundef -Wunused
    # Rows of our tables leave their last fields at the default.
    -Wno-missing-field-initializers)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(quorvane_warnings INTERFACE
        -Wduplicated-cond -Wlogical-op
        # gcc 12 sees overlapping copies in ordinary additions of strings (gcc bug 105651).
        -Wno-restrict)
    # gcc 12 drops a first value where the call that would replace it throws.
    add_compile_options(-fno-tree-dse)
endif()

if(QUORVANE_FUZZ AND NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "QUORVANE_FUZZ needs clang (cmake --preset fuzz).")
endif()
if(QUORVANE_SANITIZE OR QUORVANE_FUZZ)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined -fno-sanitize-recover=all)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # The checks that the sanitizer adds make gcc 12 see uninitialized values in the library.
        target_compile_options(quorvane_warnings INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()
if(QUORVANE_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT DEFINED CMAKE_INTERPROCEDURAL_OPTIMIZATION)
    include(CheckIPOSupported)
    check_ipo_supported(RESULT quorvane_lto OUTPUT quorvane_lto_output LANGUAGES CXX)
    set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ${quorvane_lto})
endif()
