# Configures a project of the first CMake block of a document, with the library beside its code:
# cmake -D document=… -D source=… -D work=… -D generator=… -P …
file(READ "${document}" text)
string(REGEX MATCH "```cmake\n([^`]*)```" ignored "${text}")
if(NOT CMAKE_MATCH_1)
  message(FATAL_ERROR "${document} has no CMake example.")
endif()
file(REMOVE_RECURSE "${work}")
file(WRITE "${work}/CMakeLists.txt" "${CMAKE_MATCH_1}")
file(WRITE "${work}/main.cpp" "#include <GXUIPickers/GXUIPickers.h>\nint main() {}\n")
file(CREATE_LINK "${source}" "${work}/GXUIPickers" SYMBOLIC)
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${work}" -B "${work}/build" -G "${generator}" RESULT_VARIABLE result ERROR_VARIABLE output
  OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "The CMake example of ${document} fails:\n${output}")
endif()
