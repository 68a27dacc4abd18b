# `packaging/pack.sh BUILD` makes orravane_VERSION-1_ARCHITECTURE.deb in the build folder.

# What Debian alone wants. It goes into the package and not into other installations.
set(changelog ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz)
add_custom_command(
  OUTPUT ${changelog}
  COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog changelog.Debian
  COMMAND ${GZIP} --best --no-name --force changelog.Debian
  DEPENDS debian/changelog
  VERBATIM)
add_custom_target(orravane_changelog ALL DEPENDS ${changelog})
install(FILES debian/copyright ${changelog} DESTINATION ${CMAKE_INSTALL_DOCDIR}
        COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES debian/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
        RENAME orravane COMPONENT debian EXCLUDE_FROM_ALL)
set(CPACK_INSTALL_CMAKE_PROJECTS ${PROJECT_BINARY_DIR} orravane ALL /
                                 ${PROJECT_BINARY_DIR} orravane debian /)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orravane)
set(CPACK_PACKAGE_VENDOR "Orravane maintainers")
set(CPACK_PACKAGE_CONTACT "Orravane maintainers <maintainers@orravane.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://${ORRAVANE_SITE_HOST}/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "numerology report for one person")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Orravane makes a numerology report. From the letters of a name, the date of
birth and today's date it works out twenty-two topics, such as the Life Path,
the Destiny number or the Personal Year, by the Pythagorean letter chart. Each
topic has an explanation and a reading, and most have a number; all of them make
the Comprehensive Reading. Reports can be printed or saved as Rich Text Format.
.
The package holds the window, orravane; orravane-document, which makes a
document to hand over as PDF, HTML or Markdown; and the command orravane-report,
which gives the same without a display, and text, JSON or Rich Text Format as
well, for one person or for every line of a list.")

set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

# The libraries are found by dpkg-shlibdeps. Among them is libqt6svg6, whose package also
# brings the plugin that reads the window's SVG artwork. The window is laid out for the
# widths of DejaVu Sans. Printing goes through libcups and needs a print server, not the
# commands of cups-client. WeasyPrint makes the PDFs and nothing else.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "hicolor-icon-theme, qt6-wayland, weasyprint, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "cups, pandoc, parallel")

include(CPack)
