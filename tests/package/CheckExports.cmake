cmake_minimum_required(VERSION 3.22)
# Compares the symbols that the library exports with the list in the repository. To record a
# deliberate change, run it with -DRECORD=ON.
execute_process(COMMAND ${NM} -D --defined-only --demangle ${LIBRARY}
  OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "[0-9a-f]* [A-Za-z] ([^\n]*)\n" "\\1\n" names "${symbols}")
string(REPLACE "[abi:cxx11]" "" names "${names}")
string(REPLACE "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"
  "std::string" names "${names}")
string(REPLACE ";" "," names "${names}")
string(REGEX REPLACE "\n" ";" names "${names}")
list(FILTER names EXCLUDE REGEX "^$|__asan|__odr_asan|__ubsan")
list(SORT names)
list(REMOVE_DUPLICATES names)
string(JOIN "\n" actual ${names})
if(RECORD)
  file(WRITE ${EXPECTED} "${actual}\n")
endif()
file(READ ${EXPECTED} expected)
if(NOT "${actual}\n" STREQUAL "${expected}")
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/exports-found.txt "${actual}\n")
  execute_process(COMMAND diff -u ${EXPECTED} ${CMAKE_CURRENT_BINARY_DIR}/exports-found.txt)
  message(FATAL_ERROR "The exported symbols are not those of ${EXPECTED}")
endif()
