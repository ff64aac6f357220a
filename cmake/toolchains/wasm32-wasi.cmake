# WebAssembly by clang 19 with Debian's libc++ and wasi-libc, without a loader of its own.
#
# A program is a reactor: it has no `main`, the host calls `_initialize` once and then what is
# exported. `scripts/setup web` installs what is named here.
# CMake 3.25 does not know the system.
list(APPEND CMAKE_MODULE_PATH "${CMAKE_CURRENT_LIST_DIR}")
set(CMAKE_SYSTEM_NAME WASI)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_C_COMPILER clang-19)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_C_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
# The linker reads archives without an index, so the build machine's own archiver will do.
set(CMAKE_AR ar CACHE FILEPATH "")
set(CMAKE_RANLIB true CACHE FILEPATH "")
foreach(language C CXX)
  set(CMAKE_${language}_ARCHIVE_CREATE "<CMAKE_AR> qcS <TARGET> <OBJECTS>")
  set(CMAKE_${language}_ARCHIVE_FINISH "")
endforeach()
set(CMAKE_EXECUTABLE_SUFFIX .wasm)
set(CMAKE_CXX_FLAGS_INIT "-stdlib=libc++")
# `--gc-sections` is the linker's default; what no export reaches is left out.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-stdlib=libc++ -fuse-ld=lld")

# Programs are the build machine's; libraries and headers are the target's.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
