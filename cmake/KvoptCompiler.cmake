# Compiler settings shared by every target, and the one way a library of this project is made.

option(KVOPT_WERROR "Treat warnings as errors" ON)
option(KVOPT_TIDY "Run clang-tidy on the sources of the libraries" OFF)
option(KVOPT_SANITIZE "Build with address and undefined-behaviour sanitizers" OFF)
option(KVOPT_FUZZ "Build the fuzz targets, and the libraries for them; needs clang" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(KVOPT_CCACHE ccache)
if(KVOPT_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${KVOPT_CCACHE}")
endif()

add_library(kvopt_options INTERFACE)
target_compile_options(kvopt_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${KVOPT_WERROR}>:-Werror>)
# When optimising, g++ 12 takes its own library's string concatenation for an overlapping copy, a
# false alarm that later versions do not give.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(kvopt_options INTERFACE -Wno-restrict)
endif()
if(KVOPT_SANITIZE OR KVOPT_FUZZ)
    target_compile_options(kvopt_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(kvopt_options INTERFACE -fsanitize=address,undefined)
endif()
if(KVOPT_FUZZ)
    # The words of the formats stand in dictionaries, so that comparisons need not be traced, which
    # takes a fifth of the time and more. After each execution libFuzzer looks at the counters of every
    # function that is there, so what a fuzzer does not call is left out of it.
    target_compile_options(kvopt_options INTERFACE
        -fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp -ffunction-sections)
    target_link_options(kvopt_options INTERFACE -Wl,--gc-sections -Wl,-z,start-stop-gc)
endif()

# Functions that are not called can be left out of a fuzzer only where its libraries are part of it.
set(KVOPT_LIBRARY_TYPE SHARED)
if(KVOPT_FUZZ)
    set(KVOPT_LIBRARY_TYPE STATIC)
endif()

# kvopt_library(NAME FOLDER...): a library of every source below the folders, shared but for the
# fuzzers. A folder without a source yet makes a library of its name alone.
function(kvopt_library name)
    set(patterns "")
    foreach(folder IN LISTS ARGN)
        list(APPEND patterns "${folder}/*.cpp")
    endforeach()
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" ${patterns})
    if(NOT sources)
        file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/${name}_empty.cpp" "")
        set(sources "${CMAKE_CURRENT_BINARY_DIR}/${name}_empty.cpp")
    endif()
    add_library(${name} ${KVOPT_LIBRARY_TYPE} ${sources})
    add_library(kvopt::${name} ALIAS ${name})
    string(TOUPPER "${name}" upper)
    string(REPLACE "-" "_" upper "${upper}")
    target_compile_definitions(${name} PRIVATE ${upper}_BUILDING)
    target_include_directories(${name}
        PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include>
               $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
        PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/src" "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:kvopt_options>)
    target_compile_features(${name} PUBLIC cxx_std_20)
    if(KVOPT_TIDY)
        set_target_properties(${name} PROPERTIES
            CXX_CLANG_TIDY "${PROJECT_SOURCE_DIR}/tools/cached-tidy")
    endif()
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION 0)
endfunction()
