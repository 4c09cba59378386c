# Fails unless LIBRARY exports exactly the functions EXPORTS: a sorted list of names, one for each
# overload.

cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/SymbolNames.cmake)
tervix_exported_names(${LIBRARY} found)
list(TRANSFORM found REPLACE "\\(.*" "")
list(SORT found)
if(NOT found STREQUAL EXPORTS)
  message(FATAL_ERROR "${LIBRARY} exports\n  ${found}\nand not\n  ${EXPORTS}")
endif()
