# What `cmake --install` and packages hold. A part is a floor or a host, as `find_package` and
# pkg-config name it: platform, services, pickers, qt_gui, qt, quick.
#
# - Each part has a file of targets of its own, so that packages may hold some of them.
# - Install components group parts that lie in one package: runtime and development (floors 1 to 3),
#   qt and qt_development, quick and quick_development, qml, gallery.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(GX_PACKAGE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/GXUIPickers")
set(GX_SENTENCE_platform "views, boxed numbers and the wheel control")
set(GX_SENTENCE_services "style sheet, languages, units and formatters")
set(GX_SENTENCE_pickers "wheel pickers for the measurements of a fitness application")
set(GX_SENTENCE_qt_gui "what hosts of Qt share")
set(GX_SENTENCE_qt "pickers in Qt widgets")
set(GX_SENTENCE_quick "pickers as controls of Qt Quick")

# gx_install_component(<result> <part>): the install component of a part; with _development behind
# it, that of its headers and the like.
function(gx_install_component result part)
  if(part MATCHES "^qt")
    set(component qt)
  elseif(part STREQUAL "quick")
    set(component quick)
  else()
    set(component runtime)
  endif()
  set(${result} ${component} PARENT_SCOPE)
endfunction()

function(gx_development_component result part)
  gx_install_component(component ${part})
  if(component STREQUAL "runtime")
    set(${result} development PARENT_SCOPE)
  else()
    set(${result} ${component}_development PARENT_SCOPE)
  endif()
endfunction()

# gx_install_header(<part> <file>)
function(gx_install_header part file)
  gx_development_component(development ${part})
  install(FILES "${file}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/GXUIPickers" COMPONENT ${development})
endfunction()

# gx_install_part(<part> REQUIRES <module>… REQUIRES_PRIVATE <module>…): the library gx_<part>, its
# file of targets and its pkg-config file, which requires these modules.
function(gx_install_part part)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "REQUIRES;REQUIRES_PRIVATE")
  gx_install_component(component ${part})
  gx_development_component(development ${part})
  install(TARGETS gx_${part} EXPORT GXUIPickers-${part}
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT ${component}
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT ${component} NAMELINK_COMPONENT ${development}
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT ${development})
  install(EXPORT GXUIPickers-${part} NAMESPACE gx:: DESTINATION "${GX_PACKAGE_FOLDER}" COMPONENT ${development})

  string(REPLACE "_" "-" module "gxuipickers-${part}")
  set(requires ${arg_REQUIRES})
  if(BUILD_SHARED_LIBS)
    set(requires_private ${arg_REQUIRES_PRIVATE})
  else()
    # A static library is linked with all that it uses, also without `pkg-config --static`.
    list(APPEND requires ${arg_REQUIRES_PRIVATE})
    set(requires_private)
  endif()
  list(TRANSFORM requires APPEND " = ${PROJECT_VERSION}" REGEX "^gxuipickers-")
  list(JOIN requires ", " requires)
  list(JOIN requires_private ", " requires_private)
  set(flags)
  if(GX_BARE)
    set(flags " -fno-rtti -fno-exceptions")
  endif()
  # The folders follow the file, wherever all is installed. Those of packages stay in the system's,
  # which pkg-config leaves out of what it prints if their names are plain.
  set(prefix "${CMAKE_INSTALL_PREFIX}")
  if(NOT GX_PACKAGES AND NOT IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    file(RELATIVE_PATH up "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
    string(REGEX REPLACE "/$" "" up "${up}")
    set(prefix "\${pcfiledir}/${up}")
  endif()
  foreach(name includedir libdir)
    string(TOUPPER "CMAKE_INSTALL_${name}" variable)
    set(${name} "\${prefix}/${${variable}}")
    if(IS_ABSOLUTE "${${variable}}")
      set(${name} "${${variable}}")
    endif()
  endforeach()
  set(sentence "${GX_SENTENCE_${part}}")
  configure_file("${PROJECT_SOURCE_DIR}/cmake/gxuipickers.pc.in" "${PROJECT_BINARY_DIR}/pkgconfig/${module}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/pkgconfig/${module}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT ${development})
endfunction()

# gx_install_package(): what find_package(GXUIPickers) reads first.
function(gx_install_package)
  file(RELATIVE_PATH qml_folder "/${GX_PACKAGE_FOLDER}" "/${GX_QML_INSTALL_FOLDER}")
  configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/GXUIPickersConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/GXUIPickersConfig.cmake" INSTALL_DESTINATION "${GX_PACKAGE_FOLDER}"
    NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
  # Before 1.0 a minor version may change the interface.
  write_basic_package_version_file("${PROJECT_BINARY_DIR}/GXUIPickersConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
  install(FILES "${PROJECT_BINARY_DIR}/GXUIPickersConfig.cmake" "${PROJECT_BINARY_DIR}/GXUIPickersConfigVersion.cmake"
    DESTINATION "${GX_PACKAGE_FOLDER}" COMPONENT development)
endfunction()
