# The Debian packages: the window, the tool without the toolkit, and the tables that both read. `cpack` in a build of the
# preset `package` makes them; tools/release.sh does it all.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnvik)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_COMPONENTS_ALL tarnvik tarnvik-check tarnvik-data)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_SET_DESTDIR ON) # /etc is none of the prefix
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Tarnvik developers <post@tarnvik.example>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://tarnvik.example)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(same "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

set(CPACK_DEBIAN_TARNVIK_PACKAGE_NAME tarnvik)
set(CPACK_DEBIAN_TARNVIK_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TARNVIK_PACKAGE_DEPENDS "tarnvik-data ${same}")
set(CPACK_DEBIAN_TARNVIK_PACKAGE_RECOMMENDS "shared-mime-info, xdg-utils")
set(CPACK_DEBIAN_TARNVIK_PACKAGE_SUGGESTS "tarnvik-check")
set(CPACK_DEBIAN_TARNVIK_DESCRIPTION "bolted timber connections to Eurocode 5
A structural engineer checks one bolted timber connection to EN 1995-1-1 and
sees the answer change with every input: 15 kinds of connection, bolts M12 to
M24, tooth-plate connectors, 35 layouts with their minimum distances,
splitting, a step-by-step calculation, a printed report and a check sheet.
.
This package has the window, its manual, and what paints reports and pictures
for tarnvik-check.")

set(CPACK_DEBIAN_TARNVIK-CHECK_PACKAGE_NAME tarnvik-check)
set(CPACK_DEBIAN_TARNVIK-CHECK_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TARNVIK-CHECK_PACKAGE_DEPENDS "tarnvik-data ${same}")
set(CPACK_DEBIAN_TARNVIK-CHECK_PACKAGE_SUGGESTS "tarnvik")
set(CPACK_DEBIAN_TARNVIK-CHECK_DESCRIPTION "bolted timber connections to Eurocode 5, on the command line
Checks bolted timber connections to EN 1995-1-1 without a screen: one, a
spreadsheet of them, a range of an input, all load cases of a joint, or a
search for the bolts that hold; results as text, JSON or CSV, check sheets as
HTML.
.
Printed reports (--report) and pictures (--pictures) need the package tarnvik
as well.")

set(CPACK_DEBIAN_TARNVIK-DATA_PACKAGE_NAME tarnvik-data)
set(CPACK_DEBIAN_TARNVIK-DATA_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_TARNVIK-DATA_DESCRIPTION "bolted timber connections to Eurocode 5, tables
Materials, sections, and the setup with the partial factors that tarnvik and
tarnvik-check start with. They lie in /etc/tarnvik, where an administrator may
edit them.")
set(conffiles)
foreach(name ${TARNVIK_DATA})
  string(APPEND conffiles "/etc/tarnvik/${name}\n")
endforeach()
file(WRITE ${TARNVIK_MADE}/conffiles "${conffiles}")
set(CPACK_DEBIAN_TARNVIK-DATA_PACKAGE_CONTROL_EXTRA ${TARNVIK_MADE}/conffiles)

include(CPack)
