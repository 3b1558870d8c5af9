# What every target of the house is compiled with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g")

add_library(veyruna_options INTERFACE)
target_compile_features(veyruna_options INTERFACE cxx_std_20)
target_include_directories(veyruna_options INTERFACE ${PROJECT_SOURCE_DIR})

# The same numbers on every machine: a fused multiply-add or a reordered sum would move star radii
# that lie on a rounding tie (2.0 - 0.3 m) and rise times that lie on a minute.
target_compile_options(veyruna_options INTERFACE -ffp-contract=off -fno-fast-math)

# In dev, sanitizer and fuzz builds the standard library checks what it is asked: an index beyond an
# array or a view's end stops the program where it happens.
target_compile_definitions(veyruna_options INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

target_compile_options(
  veyruna_options
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wconversion
            -Wsign-conversion
            -Wdouble-promotion
            -Wshadow
            -Wold-style-cast
            -Wcast-align
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wformat=2
            -Wnull-dereference
            -Wimplicit-fallthrough
            -Wmissing-declarations
            $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond>
            $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op>
            $<$<CXX_COMPILER_ID:GNU>:-Wuseless-cast>
            $<$<BOOL:${VEYRUNA_WARNINGS_AS_ERRORS}>:-Werror>)

if(VEYRUNA_SANITIZERS)
  set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")  # enough for a report's lines
  target_compile_options(
    veyruna_options INTERFACE -fsanitize=${VEYRUNA_SANITIZERS} -fno-sanitize-recover=all
                              -fno-omit-frame-pointer)
  target_link_options(veyruna_options INTERFACE -fsanitize=${VEYRUNA_SANITIZERS})
endif()

# veyruna_in_tree(<variable> <path>)
# Where a program that was not installed finds what belongs to it: that path of this tree, or nothing
# in programs that are built to be handed on, which hold no path of the machine that built them.
function(veyruna_in_tree variable path)
  if(VEYRUNA_FOR_PACKAGES)
    set(${variable} "" PARENT_SCOPE)
  else()
    set(${variable} ${PROJECT_SOURCE_DIR}/${path} PARENT_SCOPE)
  endif()
endfunction()

if(VEYRUNA_COVERAGE)
  # Without optimising: a line is a line. Threads count together.
  set(CMAKE_CXX_FLAGS_DEBUG "-O0 -g1 --coverage -fprofile-update=atomic")
endif()

# veyruna_room(<name> SOURCES <file>... [USES <room>...])
# One static library for one room: veyruna_<name>, its headers included as "<name>/file.h".
function(veyruna_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_library(veyruna_${name} STATIC ${ROOM_SOURCES})
  # Where a room is installed, its headers are the same; how it was compiled is the house's alone.
  target_link_libraries(veyruna_${name} PUBLIC $<BUILD_INTERFACE:veyruna_options>)
  target_include_directories(veyruna_${name} INTERFACE $<INSTALL_INTERFACE:include/veyruna>)
  target_compile_features(veyruna_${name} PUBLIC cxx_std_20)
  foreach(other IN LISTS ROOM_USES)
    target_link_libraries(veyruna_${name} PUBLIC veyruna_${other})
  endforeach()
endfunction()
