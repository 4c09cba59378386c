# Fails unless LIBRARY exports exactly the functions EXPORTS: a sorted list of names, one for each
# overload.

execute_process(COMMAND ${NM} -D -C --defined-only ${LIBRARY}
                OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\n" ";" symbols "${symbols}")
set(found "")
foreach(symbol IN LISTS symbols)
  if(symbol)
    string(REGEX REPLACE "^[0-9a-f]+ [A-Za-z] ([^(]*).*$" "\\1" name "${symbol}")
    list(APPEND found "${name}")
  endif()
endforeach()
list(SORT found)
if(NOT found STREQUAL EXPORTS)
  message(FATAL_ERROR "${LIBRARY} exports\n  ${found}\nand not\n  ${EXPORTS}")
endif()
