# What `cpack` makes.

# For Windows, an archive with everything.
if(WIN32)
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION .
    COMPONENT library)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_NAME tervixexplorer)
  set(CPACK_PACKAGE_FILE_NAME ${TERVIX_ARCHIVE})
  set(CPACK_STRIP_FILES ON)
  include(CPack)
  return()
endif()

# The Debian packages: one for each component of the installation. Debian lays files out below /usr
# and wants some more in each package, so this takes TERVIX_DEBIAN, which the preset "debian" sets.

if(NOT TERVIX_DEBIAN)
  return()
endif()
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  message(FATAL_ERROR "TERVIX_DEBIAN takes CMAKE_INSTALL_PREFIX=/usr")
endif()
if(NOT TARGET tervix_usage)
  message(FATAL_ERROR "TERVIX_DEBIAN takes the tool with its man page")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tervixexplorer)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_CONTACT "The TervixExplorer developers <${TERVIX_MAINTAINER_ADDRESS}>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL library development tool)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(TERVIX_DEBIAN_VERSION ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
set(library_package libtervixexplorer${PROJECT_VERSION_MAJOR})
set(same_library "${library_package} (= ${TERVIX_DEBIAN_VERSION})")

# What dpkg and lintian want in every package: copyright, change logs, reasons for exceptions.
set(debian ${PROJECT_SOURCE_DIR}/packaging/debian)
set(made ${PROJECT_BINARY_DIR}/debian)
execute_process(COMMAND date --utc --date=${TERVIX_RELEASE_DATE} --rfc-email
  OUTPUT_VARIABLE TERVIX_DEBIAN_DATE OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file(${debian}/changelog.in ${made}/changelog.Debian @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${made}/changelog COPYONLY)
execute_process(COMMAND ${TERVIX_GZIP} -9nkf ${made}/changelog.Debian ${made}/changelog
  COMMAND_ERROR_IS_FATAL ANY)

function(tervix_debian_package component package section summary description)
  string(TOUPPER ${component} key)
  set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${package} PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
  install(FILES ${debian}/copyright ${made}/changelog.gz ${made}/changelog.Debian.gz
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component})
  configure_file(${debian}/lintian-overrides.in ${made}/${package}.overrides @ONLY)
  if(EXISTS ${debian}/${component}.lintian-overrides)
    file(READ ${debian}/${component}.lintian-overrides more)
    file(APPEND ${made}/${package}.overrides "${more}")
  endif()
  install(FILES ${made}/${package}.overrides RENAME ${package}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT ${component})
endfunction()

set(purpose "TervixExplorer gives the front ends of a circuit-simulation suite one shared
model of a simulation project on disk: its design, schematics and simulation
profiles, where every file of a run lies, and the operations that keep all of
it consistent.\n.\n")
tervix_debian_package(library ${library_package} libs "shared model of circuit-simulation projects"
  "${purpose}This package holds the shared library and the readers of project and design
files that it loads.")
tervix_debian_package(development libtervixexplorer-dev libdevel
  "shared model of circuit-simulation projects - development files"
  "${purpose}This package holds the headers, and the files by which CMake and pkg-config
find the library.")
tervix_debian_package(tool tervix electronics
  "look into and change circuit-simulation projects"
  "${purpose}This package holds the command-line tool tervix, which shows a project and
changes it together with all files that belong to what changes.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${same_library}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${same_library}")

# For packages of programs that use the library, and for the loader's cache.
file(WRITE ${made}/shlibs "libTervixExplorer ${PROJECT_VERSION_MAJOR} ${library_package} (>= ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${made}/shlibs ${debian}/triggers)

include(CPack)
