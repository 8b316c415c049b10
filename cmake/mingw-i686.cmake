# 32-bit Windows by the MinGW-w64 cross compiler with threads of the C++ library.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)
set(CMAKE_C_COMPILER i686-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)
# The second is where tools/windows/build-jpeg puts what no package offers.
get_filename_component(windows_jpeg ${CMAKE_CURRENT_LIST_DIR}/../build/windows-jpeg ABSOLUTE)
set(CMAKE_FIND_ROOT_PATH /usr/i686-w64-mingw32 ${windows_jpeg})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
