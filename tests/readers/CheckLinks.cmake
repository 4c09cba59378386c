# Fails unless LIBRARY finds its neighbours in its own folder, can have its functions interposed
# and, where SONAME is given, goes by that name.

execute_process(COMMAND ${READELF} -d -W ${LIBRARY}
                OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
if(NOT dynamic MATCHES "\\(RUNPATH\\)[^\n]*\\[\\$ORIGIN[]:]")
  message(FATAL_ERROR "${LIBRARY} does not search its own folder:\n${dynamic}")
endif()
if(dynamic MATCHES "SYMBOLIC")
  message(FATAL_ERROR "${LIBRARY} binds its functions to itself:\n${dynamic}")
endif()
if(DEFINED SONAME AND NOT dynamic MATCHES "\\(SONAME\\)[^\n]*\\[([^\n]*)\\]")
  message(FATAL_ERROR "${LIBRARY} has no name of its own:\n${dynamic}")
endif()
if(DEFINED SONAME AND NOT CMAKE_MATCH_1 STREQUAL SONAME)
  message(FATAL_ERROR "${LIBRARY} goes by ${CMAKE_MATCH_1} and not by ${SONAME}")
endif()
