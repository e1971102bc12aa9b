# SPDX-License-Identifier: MIT
# One library for each folder below src/. A folder's headers are reached only through the
# libraries that src/folders.txt names for it, so that an include across a border does not compile.

add_library(orrerix_options INTERFACE)
target_compile_options(orrerix_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor -Werror
  # GCC 12 sees overlapping and outsized copies in the string operators of its own library.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-array-bounds -Wno-stringop-overflow>)
if(WIN32)
  target_compile_definitions(orrerix_options INTERFACE UNICODE _UNICODE NOMINMAX)
endif()
if(ORRERIX_SANITIZE)
  target_compile_options(orrerix_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(orrerix_options INTERFACE -fsanitize=address,undefined)
endif()
if(ORRERIX_FUZZ)
  # Each library is watched, not only the targets' few lines.
  target_compile_options(orrerix_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Optimised programs check their copies and their stack, and have their tables read-only. That they
# load anywhere is the default of the compilers.
add_library(orrerix_hardening INTERFACE)
set(hardened "$<AND:$<CONFIG:Release,RelWithDebInfo>,$<NOT:$<BOOL:${ORRERIX_SANITIZE}>>,$<NOT:$<PLATFORM_ID:Windows>>>")
target_compile_options(orrerix_hardening INTERFACE
  "$<${hardened}:-D_FORTIFY_SOURCE=2;-fstack-protector-strong>")
target_link_options(orrerix_hardening INTERFACE "$<${hardened}:-Wl,-z,relro,-z,now>")

# What nearly every source includes is parsed once. A source includes what it needs all the same:
# -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON builds without.
set(orrerix_common_headers
  <algorithm> <filesystem> <functional> <map> <memory> <optional> <string> <string_view> <utility>
  <vector> <fmt/format.h>)

# orrerix_shared_headers(<name> OPTIONS <libraries with the options> [HEADERS <further headers>]):
# headers that are parsed once for all targets of the same options that have no further headers.
function(orrerix_shared_headers name)
  cmake_parse_arguments(ARG "" "" "OPTIONS;HEADERS" ${ARGN})
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp "")
  add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PRIVATE ${ARG_OPTIONS} fmt::fmt)
  target_precompile_headers(${name} PRIVATE ${orrerix_common_headers} ${ARG_HEADERS})
endfunction()

# orrerix_precompile(<target> <shared headers> <headers>...). Clang takes a precompiled header only for
# exactly the options it was made with, so each target has its own there.
function(orrerix_precompile target shared)
  if(ARGN OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    get_target_property(headers ${shared} PRECOMPILE_HEADERS)
    target_precompile_headers(${target} PRIVATE ${headers} ${ARGN})
  else()
    target_precompile_headers(${target} REUSE_FROM ${shared})
  endif()
endfunction()

orrerix_shared_headers(orrerix_headers OPTIONS orrerix_options orrerix_hardening)

# orrerix_folder_uses(<folder> <variable>): what src/folders.txt lets a folder include, without the
# folders that this build leaves out.
set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
             ${CMAKE_SOURCE_DIR}/src/folders.txt)
function(orrerix_folder_uses folder variable)
  file(STRINGS ${CMAKE_SOURCE_DIR}/src/folders.txt line REGEX "^${folder}:")
  if(NOT line)
    message(FATAL_ERROR "src/folders.txt has no line for ${folder}")
  endif()
  string(REGEX REPLACE "^[^:]*: *" "" uses "${line}")
  separate_arguments(uses)
  if(NOT ORRERIX_WITH_QT)
    list(REMOVE_ITEM uses picture forms)
  endif()
  set(${variable} ${uses} PARENT_SCOPE)
endfunction()

# orrerix_library(<folder> SOURCES <files> [LINKS <other libraries>] [PRECOMPILE <headers>])
function(orrerix_library folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRECOMPILE" ${ARGN})
  set(target orrerix_${folder})
  set(includes ${CMAKE_BINARY_DIR}/include/${folder})
  file(MAKE_DIRECTORY ${includes})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${includes}/${folder} SYMBOLIC)
  add_library(${target} STATIC ${ARG_SOURCES})
  target_include_directories(${target} PUBLIC ${includes})
  orrerix_folder_uses(${folder} uses)
  list(TRANSFORM uses PREPEND orrerix_)
  target_link_libraries(${target} PUBLIC ${uses} ${ARG_LINKS}
                        PRIVATE orrerix_options orrerix_hardening fmt::fmt)
  orrerix_precompile(${target} orrerix_headers ${ARG_PRECOMPILE})
endfunction()

# Lets the compiler make fast loops over texts of any length. For folders that calculate no places.
add_library(orrerix_text_loops INTERFACE)
target_compile_options(orrerix_text_loops INTERFACE
  $<$<CXX_COMPILER_ID:GNU>:-fvect-cost-model=dynamic>)

# orrerix_program(<name> SOURCES <files> [USES <folders>] [LINKS <other libraries>])
function(orrerix_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  list(TRANSFORM ARG_USES PREPEND orrerix_)
  target_link_libraries(${name} PRIVATE ${ARG_USES} ${ARG_LINKS} orrerix_options orrerix_hardening)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  if(WIN32)
    configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/program.rc.in ${name}.rc @ONLY)
    set(byte_functions ${CMAKE_SOURCE_DIR}/src/platform/windows/byte_functions.cpp)
    set_source_files_properties(${byte_functions} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    target_sources(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc ${byte_functions})
    if(ORRERIX_MIMALLOC)
      target_sources(${name} PRIVATE ${CMAKE_SOURCE_DIR}/src/platform/windows/allocation.cpp)
      target_link_libraries(${name} PRIVATE ${ORRERIX_MIMALLOC} psapi bcrypt)
    endif()
  endif()
endfunction()

# orrerix_needs_no_display(<program>)
# The program can draw where no display is. A Qt that is linked in as a whole brings only its plugin
# for real windows by itself.
function(orrerix_needs_no_display program)
  if(TARGET Qt6::QOffscreenIntegrationPlugin)
    qt_import_plugins(${program} INCLUDE Qt6::QOffscreenIntegrationPlugin)
  endif()
endfunction()
