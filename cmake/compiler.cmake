# Warnings and optimisation for every target of this project.
find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
  # What is compiled with headers that were compiled before is kept only when one says so.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
                                  CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()

add_library(tremolux_options INTERFACE)
target_include_directories(tremolux_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(tremolux_options INTERFACE TREMOLUX_VERSION="${PROJECT_VERSION}")
target_compile_options(tremolux_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)

if(CMAKE_BUILD_TYPE STREQUAL "Release")
  # Optimising for speed, g++ 12 sees copies within a std::string overlap that do not.
  target_compile_options(tremolux_options INTERFACE -Wno-restrict)
endif()

if(TREMOLUX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(TREMOLUX_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(WIN32)
  add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0A00)
  add_compile_options(-ffunction-sections -fdata-sections)
  # Nothing of the hour and the folder of a build gets into the program.
  add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)
  add_link_options(-static -Wl,--gc-sections -Wl,--no-insert-timestamp)
endif()
