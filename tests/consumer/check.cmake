# Builds and runs the README's example:
# cmake -D way=installed|subproject|fetched -D source=… -D build=… -D work=… -D compiler=… -P
# check.cmake
function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${what} failed (${result}):\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

# What a run before has built of the library stays, so that only changes are compiled again.
file(REMOVE_RECURSE "${work}/prefix")
file(MAKE_DIRECTORY "${work}")

# The first C++ block of the README is the example.
file(READ "${source}/README.md" readme)
string(FIND "${readme}" "```cpp\n" start)
if(start EQUAL -1)
  message(FATAL_ERROR "The README has no C++ example.")
endif()
math(EXPR start "${start} + 7")
string(SUBSTRING "${readme}" ${start} -1 example)
string(FIND "${example}" "```" end)
string(SUBSTRING "${example}" 0 ${end} example)
file(WRITE "${work}/example.cpp" "${example}")

set(options "-DWAY=${way}" "-DCMAKE_CXX_FLAGS=${flags}")
if(way STREQUAL "installed")
  run("Installing" "${CMAKE_COMMAND}" --install "${build}" --prefix "${work}/prefix")
  list(APPEND options "-DCMAKE_PREFIX_PATH=${work}/prefix")
else()
  # A library compiles as one unit, which takes a fourth of the time.
  list(APPEND options "-DGX_SOURCE=${source}" -DGX_ROOMS_AS_UNITS=ON -DGX_LIBRARIES_AS_UNITS=ON -DGX_PRECOMPILE_HEADERS=ON)
endif()
run("Configuring" "${CMAKE_COMMAND}" -S "${source}/tests/consumer" -B "${work}/build" -G Ninja "-DEXAMPLE=${work}/example.cpp"
  "-DCMAKE_CXX_COMPILER=${compiler}" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 ${options})
if(way STREQUAL "fetched")
  # The same targets as in a subproject; that the example finds its headers is what differs.
  run("Compiling" "${CMAKE_COMMAND}" --build "${work}/build" --target example_objects)
  return()
endif()
run("Building" "${CMAKE_COMMAND}" --build "${work}/build" --target example)
run("Running" "${work}/build/example")

# The output that the README promises stands in its next block.
string(REGEX MATCH "```text\n([^`]*)```" ignored "${readme}")
if(NOT output STREQUAL CMAKE_MATCH_1)
  message(FATAL_ERROR "The example printed:\n${output}\nbut the README says:\n${CMAKE_MATCH_1}")
endif()
