# The QML module, in Qt's own test runner: nothing is compiled for it.
get_target_property(qt_programs Qt6::qmake IMPORTED_LOCATION)
cmake_path(GET qt_programs PARENT_PATH qt_programs)
find_program(GX_QMLTESTRUNNER qmltestrunner HINTS "${qt_programs}" /usr/lib/qt6/bin)
find_program(GX_QMLLINT qmllint HINTS "${qt_programs}" /usr/lib/qt6/bin)
if(NOT GX_QMLTESTRUNNER OR NOT GX_QMLLINT)
  message(STATUS "Tests of the QML module are left out: they need Debian's qt6-declarative-dev-tools and qml6-module-qttest")
  return()
endif()

set(folder "${CMAKE_CURRENT_SOURCE_DIR}/hosts/quick")
set(environment QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software "XDG_RUNTIME_DIR=${CMAKE_CURRENT_BINARY_DIR}")
if(NOT GX_SANITIZE) # The runner itself is built without the checks.
  add_test(NAME quick_test COMMAND "${GX_QMLTESTRUNNER}" -import "${PROJECT_BINARY_DIR}/qml" -input "${folder}")
  add_test(NAME quick_installed COMMAND "${CMAKE_COMMAND}" -D "build=${PROJECT_BINARY_DIR}"
    -D "work=${CMAKE_CURRENT_BINARY_DIR}/quick installed" -D "folder=${GX_QML_INSTALL_FOLDER}" -D "runner=${GX_QMLTESTRUNNER}"
    -D "tests=${folder}" -P "${folder}/installed.cmake")
  set_tests_properties(quick_test quick_installed PROPERTIES ENVIRONMENT "${environment}")
  set_tests_properties(quick_installed PROPERTIES LABELS slow)
endif()
add_test(NAME quick_lint COMMAND "${CMAKE_COMMAND}" -D "source=${PROJECT_SOURCE_DIR}" -D "modules=${PROJECT_BINARY_DIR}/qml"
  -D "qmllint=${GX_QMLLINT}" -P "${folder}/lint.cmake")
