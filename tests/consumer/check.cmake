# Builds and runs the README's example: cmake -D way=installed|subproject -D source=… -D build=… -D work=… -P check.cmake
function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${what} failed (${result}):\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${work}")
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

if(way STREQUAL "installed")
  run("Installing" "${CMAKE_COMMAND}" --install "${build}" --prefix "${work}/prefix")
  set(options "-DCMAKE_PREFIX_PATH=${work}/prefix")
else()
  set(options "-DGX_SOURCE=${source}")
endif()
run("Configuring" "${CMAKE_COMMAND}" -S "${source}/tests/consumer" -B "${work}/build" -G Ninja "-DEXAMPLE=${work}/example.cpp"
  "-DCMAKE_CXX_COMPILER=${compiler}" -DCMAKE_BUILD_TYPE=Debug ${options})
run("Building" "${CMAKE_COMMAND}" --build "${work}/build")
run("Running" "${work}/build/example")

# The output that the README promises stands in its next block.
string(REGEX MATCH "```text\n([^`]*)```" ignored "${readme}")
if(NOT output STREQUAL CMAKE_MATCH_1)
  message(FATAL_ERROR "The example printed:\n${output}\nbut the README says:\n${CMAKE_MATCH_1}")
endif()
