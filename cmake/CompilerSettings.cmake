set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
  # Precompiled headers carry time stamps; ccache must be told that they do not matter.
  set(launcher ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()

# What every target of ours compiles with; the libraries we use are not held to our warnings.
add_library(wayloom_options INTERFACE)
target_compile_options(wayloom_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow
  -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
target_include_directories(wayloom_options INTERFACE "${CMAKE_SOURCE_DIR}/src")

if(WAYLOOM_SANITIZE)
  add_compile_options(-fsanitize=${WAYLOOM_SANITIZE} -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${WAYLOOM_SANITIZE})
endif()
if(WAYLOOM_FUZZ)
  # Without coverage of the libraries themselves the fuzzer would only guess.
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
