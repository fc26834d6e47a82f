# Install rules that belong to no folder, the export set, and the Debian packages.
include(CMakePackageConfigHelpers)

set(config_dir "${CMAKE_INSTALL_LIBDIR}/cmake/LCtrlsExPlugin")
configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/LCtrlsExPluginConfig.cmake.in"
  "${CMAKE_CURRENT_BINARY_DIR}/LCtrlsExPluginConfig.cmake"
  INSTALL_DESTINATION "${config_dir}")
write_basic_package_version_file(
  "${CMAKE_CURRENT_BINARY_DIR}/LCtrlsExPluginConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES
  "${CMAKE_CURRENT_BINARY_DIR}/LCtrlsExPluginConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/LCtrlsExPluginConfigVersion.cmake"
  DESTINATION "${config_dir}" COMPONENT development)
install(EXPORT LCtrlsExPluginTargets
  NAMESPACE LCtrlsEx:: DESTINATION "${config_dir}" COMPONENT development)
install(DIRECTORY examples/ DESTINATION "${CMAKE_INSTALL_DATADIR}/lctrlsex/examples"
  COMPONENT runtime FILES_MATCHING PATTERN "*.json" PATTERN "*.csv" PATTERN "*.sqlite"
  PATTERN "*.py")
install(FILES README.md LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT runtime)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lctrlsex)
set(CPACK_PACKAGE_VENDOR "The LCtrlsExPlugin authors")
set(CPACK_PACKAGE_CONTACT "The LCtrlsExPlugin authors <maintainers@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME lctrlsex)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS fonts-dejavu-core)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS
  "fonts-wqy-zenhei, fonts-liberation2, qttranslations5-l10n, libqt5sql5-sqlite, libqt5sql5-psql")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME lctrlsex-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "lctrlsex (= ${PROJECT_VERSION}), qtbase5-dev")
include(CPack)
