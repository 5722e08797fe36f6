# The Windows side: the thin layer and the executable.
set(windows_folders platform/windows)
foreach(folder services windows widgets drawing)
  list(APPEND windows_folders platform/windows/${folder})
endforeach()
floor(windows "${windows_folders}" platform)
if(TARGET windows)
  get_target_property(windows_type windows TYPE)
  if(windows_type STREQUAL "STATIC_LIBRARY")
    target_link_libraries(windows PUBLIC iphlpapi ws2_32 gdi32 user32 shell32 advapi32
                                         comctl32 uxtheme shcore dwmapi)
  endif()
endif()

# The icon, the manifest and the version.
enable_language(RC)
set(RESOURCES ${CMAKE_BINARY_DIR}/tremolux.rc)
configure_file(assets/tremolux.rc.in ${RESOURCES} @ONLY)
set_source_files_properties(
  ${RESOURCES} PROPERTIES INCLUDE_DIRECTORIES ${CMAKE_SOURCE_DIR}/assets
                          OBJECT_DEPENDS "${CMAKE_SOURCE_DIR}/assets/tremolux.ico;\
${CMAKE_SOURCE_DIR}/assets/tremolux.manifest")

if(EXISTS ${CMAKE_SOURCE_DIR}/program/main.cpp)
  add_executable(Tremolux WIN32 program/main.cpp ${RESOURCES})
  target_link_libraries(Tremolux PRIVATE program windows)
  # The entry lies in the windows library, which is searched before anything asks for it.
  target_link_options(Tremolux PRIVATE -municode -s -Wl,-u,wWinMain)
endif()
