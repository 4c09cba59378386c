# The README holds the sample program as it stands in examples/, and the tree as the tool prints it;
# the program runs.
cmake_minimum_required(VERSION 3.22)
file(READ ${ROOT}/README.md readme)
if(EMULATOR)
  set(drive Z:) # where programs for Windows see the files of this system
endif()

# The programs end with their tree alive on purpose: destroying a profile saves its include list.
set(ENV{ASAN_OPTIONS} detect_leaks=0)

function(expect_in_readme text what)
  string(FIND "${readme}" "${text}" place)
  if(place EQUAL -1)
    message(FATAL_ERROR "The README does not hold ${what}:\n${text}")
  endif()
endfunction()

file(READ ${ROOT}/examples/list_profiles.cpp program)
expect_in_readme("${program}" "examples/list_profiles.cpp")

execute_process(COMMAND ${EMULATOR} ${TERVIX} show examples/amp-flat/amp.tvp WORKING_DIRECTORY ${ROOT}
  OUTPUT_VARIABLE tree COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\r" "" tree "${tree}")
string(REGEX REPLACE "\n$" "" tree "${tree}")
string(REPLACE "\n" "\n    " tree "    ${tree}")
expect_in_readme("${tree}\n" "what tervix show prints")

execute_process(COMMAND ${EMULATOR} ${PROGRAM} ${ROOT}/examples/amp-flat/amp.tvp
  OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\r" "" listed "${listed}")
set(expected "${drive}${ROOT}/examples/amp-flat/amp-TOP-tran.out\n${drive}${ROOT}/examples/amp-flat/amp-TOP-ac.out\n")
if(NOT listed STREQUAL expected)
  message(FATAL_ERROR "list_profiles printed\n${listed}instead of\n${expected}")
endif()
