# SPDX-License-Identifier: Apache-2.0
# Compiler settings, and the functions that declare modules, tests, benchmarks and fuzzers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

find_program(LODESTAR_CCACHE ccache)
if(LODESTAR_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${LODESTAR_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${LODESTAR_CCACHE})
endif()

# Language and warning settings of our own targets. Generated code is compiled without these warnings.
add_library(lodestar_settings INTERFACE)
target_compile_options(lodestar_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Wold-style-cast
  -Woverloaded-virtual -Werror
  "-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=")
# When it optimises, GCC 12 warns of an overlap in `"a" + string` that does not exist.
target_compile_options(lodestar_settings INTERFACE
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
# A byte above 127 is negative on every machine: text is compared and cut by the same rules on a phone as on a desk.
if(NOT CMAKE_SYSTEM_PROCESSOR MATCHES "x86|AMD64|i.86")
  target_compile_options(lodestar_settings INTERFACE -fsigned-char)
endif()
target_compile_definitions(lodestar_settings INTERFACE QT_NO_KEYWORDS)
target_include_directories(lodestar_settings INTERFACE "${CMAKE_SOURCE_DIR}/Shared")
find_package(Threads REQUIRED)
target_link_libraries(lodestar_settings INTERFACE Threads::Threads)

# GCC's manual calls this warning unreliable together with sanitizers. The other builds keep it.
if(NOT LODESTAR_SANITIZE STREQUAL "" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-Wno-maybe-uninitialized)
endif()
if(LODESTAR_SANITIZE STREQUAL "address")
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(LODESTAR_SANITIZE STREQUAL "thread")
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
elseif(LODESTAR_SANITIZE STREQUAL "fuzz")
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(NOT LODESTAR_SANITIZE STREQUAL "")
  message(FATAL_ERROR "LODESTAR_SANITIZE must be empty, address, thread or fuzz")
endif()

# lodestar_library(<name> SOURCES ... LIBRARIES ...): a static library. Its files include each other and the modules
# below by paths from Shared/, such as "Platform/Error.h".
function(lodestar_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC lodestar_settings ${ARG_LIBRARIES})
endfunction()

# The environment of every test: no display, and the sanitizers' settings. It overrides the caller's own settings, so
# that a test gives the same result for everybody. The check of strndup is off: in its strict form it reports the X11
# keyboard library, which copies pieces of a text that has no end of its own.
set(LODESTAR_TEST_ENVIRONMENT
  LC_ALL=C.UTF-8
  QT_QPA_PLATFORM=offscreen
  QT_QUICK_BACKEND=software
  ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1:intercept_strndup=0
  "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/Tests/Sanitizers/lsan.supp:print_suppressions=0"
  UBSAN_OPTIONS=print_stacktrace=1
  TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1)

# lodestar_test(<name> SOURCES ... LIBRARIES ... [LABELS ...] [TIMEOUT seconds] [SERIAL]): a GoogleTest program with one
# ctest entry per test case. Programs with Qt run without a display. SERIAL is for programs that play gestures in real
# time: they run alone.
function(lodestar_test name)
  cmake_parse_arguments(ARG "SERIAL" "TIMEOUT" "SOURCES;LIBRARIES;LABELS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  find_package(GTest REQUIRED)
  include(GoogleTest)
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE lodestar_settings ${ARG_LIBRARIES} GTest::gmock GTest::gtest_main)
  # Pass no empty property: CMake would drop its value and take the next property's name for it.
  set(properties TIMEOUT ${ARG_TIMEOUT} RUN_SERIAL ${ARG_SERIAL})
  if(ARG_LABELS)
    list(APPEND properties LABELS ${ARG_LABELS})
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 TEST_LIST ${name}_cases PROPERTIES ${properties})
  # The environment is a list, of which the properties above would keep only the first entry; so set it in a file.
  set(environment "${CMAKE_CURRENT_BINARY_DIR}/${name}_environment.cmake")
  file(CONFIGURE OUTPUT "${environment}" @ONLY CONTENT [[
if(@name@_cases)
  set_tests_properties(${@name@_cases} PROPERTIES ENVIRONMENT "@LODESTAR_TEST_ENVIRONMENT@")
endif()
]])
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${environment}")
endfunction()

# lodestar_benchmark(<name> SOURCES ... LIBRARIES ...): a Google Benchmark program, run by ./bench.
function(lodestar_benchmark name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
  find_package(benchmark REQUIRED)
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE lodestar_settings ${ARG_LIBRARIES} benchmark::benchmark)
endfunction()

# lodestar_fuzzer(<name> SOURCES ... LIBRARIES ...): a libFuzzer program, built in the fuzz preset only.
function(lodestar_fuzzer name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
  if(LODESTAR_SANITIZE STREQUAL "fuzz")
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE lodestar_settings ${ARG_LIBRARIES})
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  endif()
endfunction()
