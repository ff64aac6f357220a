# Windows by Debian's g++-mingw-w64-x86-64-posix. Its programs run under wine, where that is
# installed; `scripts/setup windows` installs both.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# A program runs without the compiler's libraries beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# Programs are the build machine's; libraries and headers are the target's.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# Debian's package wine64 puts its program beside the path. Wine's own files lie in the build
# folder, without what it would install for web pages and .NET.
find_program(GX_WINE NAMES wine64 wine PATHS /usr/lib/wine)
if(GX_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR env "WINEPREFIX=${CMAKE_BINARY_DIR}/wine" WINEDEBUG=-all "WINEDLLOVERRIDES=mscoree,mshtml=" "${GX_WINE}")
endif()
