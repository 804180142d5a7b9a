# What an installation holds, and the Debian package made of it.

install(TARGETS wayloomctl RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(FILES docs/man/wayloomctl.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES packaging/wayloomctl.bash RENAME wayloomctl
  DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
install(FILES packaging/copyright NOTICE README.md DESTINATION "${CMAKE_INSTALL_DOCDIR}")

# Loaded when they are needed, so not found by dpkg-shlibdeps.
string(REGEX MATCH "^[0-9]+" icu_major "${ICU_VERSION}")
set(package_depends libcurl4 "libicu${icu_major}")
if(WAYLOOM_SCREENS)
  install(TARGETS wayloom RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  install(FILES docs/man/wayloom.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  install(FILES packaging/wayloom.bash RENAME wayloom
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
  install(FILES packaging/wayloom.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES resources/icons/wayloom.svg
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
  list(APPEND package_depends fonts-dejavu-core fonts-noto-core libqt6svg6 qml6-module-qtqml
    qml6-module-qtqml-models qml6-module-qtqml-workerscript qml6-module-qtquick
    qml6-module-qtquick-templates qml6-module-qtquick-window)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wayloom)
set(CPACK_PACKAGE_CONTACT "The developers of Wayloom <wayloom@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Decides where a phone says it is")
set(CPACK_PACKAGE_DESCRIPTION "A position chosen on a map, drifting if wanted, or a drive on real \
roads, handed to a phone as settings files. Map, search and addresses need no network.")
set(CPACK_PACKAGE_FILE_NAME "${CPACK_PACKAGE_NAME}_${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE zstd)
list(JOIN package_depends ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "fonts-wqy-microhei, libgl1-mesa-dri, libqt6positioning6-plugins, qt6-wayland")
include(CPack)
