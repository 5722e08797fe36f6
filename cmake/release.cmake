# The target `release` makes the zip, the installer and their sums in build/release/.
find_program(PYTHON python3 NO_CMAKE_FIND_ROOT_PATH)
set(RELEASE_FOLDER ${CMAKE_SOURCE_DIR}/build/release)
if(PYTHON AND TARGET Tremolux)
  set(fresh_folder ${CMAKE_BINARY_DIR}/release_folder)
  add_custom_target(
    release
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${fresh_folder}
    COMMAND ${CMAKE_COMMAND} --install ${CMAKE_BINARY_DIR} --prefix ${fresh_folder}
    COMMAND ${PYTHON} ${CMAKE_SOURCE_DIR}/tools/package.py --program ${fresh_folder}
            --version ${PROJECT_VERSION} --output ${RELEASE_FOLDER}
    DEPENDS Tremolux VERBATIM)
endif()
