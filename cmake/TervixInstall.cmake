# What `cmake --install` puts in place, in three components: the library, what a program that uses
# it is built with, and the tool.

include(CMakePackageConfigHelpers)

install(TARGETS TervixExplorer EXPORT TervixExplorerTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)

# The readers are no libraries for everybody to link, so they have a folder of their own where the
# loader can be told of it.
set(tervix_readers TervixFormats)
if(TARGET tvx_wobj)
  list(APPEND tervix_readers tvx_wobj)
endif()
install(TARGETS ${tervix_readers} EXPORT TervixExplorerTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
  LIBRARY DESTINATION ${TERVIX_READERS_DIR} COMPONENT library
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(TARGETS ZelDsnReader LIBRARY DESTINATION ${TERVIX_READERS_DIR} COMPONENT library)

install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TervixExplorer
  COMPONENT development FILES_MATCHING PATTERN "*.h")
install(FILES readers/tvx_wobj/tvx_wobj.h readers/ZelDsnReader/ZelDsnReader.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TervixExplorer COMPONENT development)

set(tervix_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TervixExplorer)
install(EXPORT TervixExplorerTargets NAMESPACE TervixExplorer:: DESTINATION ${tervix_package_dir}
  COMPONENT development)
configure_package_config_file(cmake/TervixExplorerConfig.cmake.in
  ${PROJECT_BINARY_DIR}/TervixExplorerConfig.cmake INSTALL_DESTINATION ${tervix_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TervixExplorerConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TervixExplorerConfig.cmake
  ${PROJECT_BINARY_DIR}/TervixExplorerConfigVersion.cmake DESTINATION ${tervix_package_dir}
  COMPONENT development)

# The prefix as seen from the file, so that what was installed can be moved.
file(RELATIVE_PATH tervix_prefix_from_pc /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/TervixExplorer.pc.in ${PROJECT_BINARY_DIR}/TervixExplorer.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/TervixExplorer.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

if(TERVIX_BUILD_TOOLS)
  install(TARGETS tervix RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
endif()
