# gx_add_floor(<name> FOLDERS <folder>… DEPENDS <target>…)
#
# Makes the library gx_<name>, known as gx::<name>, of all sources in the folders. A header is included by its
# name alone, as in #include "UIPickerView.h", wherever it lies.
function(gx_add_floor name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FOLDERS;DEPENDS")
  set(target "gx_${name}")
  add_library(${target} STATIC)
  add_library(gx::${name} ALIAS ${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name} POSITION_INDEPENDENT_CODE ON)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_link_libraries(${target} PUBLIC ${arg_DEPENDS} PRIVATE $<BUILD_INTERFACE:gx_flags>)
  foreach(folder IN LISTS arg_FOLDERS)
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp")
    file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h")
    target_sources(${target} PRIVATE ${sources})
    file(RELATIVE_PATH place "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
    target_include_directories(${target} PUBLIC
      "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/${folder}>"
      "$<INSTALL_INTERFACE:include/GXUIPickers/${place}>")
    install(FILES ${headers} DESTINATION "include/GXUIPickers/${place}")
  endforeach()
  install(TARGETS ${target} EXPORT GXUIPickersTargets)
endfunction()
