# floor(<target> <folders> [<floors below>...])
#
# A library (static, unless BUILD_SHARED_LIBS says otherwise) of all sources directly in the folders
# (a list); header-only while they have none.
# Sources are found at configure time, so that a new file needs no second entry here.
function(floor target folders)
  list(TRANSFORM folders APPEND "/*.cpp")
  list(TRANSFORM folders PREPEND "${CMAKE_SOURCE_DIR}/")
  file(GLOB sources CONFIGURE_DEPENDS ${folders})
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  if(sources)
    add_library(${target} ${sources})
    target_link_libraries(${target} PUBLIC tremolux_options ${ARGN})
  else()
    add_library(${target} INTERFACE)
    target_link_libraries(${target} INTERFACE tremolux_options ${ARGN})
  endif()
endfunction()
