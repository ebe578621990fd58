# The options of the build, and the flags shared by all targets of this repository.

option(TGX_BUILD_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(TGX_BUILD_BENCH "Build tgx_bench" ${PROJECT_IS_TOP_LEVEL})
option(TGX_BUILD_DEMO "Build the demo and the examples" ${PROJECT_IS_TOP_LEVEL})
option(TGX_WERROR "Treat warnings as errors" OFF)
option(TGX_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(TGX_FUZZ "Build the fuzz targets; needs clang" OFF)

if(NOT CMAKE_BUILD_TYPE AND PROJECT_IS_TOP_LEVEL)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

add_library(tgx_flags INTERFACE)
target_compile_options(tgx_flags INTERFACE -Wall -Wextra -Wshadow $<$<BOOL:${TGX_WERROR}>:-Werror>)
# g++ 12 wrongly reports an overlap in each "literal" + std::string that it inlines.
target_compile_options(tgx_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(TGX_SANITIZE)
  target_compile_options(tgx_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tgx_flags INTERFACE -fsanitize=address,undefined)
endif()
if(TGX_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "TGX_FUZZ needs clang (libFuzzer): configure with the preset \"fuzz\" or with CXX=clang++")
  endif()
  # All objects report their branches; only the fuzz targets link libFuzzer's main.
  target_compile_options(tgx_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
