# The program and the folder it is installed into: everything lies side by side, nothing else is needed.
add_executable(tasmoro WIN32 shell/main.cpp)
target_link_libraries(tasmoro PRIVATE tasmoro_windows)
install(TARGETS tasmoro RUNTIME DESTINATION .)

# Installs the files and folders of FOLDER beside the program, but for those of them that are there already.
function(install_default_data FOLDER)
  install(CODE "set(DATA \"${FOLDER}\")")
  install(SCRIPT ${CMAKE_SOURCE_DIR}/cmake/InstallData.cmake)
endfunction()
install_default_data(${CMAKE_SOURCE_DIR}/data)
