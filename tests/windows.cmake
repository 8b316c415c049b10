# What runs as 32-bit Windows programs. The emulator, see tools/windows, is part of each test's command.
include(GoogleTest)
# No binary package of it exists for this compiler.
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

# One program, and one test for each code page: what starts a program here takes longer than most of what it tests. The
# locale's name decides the page.
function(rux_windows_suite name)
  cmake_parse_arguments(PARSE_ARGV 1 suite "" "" "SOURCES;LIBRARIES")
  file(GLOB sources CONFIGURE_DEPENDS ${suite_SOURCES})
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(test_${name} PRIVATE ${suite_LIBRARIES} gtest_main)
  target_compile_options(test_${name} PRIVATE -O0)
  foreach(row 936=zh_CN.UTF-8 1252=C.UTF-8)
    string(REGEX MATCH "^(.*)=(.*)$" row ${row})
    set(test ${name}_${CMAKE_MATCH_1})
    add_test(NAME ${test} COMMAND test_${name})
    set_tests_properties(${test} PROPERTIES TIMEOUT 300 ENVIRONMENT WINE_RUN_LANG=${CMAKE_MATCH_2})
  endforeach()
endfunction()

rux_windows_suite(contract SOURCES contract/*.cpp contract/win32/*.cpp LIBRARIES rux_engine rux_win32)

# It exports the table that a toolkit attaches by, undecorated as the agent looks for it; its header is C as well.
enable_language(C)
add_library(toolkit_table_in_c OBJECT windows/toolkit/TableInC.c)
target_include_directories(toolkit_table_in_c PRIVATE ${CMAKE_SOURCE_DIR})
target_compile_options(toolkit_table_in_c PRIVATE -std=c99 -pedantic -Wall -Wextra -Werror)
rux_windows_suite(toolkit SOURCES windows/toolkit/*.cpp LIBRARIES toolkit_table_in_c rux_win32)
target_link_options(test_toolkit PRIVATE -Wl,--kill-at)

rux_windows_suite(parameters SOURCES windows/parameters/*.cpp LIBRARIES rux_engine rux_win32)

# The process that the library is placed into is the test itself: it finds the library and the toolkit's module beside it.
rux_windows_suite(library SOURCES windows/library/*.cpp LIBRARIES rux_flags ws2_32)
set_target_properties(test_library PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
add_dependencies(test_library rux standin)
foreach(shared libgcc_s_dw2-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${shared} OUTPUT_VARIABLE path
                  OUTPUT_STRIP_TRAILING_WHITESPACE)
  file(COPY ${path} DESTINATION ${CMAKE_BINARY_DIR})
endforeach()

# Driven from the other side, by a program of the native build.
set(RUX_NATIVE_TESTS ${CMAKE_SOURCE_DIR}/build/tests CACHE PATH "Where the native build has its test programs")
list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " wine_run)
foreach(row matrix=*TModalMatrix* programs=TWinePrograms.*)
  string(REGEX MATCH "^(.*)=(.*)$" row ${row})
  add_test(NAME wine_${CMAKE_MATCH_1} COMMAND ${RUX_NATIVE_TESTS}/test_wine --gtest_filter=${CMAKE_MATCH_2})
  # Agents take ports of this machine.
  set_tests_properties(wine_${CMAKE_MATCH_1} PROPERTIES RUN_SERIAL TRUE TIMEOUT 300
                       ENVIRONMENT "RUX_WINE_RUN=${wine_run};RUX_WINDOWS_BUILD=${CMAKE_BINARY_DIR}"
                       SKIP_REGULAR_EXPRESSION "RUX_[A-Z_]* is not set|is not built")
endforeach()
