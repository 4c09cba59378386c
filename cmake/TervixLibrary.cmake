# The shared library, made of the three layers.

add_library(TervixExplorer SHARED
  $<TARGET_OBJECTS:foundation> $<TARGET_OBJECTS:model> $<TARGET_OBJECTS:project>)
add_library(TervixExplorer::TervixExplorer ALIAS TervixExplorer)
target_compile_features(TervixExplorer INTERFACE cxx_std_17)
target_include_directories(TervixExplorer INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
  $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/TervixExplorer>)
target_link_libraries(TervixExplorer PRIVATE ${TERVIX_TVX_WOBJ} ${CMAKE_DL_LIBS})
set_target_properties(TervixExplorer PROPERTIES
  LINKER_LANGUAGE CXX
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}
  BUILD_WITH_INSTALL_RPATH ON # else it is padded with empty entries: the current folder
  # The readers: as built, and as installed.
  INSTALL_RPATH "$ORIGIN;$ORIGIN/tervixexplorer${TERVIX_TVX_WOBJ_RPATH}")
if(WIN32)
  # A class can only be exported there with all its members, also those that are the library's own
  # business, so the symbols are chosen by the list that is kept of them.
  set(exports ${PROJECT_SOURCE_DIR}/tests/package/exports.txt)
  set(definition ${PROJECT_BINARY_DIR}/TervixExplorer.def)
  set(objects
    $<TARGET_OBJECTS:foundation> $<TARGET_OBJECTS:model> $<TARGET_OBJECTS:project>)
  add_custom_command(OUTPUT ${definition}
    COMMAND ${CMAKE_COMMAND} -DNM=${CMAKE_NM} "-DOBJECTS=${objects}" -DEXPORTS=${exports}
      -DDEFINITION=${definition} -P ${PROJECT_SOURCE_DIR}/cmake/WriteDefinition.cmake
    DEPENDS ${objects} ${exports} ${PROJECT_SOURCE_DIR}/cmake/WriteDefinition.cmake
      ${PROJECT_SOURCE_DIR}/cmake/SymbolNames.cmake
    VERBATIM)
  target_sources(TervixExplorer PRIVATE ${definition})
else()
  # Templates of the standard library that the compiler instantiated here are nobody's business.
  target_link_options(TervixExplorer PRIVATE
    "LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map")
  set_target_properties(TervixExplorer PROPERTIES
    LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
endif()
# The design reader is loaded at run time, from beside the library.
add_dependencies(TervixExplorer ZelDsnReader)
