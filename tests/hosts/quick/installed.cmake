# The module works from where it is installed.
file(REMOVE_RECURSE "${work}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${build}" --prefix "${work}" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
execute_process(COMMAND "${runner}" -import "${work}/${folder}" -input "${tests}/tst_wheel.qml" COMMAND_ERROR_IS_FATAL ANY)
