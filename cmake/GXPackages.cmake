# What cpack makes of a build with the preset packages: Debian's packages. scripts/packages builds,
# checks and tries them.
#
# - Libraries that change their SONAME together share a package; those that need Qt have their own,
#   so that users of floors 1 to 3 install nothing of it.
# - The version is that of project(); packaging/debian has what else a package holds.
if(NOT GX_PACKAGES)
  return()
endif()

set(soversion "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")
set(release 1)
set(full_version "${PROJECT_VERSION}-${release}")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME gxuipickers)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${release})
# A name for examples: those who publish packages set their own.
set(GX_PACKAGE_MAINTAINER "The GXUIPickers authors <gxuipickers@example.org>" CACHE STRING "Maintainer of the packages, with an address")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${GX_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/platform" "${PROJECT_BINARY_DIR}/services"
  "${PROJECT_BINARY_DIR}/pickers" "${PROJECT_BINARY_DIR}/hosts/qt" "${PROJECT_BINARY_DIR}/hosts/quick")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # Each package has its own.
file(CONFIGURE OUTPUT packaging/triggers CONTENT "activate-noawait ldconfig\n")

find_program(GX_GZIP gzip REQUIRED)
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file("${PROJECT_SOURCE_DIR}/packaging/debian/changelog.in" "${PROJECT_BINARY_DIR}/packaging/changelog.Debian" @ONLY)

# gx_compress(<file> <result>): packages hold texts compressed, without the time of day.
function(gx_compress file result)
  get_filename_component(name "${result}" DIRECTORY)
  file(MAKE_DIRECTORY "${name}")
  execute_process(COMMAND "${GX_GZIP}" -9nc "${file}" OUTPUT_FILE "${result}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()
gx_compress("${PROJECT_BINARY_DIR}/packaging/changelog.Debian" "${PROJECT_BINARY_DIR}/packaging/changelog.Debian.gz")
gx_compress("${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${PROJECT_BINARY_DIR}/packaging/changelog.gz")

# gx_add_package(<component> NAME <package> SECTION <section> SUMMARY <line> DESCRIPTION <text>
# DEPENDS <package>… RECOMMENDS <package>… [LIBRARY]): the package of an install component.
macro(gx_add_package component)
  cmake_parse_arguments(arg "LIBRARY" "NAME;SECTION;SUMMARY;DESCRIPTION" "DEPENDS;RECOMMENDS" ${ARGN})
  string(TOUPPER "${component}" upper)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME "${arg_NAME}")
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION "${arg_SECTION}")
  # The first line is the summary.
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${arg_SUMMARY}\n${arg_DESCRIPTION}")
  list(JOIN arg_DEPENDS ", " CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS)
  list(JOIN arg_RECOMMENDS ", " CPACK_DEBIAN_${upper}_PACKAGE_RECOMMENDS)
  if(arg_LIBRARY)
    set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA "${PROJECT_BINARY_DIR}/packaging/triggers")
  endif()
  set(documents "${CMAKE_INSTALL_DATAROOTDIR}/doc/${arg_NAME}")
  install(FILES "${PROJECT_SOURCE_DIR}/packaging/debian/copyright" "${PROJECT_BINARY_DIR}/packaging/changelog.Debian.gz"
    "${PROJECT_BINARY_DIR}/packaging/changelog.gz" DESTINATION "${documents}" COMPONENT ${component})
  if(EXISTS "${PROJECT_SOURCE_DIR}/packaging/debian/${component}.lintian-overrides")
    install(FILES "${PROJECT_SOURCE_DIR}/packaging/debian/${component}.lintian-overrides"
      DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides" RENAME "${arg_NAME}" COMPONENT ${component})
  endif()
endmacro()

set(runtime libgxuipickers${soversion})
set(runtime_qt libgxuipickers-qt${soversion})
set(runtime_quick libgxuipickers-quick${soversion})
set(what "GXUIPickers are wheel pickers with which the user of a fitness application\nenters distances, durations, paces, heart rates, weights and the like, exact\nto the last digit.")
gx_add_package(runtime LIBRARY NAME ${runtime} SECTION libs
  SUMMARY "wheel pickers for fitness applications - library"
  DESCRIPTION "${what}\n\nThis package holds the libraries with every picker. They need no toolkit.")
gx_add_package(development NAME libgxuipickers-dev SECTION libdevel
  SUMMARY "wheel pickers for fitness applications - development files"
  DESCRIPTION "${what}\n\nThis package holds the headers, the CMake package (find_package(GXUIPickers\nCOMPONENTS pickers), target gx::pickers), the files for pkg-config\n(gxuipickers-pickers) and the guide. It brings nothing of Qt."
  DEPENDS "${runtime} (= ${full_version})")
gx_add_package(qt LIBRARY NAME ${runtime_qt} SECTION libs
  SUMMARY "wheel pickers for fitness applications - Qt widgets"
  DESCRIPTION "${what}\n\nThis package holds the library with which pickers are Qt widgets."
  DEPENDS "${runtime} (= ${full_version})")
gx_add_package(qt_development NAME libgxuipickers-qt-dev SECTION libdevel
  SUMMARY "wheel pickers for fitness applications - development files for Qt"
  DESCRIPTION "${what}\n\nThis package holds what compiles pickers as Qt widgets: headers, CMake\ncomponent qt (target gx::qt) and the file for pkg-config (gxuipickers-qt)."
  DEPENDS "${runtime_qt} (= ${full_version})" "libgxuipickers-dev (= ${full_version})" qt6-base-dev)
# Those of Qt only recommend each other, and an import needs all of them.
set(qml_modules qml6-module-qtquick qml6-module-qtquick-templates qml6-module-qtqml qml6-module-qtqml-models
  qml6-module-qtqml-workerscript)
gx_add_package(quick LIBRARY NAME ${runtime_quick} SECTION libs
  SUMMARY "wheel pickers for fitness applications - Qt Quick"
  DESCRIPTION "${what}\n\nThis package holds the library behind the QML module."
  DEPENDS "${runtime_qt} (= ${full_version})" ${qml_modules})
gx_add_package(qml NAME qml6-module-gxuipickers SECTION libs
  SUMMARY "wheel pickers for fitness applications - QML module"
  DESCRIPTION "${what}\n\nThis package holds the QML module: after import GXUIPickers a document has a\ntype for each picker, such as DistancePicker. C++ is not needed for it."
  DEPENDS "${runtime_quick} (= ${full_version})" ${qml_modules})
gx_add_package(quick_development NAME libgxuipickers-quick-dev SECTION libdevel
  SUMMARY "wheel pickers for fitness applications - development files for Qt Quick"
  DESCRIPTION "${what}\n\nThis package holds the CMake component quick (target gx::quick) and the file\nfor pkg-config (gxuipickers-quick) with which C++ applications link the QML\nmodule."
  DEPENDS "${runtime_quick} (= ${full_version})" "qml6-module-gxuipickers (= ${full_version})"
    "libgxuipickers-qt-dev (= ${full_version})" qt6-declarative-dev)
gx_add_package(gallery NAME gxuipickers-gallery SECTION utils
  SUMMARY "wheel pickers for fitness applications - demonstration"
  DESCRIPTION "${what}\n\nThis package holds an application that shows all of them: the entry of a\nworkout, settings, and a page for each measurement. Its command is\ngxuipickers-gallery."
  DEPENDS "${runtime_qt} (= ${full_version})" fonts-inter
  RECOMMENDS fonts-dejavu-core fonts-wqy-microhei)

# README and guide with the examples, each where the links of the others look for it.
set(documents "${CMAKE_INSTALL_DATAROOTDIR}/doc/libgxuipickers-dev")
install(FILES "${PROJECT_SOURCE_DIR}/README.md" DESTINATION "${documents}" COMPONENT development)
install(FILES "${PROJECT_SOURCE_DIR}/docs/versions.md" "${PROJECT_SOURCE_DIR}/docs/recordings.md"
  "${PROJECT_SOURCE_DIR}/docs/screen-readers.md" DESTINATION "${documents}/docs" COMPONENT development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/guide" "${PROJECT_SOURCE_DIR}/docs/examples" DESTINATION "${documents}/docs"
  COMPONENT development)

# The application, its icon, and what desktops and catalogues read of it.
set(application org.gxuipickers.Gallery)
install(TARGETS gallery RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT gallery)
install(FILES "${PROJECT_SOURCE_DIR}/packaging/gallery/${application}.desktop" DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/applications"
  COMPONENT gallery)
install(FILES "${PROJECT_SOURCE_DIR}/packaging/gallery/${application}.svg"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor/scalable/apps" COMPONENT gallery)
string(TIMESTAMP date "%Y-%m-%d" UTC)
configure_file("${PROJECT_SOURCE_DIR}/packaging/gallery/${application}.metainfo.xml.in"
  "${PROJECT_BINARY_DIR}/packaging/${application}.metainfo.xml" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/packaging/${application}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/metainfo"
  COMPONENT gallery)
gx_compress("${PROJECT_SOURCE_DIR}/packaging/gallery/gxuipickers-gallery.1" "${PROJECT_BINARY_DIR}/packaging/gxuipickers-gallery.1.gz")
install(FILES "${PROJECT_BINARY_DIR}/packaging/gxuipickers-gallery.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT gallery)

include(CPack)
