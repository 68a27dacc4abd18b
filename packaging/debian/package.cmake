# `packaging/pack.sh BUILD` makes the packages, orravane and orravane-report.

# What Debian alone wants. It goes into the package and not into other installations.
set(changelog ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz)
add_custom_command(
  OUTPUT ${changelog}
  COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog changelog.Debian
  COMMAND ${GZIP} --best --no-name --force changelog.Debian
  DEPENDS debian/changelog
  VERBATIM)
add_custom_target(orravane_changelog ALL DEPENDS ${changelog})
foreach(component window tool)
  set(package_of_window orravane)
  set(package_of_tool orravane-report)
  set(package ${package_of_${component}})
  install(FILES debian/copyright ${changelog} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package}
          COMPONENT ${component} EXCLUDE_FROM_ALL)
  install(FILES debian/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
          RENAME ${package} COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/docs/user-guide.md ${PROJECT_SOURCE_DIR}/docs/sample-report.html
              ${PROJECT_SOURCE_DIR}/docs/windows.md
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/orravane COMPONENT window EXCLUDE_FROM_ALL)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/pictures DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/orravane
        COMPONENT window EXCLUDE_FROM_ALL)
install(FILES debian/people.csv DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/orravane-report/examples
        COMPONENT tool EXCLUDE_FROM_ALL)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL window tool)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orravane)
set(CPACK_PACKAGE_VENDOR "Orravane maintainers")
set(CPACK_PACKAGE_CONTACT "Orravane maintainers <maintainers@orravane.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://${ORRAVANE_SITE_HOST}/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "numerology report for one person")
set(what_it_is
    "Orravane makes a numerology report. From the letters of a name, the date of
birth and today's date it works out twenty-two topics, such as the Life Path,
the Destiny number or the Personal Year, by the Pythagorean letter chart. Each
topic has an explanation and a reading, and most have a number; all of them make
the Comprehensive Reading. Reports can be printed or saved as Rich Text Format.")
set(CPACK_DEBIAN_WINDOW_DESCRIPTION
    "${what_it_is}
.
The package holds the window, orravane, and orravane-document, which makes a
document to hand over as PDF, HTML or Markdown. The command orravane-report,
which gives the same without a display, has a package of its own.")
set(CPACK_DEBIAN_TOOL_DESCRIPTION
    "${what_it_is}
.
The package holds the command orravane-report. It gives readings as text, JSON
or Rich Text Format, or as a document in PDF, HTML or Markdown, for one person
or for every line of a list, and needs neither a display nor the libraries of
one.")

set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

# The libraries are found by dpkg-shlibdeps. The window is laid out for the widths of DejaVu
# Sans. Printing goes through libcups and needs a print server, not the commands of
# cups-client. WeasyPrint makes the PDFs and nothing else.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_WINDOW_PACKAGE_NAME orravane)
set(CPACK_DEBIAN_WINDOW_PACKAGE_DEPENDS "fonts-dejavu-core")
set(CPACK_DEBIAN_WINDOW_PACKAGE_RECOMMENDS "hicolor-icon-theme, orravane-report, qt6-wayland, weasyprint, xdg-utils")
set(CPACK_DEBIAN_WINDOW_PACKAGE_SUGGESTS "cups, pandoc")
set(CPACK_DEBIAN_TOOL_PACKAGE_NAME orravane-report)
set(CPACK_DEBIAN_TOOL_PACKAGE_RECOMMENDS "weasyprint")
set(CPACK_DEBIAN_TOOL_PACKAGE_SUGGESTS "pandoc, parallel")
# Up to 1.1.0 the window's package held the tool as well.
set(CPACK_DEBIAN_TOOL_PACKAGE_BREAKS "orravane (<< 1.2.0)")
set(CPACK_DEBIAN_TOOL_PACKAGE_REPLACES "orravane (<< 1.2.0)")

include(CPack)
