# GoogleTest comes as sources with the Debian package, so that it builds for both targets.
set(GTEST_ROOT /usr/src/googletest/googletest CACHE PATH "Sources of GoogleTest")
add_library(gtest STATIC ${GTEST_ROOT}/src/gtest-all.cc)
target_include_directories(gtest SYSTEM PUBLIC ${GTEST_ROOT}/include PRIVATE ${GTEST_ROOT})
target_compile_options(gtest PRIVATE -w)
add_library(gtest_main STATIC ${GTEST_ROOT}/src/gtest_main.cc)
target_link_libraries(gtest_main PUBLIC gtest)
if(NOT WIN32)
  find_package(Threads REQUIRED)
  target_link_libraries(gtest PUBLIC Threads::Threads)
endif()

# Windows programs run under Wine, in a prefix of the tests' own. Making it takes a while, so it is
# a step before the tests; when they are over, nothing of it stays running.
if(CMAKE_CROSSCOMPILING)
  find_program(WINE wine)
  find_program(WINESERVER wineserver)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE})
  # A locale whose files may have names in any script; no offer to fetch the parts of Wine that no
  # test uses.
  set(WINE_ENVIRONMENT WINEPREFIX=${CMAKE_BINARY_DIR}/wine WINEDEBUG=-all LC_ALL=C.UTF-8
      "WINEDLLOVERRIDES=mscoree=\\;mshtml=")
  add_test(NAME wine_starts COMMAND ${WINE} wineboot --init)
  add_test(NAME wine_stops COMMAND sh -c "'${WINESERVER}' --kill || true")  # fails when all ended
  set_tests_properties(wine_starts PROPERTIES FIXTURES_SETUP wine)
  set_tests_properties(wine_stops PROPERTIES FIXTURES_CLEANUP wine)
  set_tests_properties(wine_starts wine_stops PROPERTIES ENVIRONMENT "${WINE_ENVIRONMENT}")
endif()

# The program folder that the desktop tests start the program in.
if(WIN32)
  set(TESTED_FOLDER ${CMAKE_BINARY_DIR}/program)
  add_test(NAME program_folder
           COMMAND ${CMAKE_COMMAND} --install ${CMAKE_BINARY_DIR} --prefix ${TESTED_FOLDER})
  set_tests_properties(program_folder PROPERTIES FIXTURES_SETUP program_folder)
endif()

# read_headers_once(<target>): GoogleTest costs each file of a test more than the file itself, so the
# first target that asks for it compiles it, and the others take it over.
function(read_headers_once target)
  get_property(owner GLOBAL PROPERTY OWNER_OF_COMPILED_HEADERS)
  if(owner)
    target_precompile_headers(${target} REUSE_FROM ${owner})
  else()
    target_precompile_headers(${target} PRIVATE <gtest/gtest.h> <algorithm> <functional> <optional>
                              <string> <vector>)
    set_property(GLOBAL PROPERTY OWNER_OF_COMPILED_HEADERS ${target})
  endif()
endfunction()

# test_executable(<name> <folders> [<libraries>...]): one executable of all tests of the folders (a
# list), so that every test file runs by being there.
function(test_executable name folders)
  list(TRANSFORM folders APPEND "/*.cpp")
  list(TRANSFORM folders PREPEND "${CMAKE_SOURCE_DIR}/")
  file(GLOB sources CONFIGURE_DEPENDS ${folders})
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE tremolux_options ${ARGN} gtest_main)
  # For tests that compare what is shipped or written with what the code says; nobody else is built
  # anew for another folder.
  foreach(source ${sources})
    file(STRINGS ${source} mentions REGEX SOURCE_FOLDER)
    if(mentions)
      set_property(SOURCE ${source} PROPERTY COMPILE_DEFINITIONS SOURCE_FOLDER="${CMAKE_SOURCE_DIR}")
    endif()
  endforeach()
  read_headers_once(${name})
endfunction()

# test_program(<name> <folders> [<libraries>...]): such an executable, which runs as a test.
function(test_program name folders)
  test_executable(${name} "${folders}" ${ARGN})
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
endfunction()

# hook_module(<name> <folder>): a library that a hook of the tests brings into the program.
function(hook_module name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
  add_library(${name} SHARED ${sources})
  target_link_libraries(${name} PRIVATE tremolux_options)
  set_target_properties(${name} PROPERTIES PREFIX "")
endfunction()

if(WIN32)
  # The user's hands, for whatever is tested on a desktop.
  floor(desktop_driver tests/desktop/driver windows)
  target_link_libraries(desktop_driver PUBLIC gdiplus oleacc oleaut32 ole32)

  # The contract tests run against the system that the build is for.
  test_program(contract_tests_windows "tests/contract;tests/contract/windows" desktop_driver)
  # With the program's manifest it gets the controls that the program has.
  target_sources(contract_tests_windows PRIVATE ${RESOURCES})

  # The desktop tests drive the real program from outside.
  hook_module(menu_spy tests/desktop/spy)
  test_executable(desktop_tests tests/desktop desktop_driver)
  include(cmake/desktop_tests.cmake)

  # Not a test: takes the pictures of the documentation.
  floor(screenshot_scenes tools/screenshots desktop_driver settings)
  add_executable(screenshots $<TARGET_OBJECTS:screenshot_scenes>)
  target_link_libraries(screenshots PRIVATE desktop_driver settings)
  target_link_options(screenshots PRIVATE -municode)
  add_dependencies(screenshots menu_spy)
else()
  test_program(platform_tests tests/platform memory)
  test_program(contract_tests tests/contract memory)
  test_program(toolkit_tests tests/toolkit settings memory)
  test_program(settings_tests "tests/settings;tests/language" settings memory)
  test_program(engine_tests tests/engine engine memory)
  test_program(quantity_tests tests/quantity quantity memory)
  test_program(alerts_tests tests/alerts alerts memory)
  test_program(stats_tests tests/stats stats memory)
  test_program(display_tests tests/display program memory)
  test_program(preferences_tests tests/preferences program memory)
  test_program(program_tests tests/program program memory)
  find_program(PYTHON python3 REQUIRED)
  add_test(NAME house COMMAND ${PYTHON} ${CMAKE_SOURCE_DIR}/tests/house/house_test.py)

  # Two days of the meter's life here; ./dev endure plays years.
  floor(endurance tools/endure program memory)
  add_executable(endure tools/endure/main.cpp)
  target_link_libraries(endure PRIVATE endurance)
  add_test(NAME endure COMMAND endure 2 43)

  # What the fuzzers once found, and what they begin with; ./dev fuzz goes on from there.
  add_library(fuzz_targets STATIC tools/fuzz/targets.cpp)
  target_link_libraries(fuzz_targets PUBLIC display memory)
  add_executable(fuzz_replay tools/fuzz/replay.cpp)
  target_link_libraries(fuzz_replay PRIVATE fuzz_targets)
  add_test(NAME fuzz_replay COMMAND fuzz_replay ${CMAKE_SOURCE_DIR}/tools/fuzz/corpora)
  if(TREMOLUX_FUZZ)
    add_executable(fuzz tools/fuzz/fuzzer.cpp)
    target_link_libraries(fuzz PRIVATE fuzz_targets)
    target_link_options(fuzz PRIVATE -fsanitize=fuzzer)
  endif()

  # The language files, the names in the help and the page of all stored values; ./dev languages writes them.
  floor(made_files_parts tools/made_files settings memory)
  add_executable(made_files tools/made_files/main.cpp)
  target_link_libraries(made_files PRIVATE made_files_parts)
  add_test(NAME made_files COMMAND made_files --check ${CMAKE_SOURCE_DIR})
endif()
