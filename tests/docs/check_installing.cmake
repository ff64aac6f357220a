# Builds the first picker's example with the CMake project and with the command of pkg-config that
# the chapter about installing shows, against the installed library: cmake -D document=… -D source=…
# -D root=… -D chapter=… -D build=… -D work=… -D compiler=… -D generator=… -P …
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE "${work}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${build}" --prefix "${work}/prefix" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
file(READ "${document}" text)
file(COPY_FILE "${source}" "${work}/main.cpp")

string(REGEX MATCH "```cmake\n([^`]*)```" ignored "${text}")
if(NOT CMAKE_MATCH_1)
  message(FATAL_ERROR "${document} has no CMake example.")
endif()
file(WRITE "${work}/CMakeLists.txt" "${CMAKE_MATCH_1}")
string(REGEX MATCH "```sh\n(c\\+\\+ [^`]*pkg-config[^`]*)```" ignored "${text}")
if(NOT CMAKE_MATCH_1)
  message(FATAL_ERROR "${document} has no command of pkg-config.")
endif()
# The compiler of this build stands in for the system's. Unlike those of users, this folder may have
# spaces in its name, which pkg-config escapes for a second reading by the shell.
file(WRITE "${work}/compile.sh" "set -e\nc++() { \"$CXX\" \"$@\"; }\neval \"$(cat <<END\n${CMAKE_MATCH_1}END\n)\"\n")

# From source: its options are known. What it would build is what was installed above.
string(REGEX MATCH "```sh\ncmake -S \\. -B build/install ([^\n]*)\n" ignored "${text}")
if(NOT CMAKE_MATCH_1)
  message(FATAL_ERROR "${document} does not say how to configure.")
endif()
separate_arguments(options UNIX_COMMAND "${CMAKE_MATCH_1}")
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${root}" -B "${work}/from source" -G "${generator}" "-DCMAKE_CXX_COMPILER=${compiler}"
  --warn-unused-vars ${options} COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET ERROR_VARIABLE warnings)
if(warnings MATCHES "not used by the project")
  message(FATAL_ERROR "${document} names options that are none:\n${warnings}")
endif()
# Those of the other commands need Qt, so they are looked up only.
file(READ "${root}/cmake/GXOptions.cmake" known)
string(REGEX MATCHALL "-DGX_[A-Z_]+=" named "${text}")
foreach(option IN LISTS named)
  string(REGEX REPLACE "-D(.*)=" "option(\\1 " option "${option}")
  string(FIND "${known}" "${option}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "${document} names an option that is none: ${option}")
  endif()
endforeach()

file(READ "${chapter}" promises)
function(check_output program)
  execute_process(COMMAND "${program}" OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
  string(FIND "${promises}" "```text\n${output}```" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "${program} printed:\n${output}\nbut ${chapter} says otherwise.")
  endif()
endfunction()

execute_process(COMMAND "${CMAKE_COMMAND}" -S "${work}" -B "${work}/build" -G "${generator}" "-DCMAKE_PREFIX_PATH=${work}/prefix"
  "-DCMAKE_CXX_COMPILER=${compiler}" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${work}/build" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
check_output("${work}/build/workout")

file(GLOB modules "${work}/prefix/*/pkgconfig" "${work}/prefix/*/*/pkgconfig")
cmake_path(GET modules PARENT_PATH libraries)
set(ENV{PKG_CONFIG_PATH} "${modules}")
set(ENV{LD_LIBRARY_PATH} "${libraries}")
set(ENV{CXX} "${compiler}")
execute_process(COMMAND bash compile.sh WORKING_DIRECTORY "${work}" COMMAND_ERROR_IS_FATAL ANY)
check_output("${work}/workout")
