# Warnings, sanitizers and the compiler cache, the same for every target.
find_program(CCACHE ccache)
if(CCACHE)
  # Base folder and sloppiness let several checkouts share one cache, precompiled headers included.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()

add_library(tasmoro_options INTERFACE)
target_include_directories(tasmoro_options INTERFACE ${CMAKE_SOURCE_DIR})
if(MSVC)
  target_compile_options(tasmoro_options INTERFACE /W4 /WX /utf-8)
else()
  target_compile_options(tasmoro_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                                   -Woverloaded-virtual -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # Optimising, this compiler sees overlaps and overflows in joined strings that cannot be there.
    target_compile_options(tasmoro_options INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds)
  endif()
endif()
if(TASMORO_SANITIZE)
  target_compile_options(tasmoro_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                   -fno-omit-frame-pointer)
  target_link_options(tasmoro_options INTERFACE -fsanitize=address,undefined)
endif()
