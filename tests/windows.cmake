# What runs as 32-bit Windows programs. The emulator, see tools/windows, is part of each test's command.
include(GoogleTest)
# No binary package of it exists for this compiler.
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

# One program and one test: what starts a program here takes longer than most of what it tests.
function(rux_windows_suite name)
  cmake_parse_arguments(PARSE_ARGV 1 suite "" "" "SOURCES;LIBRARIES")
  file(GLOB sources CONFIGURE_DEPENDS ${suite_SOURCES})
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(test_${name} PRIVATE ${suite_LIBRARIES} gtest_main)
  add_test(NAME ${name} COMMAND test_${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()

rux_windows_suite(contract SOURCES contract/*.cpp contract/win32/*.cpp LIBRARIES rux_win32)
