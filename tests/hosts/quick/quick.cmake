# An application that links the module, and apart from it what the module draws with: a process has
# one of these only, the module's or the test's.
find_package(Qt6 6.4 REQUIRED COMPONENTS Test Widgets)
set(folder "${CMAKE_CURRENT_SOURCE_DIR}/hosts/quick")
set(environment QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software "XDG_RUNTIME_DIR=${CMAKE_CURRENT_BINARY_DIR}")
if(GX_BUILD_UNIT_TESTS)
  set(scene "${PROJECT_SOURCE_DIR}/hosts/quick/Scene")
  set(host "${PROJECT_SOURCE_DIR}/hosts/quick/Surroundings")
  set(gui gx_qt_gui)
  if(TARGET gx_qt_gui_static) # A shared library does not export what the scene draws with.
    set(gui gx_qt_gui_static)
  endif()
  add_executable(quick_host_test "${folder}/QuickAccessibleItemTest.cpp" support/qt_main.cpp)
  target_compile_definitions(quick_host_test PRIVATE GX_EXAMPLE_FOLDER="${PROJECT_SOURCE_DIR}/docs/examples/quick")
  target_link_libraries(quick_host_test PRIVATE gx::quick gx_qt_gui)
  set(scene_tests "${folder}/QuickNodeTest.cpp" "${folder}/QuickPaintedNodeTest.cpp" "${folder}/QuickHostTest.cpp")
  if(GX_TESTS_AS_UNITS)
    gx_units_of_tests(scene_tests quick_scene_test ${scene_tests})
  endif()
  add_executable(quick_scene_test ${scene_tests} "${scene}/QuickCanvas.cpp" "${scene}/QuickNode.cpp" "${scene}/QuickPaintedNode.cpp"
    "${host}/QuickHost.cpp" support/qt_main.cpp)
  target_include_directories(quick_scene_test PRIVATE "${scene}" "${host}")
  target_link_libraries(quick_scene_test PRIVATE ${gui} gx_qt_gui_internal)
  set(leaks)
  if(GX_SANITIZE) # Qt and the font library keep what they have loaded until the end.
    set(leaks ASAN_OPTIONS=detect_leaks=0)
  endif()
  foreach(name quick_host_test quick_scene_test)
    target_link_libraries(${name} PRIVATE gx_test_support Qt6::Quick Qt6::Widgets Qt6::Test)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment};${leaks}")
  endforeach()
endif()

# The QML module, in Qt's own test runner: nothing is compiled for it.
get_target_property(qt_programs Qt6::qmake IMPORTED_LOCATION)
cmake_path(GET qt_programs PARENT_PATH qt_programs)
find_program(GX_QMLTESTRUNNER qmltestrunner HINTS "${qt_programs}" /usr/lib/qt6/bin)
find_program(GX_QMLLINT qmllint HINTS "${qt_programs}" /usr/lib/qt6/bin)
if(NOT GX_QMLTESTRUNNER OR NOT GX_QMLLINT)
  message(STATUS "Tests of the QML module are left out: they need Debian's qt6-declarative-dev-tools and qml6-module-qttest")
  return()
endif()

if(NOT GX_SANITIZE) # The runner itself is built without the checks.
  add_test(NAME quick_test COMMAND "${GX_QMLTESTRUNNER}" -import "${PROJECT_BINARY_DIR}/qml" -input "${folder}")
  add_test(NAME quick_installed COMMAND "${CMAKE_COMMAND}" -D "build=${PROJECT_BINARY_DIR}"
    -D "work=${CMAKE_CURRENT_BINARY_DIR}/quick installed" -D "folder=${GX_QML_INSTALL_FOLDER}" -D "runner=${GX_QMLTESTRUNNER}"
    -D "tests=${folder}" -D "source=${PROJECT_SOURCE_DIR}" -D "compiler=${CMAKE_CXX_COMPILER}" -P "${folder}/installed.cmake")
  set_tests_properties(quick_test quick_installed PROPERTIES ENVIRONMENT "${environment};QML_XHR_ALLOW_FILE_READ=1")
  set_tests_properties(quick_test quick_installed PROPERTIES LABELS slow)
endif()
add_test(NAME quick_lint COMMAND "${CMAKE_COMMAND}" -D "source=${PROJECT_SOURCE_DIR}" -D "modules=${PROJECT_BINARY_DIR}/qml"
  -D "qmllint=${GX_QMLLINT}" -P "${folder}/lint.cmake")
