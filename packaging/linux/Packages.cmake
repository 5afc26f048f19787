# The Debian packages, made of the installation's components by scripts/package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnwick)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_VENDOR Ondel)
set(CPACK_PACKAGE_CONTACT "Ondel Tarnwick <tarnwick@${OndelSiteHost}>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://${OndelSiteHost}/tarnwick")
# Installs with the prefix that the files have on the user's machine, and DESTDIR before it.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/package)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL tarnwick tarnwick-host)
if(ONDEL_BUILD_LIBRARIES)
  list(APPEND CPACK_COMPONENTS_ALL libondel0 libtarnwick0 libtarnwick-dev)
endif()
# The symbols go into packages of their own, such as tarnwick-dbgsym.
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE none) # scripts/package compresses what it makes of them
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# The libraries that a package needs are read off its files. Of our own libraries, one needs the other in exactly its version,
# which is said below.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/packaging/kit)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

# package(NAME SECTION utils SUMMARY … DESCRIPTION … [DEPENDS …] [RECOMMENDS …] [SUGGESTS …] [BREAKS …] [REPLACES …])
macro(package name)
  cmake_parse_arguments(PACKAGE "" "SUMMARY;DESCRIPTION;SECTION;DEPENDS;RECOMMENDS;SUGGESTS;BREAKS;REPLACES" "" ${ARGN})
  string(TOUPPER ${name} PACKAGE_UPPER)
  set(CPACK_DEBIAN_${PACKAGE_UPPER}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${PACKAGE_UPPER}_DESCRIPTION "${PACKAGE_SUMMARY}\n${PACKAGE_DESCRIPTION}")
  foreach(field SECTION DEPENDS RECOMMENDS SUGGESTS BREAKS REPLACES)
    if(PACKAGE_${field})
      set(CPACK_DEBIAN_${PACKAGE_UPPER}_PACKAGE_${field} "${PACKAGE_${field}}")
    endif()
  endforeach()
  if(NOT ${name} STREQUAL ${CPACK_PACKAGE_NAME})
    set(CPACK_DEBIAN_${PACKAGE_UPPER}_PACKAGE_SOURCE ${CPACK_PACKAGE_NAME})
  endif()
endmacro()

# QML modules are loaded by name, so that nothing can read them off, and so is what reads SVG, which Debian 12 has in the
# library's own package.
set(views_need "qml6-module-qtqml, qml6-module-qtqml-workerscript, qml6-module-qtquick, qml6-module-qtquick-layouts, qml6-module-qtquick-templates, qml6-module-qtquick-window, qt6-svg-plugins | libqt6svg6 (<< 6.6)")

# Whoever downloads the window's package alone can install it: it depends on none of the others. libcurl is loaded by the first
# request, so that nothing can read it off either.
package(tarnwick SECTION utils
  SUMMARY "disk speed and volume analyzer"
  DESCRIPTION
"Measures what a disk really does: sequential write and read, random
operations one at a time, and file operations, with plain blocking system
calls past the file cache. Keeps the last 50 runs, compares them, shares them
as pictures, and shows what the file system can do and what the drive says of
its own health. Leaves nothing on the disk.
.
The package has the window. The package tarnwick-host measures in a terminal."
  DEPENDS "libcurl4, qml6-module-qtquick-controls, ${views_need}"
  RECOMMENDS "ca-certificates, qt6-translations-l10n, qt6-wayland, tarnwick-host, udisks2, xdg-utils"
  SUGGESTS "gir1.2-gtk-4.0, python3-nautilus")

# Before 0.2 one package had all. What was built on the way to 0.2.0 has that number already.
package(tarnwick-host SECTION utils
  SUMMARY "disk benchmarks and volume facts in a terminal"
  DESCRIPTION
"Measures what a disk really does, with the engine of the window that the
package tarnwick has, for terminals and scripts: figures as text or JSON, run
files, comparisons, and the history that the window shows. Tells what the file
system of a folder can do and what the drive says of its own health. Needs no
display.
.
Pictures of runs are drawn by a program of the package tarnwick."
  RECOMMENDS "tarnwick, udisks2"
  BREAKS "tarnwick (<< 0.2.0)"
  REPLACES "tarnwick (<= 0.2.0)")

package(libondel0 SECTION libs
  SUMMARY "disk benchmark engine, volume facts and drive health"
  DESCRIPTION
"The engine that Ondel Tarnwick measures with, what holds a folder, and what a
drive says of its own health, for other programs. Has a C interface beside the
C++ one.
.
This package has the library that such programs load."
  SUGGESTS "udisks2")

package(libtarnwick0 SECTION libs
  SUMMARY "records and views of disk benchmarks"
  DESCRIPTION
"Records, files, comparisons and texts of disk benchmarks (libtarnwick), and
the charts, cards and the whole view of Ondel Tarnwick (libtarnwick-views), for
other programs.
.
This package has the libraries that such programs load."
  DEPENDS "libondel0 (= ${PROJECT_VERSION}), ${views_need}"
  SUGGESTS "tarnwick, udisks2")

# What the headers name, and what CMake's package looks for.
package(libtarnwick-dev SECTION libdevel
  SUMMARY "disk benchmarks in programs of your own (development files)"
  DESCRIPTION
"With the libraries of Ondel Tarnwick another program measures disks, shows the
charts, and hands its runs over.
.
This package has headers, what CMake and pkg-config look for, a page on linking
the libraries, and three small programs that do."
  DEPENDS "libondel0 (= ${PROJECT_VERSION}), libtarnwick0 (= ${PROJECT_VERSION}), qt6-base-dev (>= 6.4), qt6-declarative-dev (>= 6.4)"
  SUGGESTS "cmake, pkg-config, qml6-module-qtquick-controls, tarnwick-host")

# What links the libraries depends on the version that first had what it uses. scripts/symbols writes that down.
foreach(library libondel0 libtarnwick0)
  string(TOUPPER ${library} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA
    ${PROJECT_BINARY_DIR}/symbols/${library}/symbols ${CMAKE_CURRENT_SOURCE_DIR}/triggers)
endforeach()
include(CPack)
