# The program and the folder it is installed into.
add_executable(tasmoro WIN32 shell/main.cpp)
target_link_libraries(tasmoro PRIVATE tasmoro_windows)
