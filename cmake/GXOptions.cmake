# What is built, and with which flags. As a part of another project, only the library itself is.
option(GX_BUILD_QT "Build the Qt host (needs Qt 6.4)" ${PROJECT_IS_TOP_LEVEL})
option(GX_BUILD_QUICK "Build the QML module too, where qt6-declarative-dev is installed" ${GX_BUILD_QT})
option(GX_BUILD_GALLERY "Build the demo application (without the Qt host, its screens alone)" ${GX_BUILD_QT})
option(GX_GALLERY_CLICKS "Let the gallery's wheels click, where Qt Multimedia is installed" ON)
option(GX_BUILD_WEB "Build the browser's host (with the preset web, its WebAssembly module)" OFF)
set(GX_WEB_PICKER "" CACHE STRING "The only kind of picker in the browser's module, such as Distance; all without it")
option(GX_BUILD_TESTS "Build the tests (needs GoogleTest)" ${PROJECT_IS_TOP_LEVEL})
option(GX_BUILD_UNIT_TESTS "With GX_BUILD_TESTS, build the unit tests too, beside those from outside" ON)
option(GX_BUILD_BENCHMARKS "Build the benchmarks (needs Google Benchmark)" OFF)
option(BUILD_SHARED_LIBS "Build shared libraries instead of static ones" OFF)
option(GX_LANGUAGES_ON_DEMAND "Compile English alone in; other languages are added as data" OFF)
option(GX_PACKAGES "Make packages of this build by cpack, the gallery among them" OFF)
option(GX_BARE "Build without RTTI and exceptions; code that uses the library is compiled so too" OFF)

# For those who work on the library, turned on by presets.
option(GX_WARNINGS_AS_ERRORS "Refuse code that compiles with warnings" OFF)
option(GX_PRECOMPILE_HEADERS "Precompile what most sources include" OFF)
option(GX_ROOMS_AS_UNITS "Compile each folder as one unit" OFF)
set(GX_COMPILED_ALONE "" CACHE STRING "With GX_ROOMS_AS_UNITS, the libraries whose sources are compiled one by one")
set(GX_SLIGHTLY_OPTIMISED "" CACHE STRING "Libraries compiled with -O1, after the build type's flags")
option(GX_LIBRARIES_AS_UNITS "With GX_ROOMS_AS_UNITS, compile each library as one unit" OFF)
option(GX_DESCRIBE_TYPES "Describe the types of libraries for scripts/abi" OFF)
option(GX_TESTS_AS_UNITS "Compile several tests as one unit" OFF)
option(GX_SANITIZE "Check addresses and undefined behaviour at run time" OFF)
option(GX_BUILD_FUZZERS "Build everything for libFuzzer, with checks, and the fuzz targets (needs clang)" OFF)

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_CXX_EXTENSIONS OFF)

# Every target of this project links to this one.
add_library(gx_flags INTERFACE)
target_compile_features(gx_flags INTERFACE cxx_std_20)
# Results have to be the same on every machine: no fused multiply-add, no rearranged sums.
target_compile_options(gx_flags INTERFACE -ffp-contract=off -fno-fast-math)
target_compile_options(gx_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wsign-conversion -Wold-style-cast)
# g++ 12 sees overlapping copies in the standard library's own string operator+ (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(gx_flags INTERFACE -Wno-restrict)
endif()
if(GX_WARNINGS_AS_ERRORS)
  target_compile_options(gx_flags INTERFACE -Werror)
endif()
if(GX_SANITIZE)
  target_compile_options(gx_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(gx_flags INTERFACE -fsanitize=address,undefined)
endif()
if(GX_BUILD_FUZZERS)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "libFuzzer comes with clang: configure with cmake --preset fuzz")
  endif()
  # Numbers from outside end in conversions to integers, which "undefined" alone leaves unchecked.
  set(checks address,undefined,float-cast-overflow)
  target_compile_options(gx_flags INTERFACE
    -fsanitize=fuzzer-no-link,${checks} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(gx_flags INTERFACE -fsanitize=${checks})
endif()
