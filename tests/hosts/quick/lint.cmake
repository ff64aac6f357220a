# No document of the module or of an example has anything to say for Qt's own checker.
file(GLOB documents "${source}/hosts/quick/qml/*.qml" "${source}/docs/examples/*/*.qml"
  "${source}/packaging/try/*.qml")
list(LENGTH documents count)
if(count LESS 20)
  message(FATAL_ERROR "Only ${count} documents were found")
endif()
execute_process(COMMAND "${qmllint}" -I "${modules}" ${documents}
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0 OR output MATCHES "(Warning|Error|Info):")
  message(FATAL_ERROR "${output}")
endif()
