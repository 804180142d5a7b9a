set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# All libraries are the system's. An entry of its own, above all an empty one, which means the current
# folder, would let a program load whatever lies where someone stands.
set(CMAKE_SKIP_RPATH ON)

find_program(CCACHE ccache)
if(CCACHE)
  # Precompiled headers carry time stamps; compiler and ccache must be told that they do not matter.
  set(launcher ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
    "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
endif()

# What every target of ours compiles with; the libraries we use are not held to our warnings.
add_library(wayloom_options INTERFACE)
target_compile_options(wayloom_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow
  -Wnon-virtual-dtor -Woverloaded-virtual -Werror
  # GCC 12 reports reads and writes beyond a string on paths that only its own inlining knows.
  "$<$<CXX_COMPILER_ID:GNU>:-Wno-array-bounds;-Wno-stringop-overflow;-Wno-stringop-overread>")
target_include_directories(wayloom_options INTERFACE "${CMAKE_SOURCE_DIR}/src")

if(WAYLOOM_SANITIZE)
  add_compile_options(-fsanitize=${WAYLOOM_SANITIZE} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=${WAYLOOM_SANITIZE})
endif()
if(WAYLOOM_FUZZ)
  # Without coverage of the libraries themselves the fuzzer would only guess.
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
