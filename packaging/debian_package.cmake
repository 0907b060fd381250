# `cpack` in the build folder makes quendal_VERSION_ARCHITECTURE.deb.
quendal_packed(${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog doc/changelog.Debian.gz)
quendal_packed(${PROJECT_SOURCE_DIR}/CHANGELOG.md doc/changelog.gz)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/doc/changelog.Debian.gz ${CMAKE_CURRENT_BINARY_DIR}/doc/changelog.gz
  TYPE DOC COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES debian/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
  RENAME quendal COMPONENT debian EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quendal)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "titration in school chemistry: watch, calculate, understand")
set(CPACK_PACKAGE_DESCRIPTION
"Quendal teaches titration to learners of 15 to 18, in German. On a workbench
a pipette empties, a burette adds reagent mL by mL, and particles fall, swarm
and react. The learner calculates points of the titration curve, alone or led
by a tutor who checks every step, helps in stages and gives a mark at the end.
.
Seven titrations can be watched and calculated: strong acid, weak acid and
chloride with pH, potential and conductivity. Seven learning animations show
what happens between particles. A teacher can lock what may be used and gets
the results.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL Unspecified debian)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
# The maintainers own no domain; this top level is reserved for such names.
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Quendal maintainers <maintainers@quendal.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded while the program runs and no linker sees: the icons,
# the German words of the library's own menus, and a font in the widths that the forms are laid out in.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "breeze-icon-theme, fonts-liberation, qt6-translations-l10n")
# VNC for computers without a screen; the same program as a window of its own under Wayland.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-qpa-plugins, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
