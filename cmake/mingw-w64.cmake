# SPDX-License-Identifier: MIT
# Builds for 64-bit Windows with Debian's MinGW. Libraries are looked for in the folder that
# script/windows-libraries fills (ORRERIX_WINDOWS_LIBRARIES, here or in the environment).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(NOT ORRERIX_WINDOWS_LIBRARIES)
  if(DEFINED ENV{ORRERIX_WINDOWS_LIBRARIES})
    set(ORRERIX_WINDOWS_LIBRARIES $ENV{ORRERIX_WINDOWS_LIBRARIES})
  else()
    set(ORRERIX_WINDOWS_LIBRARIES ${CMAKE_CURRENT_LIST_DIR}/../build/windows-libraries)
  endif()
endif()
get_filename_component(ORRERIX_WINDOWS_LIBRARIES ${ORRERIX_WINDOWS_LIBRARIES} ABSOLUTE)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ORRERIX_WINDOWS_LIBRARIES)

set(CMAKE_FIND_ROOT_PATH
  ${ORRERIX_WINDOWS_LIBRARIES} ${ORRERIX_WINDOWS_LIBRARIES}/qt /usr/x86_64-w64-mingw32)
# Qt's own tools run here: those of Debian's Qt of the same version.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# One file for each program, nothing beside it. The compiler cannot put objects of many templates
# into the plain format.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_CXX_FLAGS_INIT "-Wa,-mbig-obj")

# Tests run under Wine.
find_program(ORRERIX_WINE wine)
if(ORRERIX_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine.sh)
endif()
