# What the tests on a desktop need around them: under Wine a desktop of Wine's own, for the desktop
# tests the program folder and, where one can be made, a network of their own.
add_dependencies(desktop_tests menu_spy)

if(CMAKE_CROSSCOMPILING)
  add_test(NAME wine_desktop
           COMMAND ${WINE} regedit /S ${CMAKE_SOURCE_DIR}/tests/desktop/wine_desktop.reg)
  set_tests_properties(wine_desktop PROPERTIES FIXTURES_SETUP wine_desktop FIXTURES_REQUIRED wine
                       ENVIRONMENT "${WINE_ENVIRONMENT}")
  # Alone: there is one desktop, one clipboard and one registry.
  set_tests_properties(contract_tests_windows PROPERTIES RUN_SERIAL ON TIMEOUT 300
                       FIXTURES_REQUIRED "wine;wine_desktop" ENVIRONMENT "${WINE_ENVIRONMENT}")
endif()

if(CMAKE_CROSSCOMPILING AND PYTHON)
  # Adapters of the tests' own need a network of their own, and Wine all in it.
  add_test(NAME desktop_tests
           COMMAND ${PYTHON} ${CMAKE_SOURCE_DIR}/tests/desktop/line/network_line.py sh -c
                   "'${WINESERVER}' --kill; '${WINE}' '$<TARGET_FILE:desktop_tests>' \
--gtest_brief=1; result=$?; '${WINESERVER}' --kill; exit $result")

  # The installer makes a Wine of its own, and tests the release that `release` has made.
  add_test(NAME installer_test COMMAND ${PYTHON} ${CMAKE_SOURCE_DIR}/tests/release/installer_test.py
                                       ${RELEASE_FOLDER})
  set_tests_properties(
    installer_test
    PROPERTIES RUN_SERIAL ON TIMEOUT 300
               ENVIRONMENT "WINEPREFIX=${CMAKE_BINARY_DIR}/wine-installer;WINEDEBUG=-all;\
LC_ALL=C.UTF-8;WINEDLLOVERRIDES=mscoree=\\;mshtml=\\;winemenubuilder.exe=")
else()
  if(CMAKE_CROSSCOMPILING)
    message(WARNING "without python3 the tests of the installer and of traffic do not run")
  endif()
  add_test(NAME desktop_tests COMMAND desktop_tests --gtest_brief=1)
endif()
set_tests_properties(desktop_tests PROPERTIES WORKING_DIRECTORY ${TESTED_FOLDER} RUN_SERIAL ON
                                              TIMEOUT 600 FIXTURES_REQUIRED program_folder)
if(CMAKE_CROSSCOMPILING)
  set_property(TEST desktop_tests APPEND PROPERTY FIXTURES_REQUIRED wine wine_desktop)
  set_tests_properties(desktop_tests PROPERTIES ENVIRONMENT "${WINE_ENVIRONMENT}")
endif()
