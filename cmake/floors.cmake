# floor(<target> <folder> [<floors below>...])
#
# A static library of all sources directly in <folder>; header-only while the folder has none.
# Sources are found at configure time, so that a new file needs no second entry here.
function(floor target folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/engine/main\\.cpp$")
  if(sources)
    add_library(${target} STATIC ${sources})
    target_link_libraries(${target} PUBLIC tremolux_options ${ARGN})
  else()
    add_library(${target} INTERFACE)
    target_link_libraries(${target} INTERFACE tremolux_options ${ARGN})
  endif()
endfunction()
