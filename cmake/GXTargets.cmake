# gx_compile_as_unit(<target> <room> <source>…): the sources of a room are one unit, or lie in that
# of their library.
#
# - GX_ROOMS_AS_UNITS: one unit for each room.
# - GX_LIBRARIES_AS_UNITS too: one for the whole target, or for each name that a folder gives in
#   GX_UNIT. clang-tidy reads the standard library once for each unit.
# - The sources of a target in GX_COMPILED_ALONE stay alone, which shows what they do not include.
function(gx_compile_as_unit target room)
  if(GX_ROOMS_AS_UNITS AND NOT target IN_LIST GX_COMPILED_ALONE)
    if(GX_LIBRARIES_AS_UNITS)
      set(room "${GX_UNIT}")
    endif()
    string(MAKE_C_IDENTIFIER "room ${room}" unit)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    set_source_files_properties(${ARGN} PROPERTIES UNITY_GROUP ${unit})
    # A name within a function may be that of a neighbour's constant.
    target_compile_options(${target} PRIVATE -Wno-error=shadow)
  endif()
endfunction()

# gx_add_floor(<name> FOLDERS <folder>… PUBLIC_HEADERS <header>… DEPENDS <target>…)
#
# Makes the library gx_<name>, known as gx::<name>, of all sources in the folders.
#
# - The library is static or shared, as BUILD_SHARED_LIBS says, and exports what GX_EXPORT marks.
# - A public header is included by other code as <GXUIPickers/Name.h>, wherever it lies; it is
#   installed.
# - Every other header is internal: only the floor's own sources and its tests (through
#   gx_<name>_internal) reach it,
#   and it is not installed.
# - Inside floors 1 to 3, a header is included by its name alone.
# - PKG_CONFIG and PKG_CONFIG_PRIVATE name the modules that its pkg-config file requires.
set(GX_PUBLIC_INCLUDE_FOLDER "${PROJECT_BINARY_DIR}/include")
file(REMOVE_RECURSE "${GX_PUBLIC_INCLUDE_FOLDER}/GXUIPickers")
file(MAKE_DIRECTORY "${GX_PUBLIC_INCLUDE_FOLDER}/GXUIPickers")
# Lets sources of this project include a public header by its name alone.
add_library(gx_names INTERFACE)
target_include_directories(gx_names INTERFACE "${GX_PUBLIC_INCLUDE_FOLDER}/GXUIPickers")

function(gx_add_floor name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FOLDERS;PUBLIC_HEADERS;DEPENDS;PKG_CONFIG;PKG_CONFIG_PRIVATE")
  set(target "gx_${name}")
  add_library(${target})
  add_library(gx::${name} ALIAS ${target})
  # Before 1.0 each minor version may change the binary interface, so it is a part of the SONAME.
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name}
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR} INSTALL_RPATH "$ORIGIN")
  if(NOT CMAKE_SYSTEM_NAME STREQUAL "WASI")
    # A WebAssembly module is never moved; there, such code is only larger.
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  endif()
  target_compile_features(${target} PUBLIC cxx_std_20)
  # g++ looks at system headers where a link leads, away from those beside it; SYSTEM and
  # precompiling make them such.
  target_compile_options(${target} PUBLIC "$<BUILD_INTERFACE:$<$<CXX_COMPILER_ID:GNU>:-fno-canonical-system-headers>>")
  # Lets an application's linker leave out what it does not use (-Wl,--gc-sections).
  target_compile_options(${target} PRIVATE -ffunction-sections -fdata-sections)
  if(target IN_LIST GX_SLIGHTLY_OPTIMISED)
    target_compile_options(${target} PRIVATE -O1)
  endif()
  if(GX_DESCRIBE_TYPES)
    target_compile_options(${target} PRIVATE -g)
  endif()
  if(GX_BARE)
    target_compile_options(${target} PUBLIC -fno-rtti -fno-exceptions)
  endif()
  if(GX_PRECOMPILE_HEADERS)
    target_precompile_headers(${target} PRIVATE <algorithm> <cmath> <functional> <map> <memory> <optional> <string> <vector>)
  endif()

  add_library(${target}_internal INTERFACE)
  set(public_headers ${arg_PUBLIC_HEADERS})
  foreach(folder IN LISTS arg_FOLDERS)
    set(path "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
    file(GLOB sources CONFIGURE_DEPENDS "${path}/*.cpp")
    file(GLOB headers CONFIGURE_DEPENDS "${path}/*.h")
    target_sources(${target} PRIVATE ${sources})
    gx_compile_as_unit(${target} "${folder}" ${sources})
    target_include_directories(${target}_internal INTERFACE "${path}")
    foreach(header IN LISTS headers)
      cmake_path(GET header FILENAME file)
      if(NOT file IN_LIST public_headers)
        set_property(GLOBAL APPEND PROPERTY GX_INTERNAL_HEADERS ${file})
        continue()
      endif()
      list(REMOVE_ITEM public_headers "${file}")
      # Public headers lie side by side, as they will be installed, so that they find each other.
      file(CREATE_LINK "${header}" "${GX_PUBLIC_INCLUDE_FOLDER}/GXUIPickers/${file}" COPY_ON_ERROR SYMBOLIC)
      gx_install_header(${name} "${header}")
    endforeach()
  endforeach()
  if(public_headers)
    message(FATAL_ERROR "gx::${name} has no header ${public_headers}")
  endif()
  set_property(GLOBAL APPEND PROPERTY GX_PUBLIC_HEADERS_OF_${name} ${arg_PUBLIC_HEADERS})
  set_property(GLOBAL APPEND PROPERTY GX_PUBLIC_HEADERS ${arg_PUBLIC_HEADERS})

  target_link_libraries(${target} PUBLIC ${arg_DEPENDS} PRIVATE $<BUILD_INTERFACE:gx_flags> $<BUILD_INTERFACE:${target}_internal>)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:gx_names>)
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${GX_PUBLIC_INCLUDE_FOLDER}>" "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
  gx_install_part(${name} REQUIRES ${arg_PKG_CONFIG} REQUIRES_PRIVATE ${arg_PKG_CONFIG_PRIVATE})

  if(BUILD_SHARED_LIBS AND GX_BUILD_TESTS)
    # Internal classes are not exported: their tests link the same objects as a static library.
    add_library(${target}_static STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:${target}>)
    list(TRANSFORM arg_DEPENDS APPEND _static REGEX "^gx_")
    target_link_libraries(${target}_static PUBLIC ${arg_DEPENDS})
    target_include_directories(${target}_static PUBLIC "${GX_PUBLIC_INCLUDE_FOLDER}")
    target_compile_options(${target}_static PUBLIC $<TARGET_PROPERTY:${target},INTERFACE_COMPILE_OPTIONS>)
  endif()
endfunction()

# gx_add_umbrella_header(<floor>…): <GXUIPickers/GXUIPickers.h>, which includes every public header
# of these floors.
function(gx_add_umbrella_header)
  # The reason comes before the errors that an older standard makes of the headers' keywords.
  set(lines "#pragma once\n\n#if !defined(__cpp_concepts)\n#error \"GXUIPickers needs C++20: compile with -std=c++20\"\n#endif\n\n\
/// Everything: views, services and all pickers.\n\n")
  foreach(name IN LISTS ARGN)
    get_property(headers GLOBAL PROPERTY GX_PUBLIC_HEADERS_OF_${name})
    foreach(header IN LISTS headers)
      string(APPEND lines "#include <GXUIPickers/${header}>\n")
    endforeach()
  endforeach()
  file(CONFIGURE OUTPUT "${GX_PUBLIC_INCLUDE_FOLDER}/GXUIPickers/GXUIPickers.h" CONTENT "${lines}")
  set_property(GLOBAL APPEND PROPERTY GX_PUBLIC_HEADERS GXUIPickers.h)
  gx_install_header(pickers "${GX_PUBLIC_INCLUDE_FOLDER}/GXUIPickers/GXUIPickers.h")
endfunction()

# gx_add_part(<name> FOLDERS <folder>… DEPENDS <target>…): a static library of all sources in the
# folders but main.cpp, for a module of a host or, natively, for its tests. It is not installed.
function(gx_add_part name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FOLDERS;DEPENDS")
  add_library(${name} STATIC)
  if(NOT CMAKE_SYSTEM_NAME STREQUAL "WASI")
    set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  endif()
  foreach(folder IN LISTS arg_FOLDERS)
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp")
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    target_sources(${name} PRIVATE ${sources})
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
    gx_compile_as_unit(${name} "${folder}" ${sources})
  endforeach()
  target_compile_options(${name} PRIVATE -ffunction-sections -fdata-sections)
  if(GX_PRECOMPILE_HEADERS)
    target_precompile_headers(${name} PRIVATE <GXUIPickers/UIWindow.h>)
  endif()
  target_link_libraries(${name} PUBLIC ${arg_DEPENDS} PRIVATE gx_flags)
endfunction()
