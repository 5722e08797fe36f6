# What the desktop tests need around them: the program folder, under Wine a desktop of Wine's own,
# and a second run of some of them on dates of their own.
add_dependencies(desktop_tests menu_spy)
set_tests_properties(desktop_tests PROPERTIES WORKING_DIRECTORY ${TESTED_FOLDER} TIMEOUT 600)
set_property(TEST desktop_tests APPEND PROPERTY FIXTURES_REQUIRED program_folder)
set_property(TEST desktop_tests APPEND PROPERTY ENVIRONMENT "GTEST_FILTER=-FakedDate.*:Line.*")

if(CMAKE_CROSSCOMPILING)
  add_test(NAME wine_desktop
           COMMAND ${WINE} regedit /S ${CMAKE_SOURCE_DIR}/tests/desktop/wine_desktop.reg)
  set_tests_properties(wine_desktop PROPERTIES FIXTURES_SETUP wine_desktop FIXTURES_REQUIRED wine
                       ENVIRONMENT "${WINE_ENVIRONMENT}")
  set_property(TEST desktop_tests APPEND PROPERTY FIXTURES_REQUIRED wine_desktop)

  # The library gives Wine's programs another date and leaves the clock that timers go by alone.
  find_file(FAKETIME libfaketimeMT.so.1 PATHS /usr/lib PATH_SUFFIXES x86_64-linux-gnu/faketime faketime
            NO_CMAKE_FIND_ROOT_PATH)
  if(FAKETIME)
    set(faked_clock ${CMAKE_BINARY_DIR}/faked_clock)
    file(WRITE ${faked_clock} "+0\n")
    add_test(NAME desktop_tests_on_other_dates
             COMMAND desktop_tests --gtest_brief=1 --gtest_filter=FakedDate.*)
    set_tests_properties(
      desktop_tests_on_other_dates
      PROPERTIES WORKING_DIRECTORY ${TESTED_FOLDER} RUN_SERIAL ON TIMEOUT 600
                 FIXTURES_REQUIRED "wine;wine_desktop;program_folder"
                 ENVIRONMENT "${WINE_ENVIRONMENT};LD_PRELOAD=${FAKETIME};NO_FAKE_STAT=1;\
FAKETIME_NO_CACHE=1;FAKETIME_DONT_FAKE_MONOTONIC=1;FAKETIME_TIMESTAMP_FILE=${faked_clock};\
TREMOLUX_FAKED_CLOCK=Z:${faked_clock}")
  else()
    message(WARNING "without the package faketime the tests on other dates do not run")
  endif()

  # Adapters of the tests' own need a network of their own, and Wine all in it. The installer makes
  # a Wine of its own, and tests the release that `release` has made.
  if(PYTHON)
    add_test(NAME installer_test COMMAND ${PYTHON} ${CMAKE_SOURCE_DIR}/tests/release/installer_test.py
                                         ${RELEASE_FOLDER})
    set_tests_properties(
      installer_test
      PROPERTIES RUN_SERIAL ON TIMEOUT 300
                 ENVIRONMENT "WINEPREFIX=${CMAKE_BINARY_DIR}/wine-installer;WINEDEBUG=-all;\
LC_ALL=C.UTF-8;WINEDLLOVERRIDES=mscoree=\\;mshtml=\\;winemenubuilder.exe=")
    add_test(NAME desktop_tests_on_own_network
             COMMAND ${PYTHON} ${CMAKE_SOURCE_DIR}/tests/desktop/line/network_line.py sh -c
                     "'${WINESERVER}' --kill; '${WINE}' '$<TARGET_FILE:desktop_tests>' \
--gtest_brief=1 --gtest_filter=Line.*; result=$?; '${WINESERVER}' --kill; exit $result")
    set_tests_properties(
      desktop_tests_on_own_network
      PROPERTIES WORKING_DIRECTORY ${TESTED_FOLDER} RUN_SERIAL ON TIMEOUT 600 SKIP_RETURN_CODE 77
                 FIXTURES_REQUIRED "wine;wine_desktop;program_folder"
                 ENVIRONMENT "${WINE_ENVIRONMENT}")
  else()
    message(WARNING "without python3 the tests of the installer and of own networks do not run")
  endif()
endif()
