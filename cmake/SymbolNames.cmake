# Demangled names of symbols, as lists of exports have them: without what differs from one standard
# library or system to the next.

# Of what nm prints.
function(tervix_symbol_names output result)
  string(REGEX REPLACE "[0-9a-f]* [A-Za-z] ([^\n]*)\n" "\\1\n" names "${output}")
  string(REPLACE "[abi:cxx11]" "" names "${names}")
  string(REPLACE "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"
    "std::string" names "${names}")
  string(REPLACE ";" "," names "${names}")
  string(REGEX REPLACE "\n" ";" names "${names}")
  list(FILTER names EXCLUDE REGEX "^$|__asan|__odr_asan|__ubsan")
  set(${result} "${names}" PARENT_SCOPE)
endfunction()

# Of what a shared library exports. Where the system has DLLs, which nm cannot read, OBJDUMP and
# CXXFILT are the programs to ask.
function(tervix_exported_names library result)
  if(NOT OBJDUMP)
    execute_process(COMMAND ${NM} -D --defined-only --demangle ${library}
      OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    tervix_symbol_names("${symbols}" names)
    set(${result} "${names}" PARENT_SCOPE)
    return()
  endif()
  execute_process(COMMAND ${OBJDUMP} -p ${library} COMMAND ${CXXFILT}
    OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE ".*\\[Ordinal/Name Pointer\\] Table\n" "" table "${headers}")
  string(REGEX REPLACE "\n\n.*" "\n" table "${table}")
  string(REGEX REPLACE "\t\\[ *[0-9]+\\] ([^\n]*)\n" " T \\1\n" symbols "${table}")
  tervix_symbol_names("${symbols}" names)
  set(${result} "${names}" PARENT_SCOPE)
endfunction()
