# The day on which this version came out, from the change log: its heading is "## VERSION - DAY".

file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md tervix_heading
  REGEX "^## ${PROJECT_VERSION} - [0-9]+-[0-9]+-[0-9]+$")
if(NOT tervix_heading)
  message(FATAL_ERROR "CHANGELOG.md has no heading \"## ${PROJECT_VERSION} - YEAR-MONTH-DAY\"")
endif()
string(REGEX MATCH "[0-9]+-[0-9]+-[0-9]+$" TERVIX_RELEASE_DATE "${tervix_heading}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
