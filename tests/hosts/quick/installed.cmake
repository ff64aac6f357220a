# The module works from where it is installed: in Qt's test runner, and linked into the program of
# the guide's chapter, whose blocks are these files.
file(REMOVE_RECURSE "${work}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${build}" --prefix "${work}/prefix" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
execute_process(COMMAND "${runner}" -import "${work}/prefix/${folder}" -input "${tests}/tst_wheel.qml" COMMAND_ERROR_IS_FATAL ANY)

execute_process(COMMAND "${CMAKE_COMMAND}" -S "${source}/docs/examples/qt_quick" -B "${work}/build" -G Ninja
  "-DCMAKE_CXX_COMPILER=${compiler}" "-DCMAKE_PREFIX_PATH=${work}/prefix" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${work}/build" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
execute_process(COMMAND "${work}/build/workout" --close OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
file(READ "${source}/docs/guide/qt-quick.md" chapter)
string(FIND "${chapter}" "```text\n${output}```" at)
if(output STREQUAL "" OR at EQUAL -1)
  message(FATAL_ERROR "The program printed:\n${output}\nbut docs/guide/qt-quick.md says otherwise.")
endif()
