# What `cmake --install` puts in place, and the package files for find_package(TervixExplorer).

include(CMakePackageConfigHelpers)

set(tervix_targets TervixExplorer TervixFormats)
if(TARGET tvx_wobj)
  list(APPEND tervix_targets tvx_wobj)
endif()
install(TARGETS ${tervix_targets} EXPORT TervixExplorerTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})

# The design reader is no library to link: it is loaded from beside the library.
if(WIN32)
  install(TARGETS ZelDsnReader LIBRARY DESTINATION ${CMAKE_INSTALL_BINDIR})
else()
  install(TARGETS ZelDsnReader LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()

install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TervixExplorer
  FILES_MATCHING PATTERN "*.h")
install(FILES readers/tvx_wobj/tvx_wobj.h readers/ZelDsnReader/ZelDsnReader.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TervixExplorer)

set(tervix_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TervixExplorer)
install(EXPORT TervixExplorerTargets NAMESPACE TervixExplorer:: DESTINATION ${tervix_package_dir})
configure_package_config_file(cmake/TervixExplorerConfig.cmake.in
  ${PROJECT_BINARY_DIR}/TervixExplorerConfig.cmake INSTALL_DESTINATION ${tervix_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TervixExplorerConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TervixExplorerConfig.cmake
  ${PROJECT_BINARY_DIR}/TervixExplorerConfigVersion.cmake DESTINATION ${tervix_package_dir})

if(TERVIX_BUILD_TOOLS)
  install(TARGETS tervix RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
