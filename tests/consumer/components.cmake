# What find_package(GXUIPickers COMPONENTS …) and pkg-config find of the installed library:
# cmake -D source=… -D build=… -D work=… -D compiler=… -D version=… -D hosts=… -P components.cmake
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE "${work}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${build}" --prefix "${work}/prefix" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${source}/tests/consumer/components" -B "${work}/build" -G Ninja
  "-DCMAKE_CXX_COMPILER=${compiler}" "-DCMAKE_PREFIX_PATH=${work}/prefix" "-DHOSTS=${hosts}" "-DEXPECTED_VERSION=${version}"
  COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)

find_program(pkg_config NAMES pkgconf pkg-config REQUIRED)
file(GLOB found RELATIVE "${work}/prefix" "${work}/prefix/*/pkgconfig" "${work}/prefix/*/*/pkgconfig")
set(ENV{PKG_CONFIG_PATH} "${work}/prefix/${found}")
foreach(part platform services pickers ${hosts})
  string(REPLACE "_" "-" module "gxuipickers-${part}")
  # All that it requires is looked for too.
  execute_process(COMMAND "${pkg_config}" --print-errors --errors-to-stdout --exists "${module} = ${version}" RESULT_VARIABLE result
    OUTPUT_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "pkg-config does not find ${module} ${version}:\n${output}")
  endif()
  execute_process(COMMAND "${pkg_config}" --libs ${module} OUTPUT_VARIABLE libraries COMMAND_ERROR_IS_FATAL ANY)
  set(is_host FALSE)
  if(part IN_LIST hosts)
    set(is_host TRUE)
  endif()
  set(has_qt FALSE)
  if(libraries MATCHES "Qt6")
    set(has_qt TRUE)
  endif()
  if(NOT libraries MATCHES "-lgx_${part} " OR NOT is_host STREQUAL has_qt)
    message(FATAL_ERROR "pkg-config --libs ${module}: ${libraries}")
  endif()
endforeach()
