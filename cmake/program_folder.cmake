# `cmake --install` lays out the program folder: the executable with the files that it looks for
# beside itself. Whatever does not exist yet is left out.
if(TARGET Tremolux)
  install(TARGETS Tremolux RUNTIME DESTINATION .)
endif()
foreach(folder Icons Languages Help)
  install(DIRECTORY ${CMAKE_SOURCE_DIR}/assets/${folder} DESTINATION . OPTIONAL)
endforeach()
foreach(sound warning.wav ticking.wav)
  install(FILES ${CMAKE_SOURCE_DIR}/assets/${sound} DESTINATION . OPTIONAL)
endforeach()
