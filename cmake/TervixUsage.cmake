# Man page and shell completions of the tool, made from the command tree that it prints itself.

find_package(Python3 COMPONENTS Interpreter QUIET)
find_program(TERVIX_GZIP gzip)
mark_as_advanced(TERVIX_GZIP)
if(NOT Python3_FOUND OR NOT TERVIX_GZIP OR CMAKE_CROSSCOMPILING)
  message(STATUS "No man page and completions: they take python3, gzip and a tool that runs here")
  return()
endif()

set(source ${PROJECT_SOURCE_DIR}/tools/tervix/usage)
set(TERVIX_USAGE ${PROJECT_BINARY_DIR}/usage)
add_custom_command(
  OUTPUT ${TERVIX_USAGE}/tervix.1 ${TERVIX_USAGE}/tervix.1.gz ${TERVIX_USAGE}/tervix.bash
         ${TERVIX_USAGE}/_tervix
  COMMAND ${CMAKE_COMMAND} -E make_directory ${TERVIX_USAGE}
  COMMAND tervix --command-tree > ${TERVIX_USAGE}/commands.json
  COMMAND Python3::Interpreter ${source}/write_usage.py --frame ${source}/tervix.1.in
    --version ${PROJECT_VERSION} --date ${TERVIX_RELEASE_DATE} --folder ${TERVIX_USAGE}
    < ${TERVIX_USAGE}/commands.json
  COMMAND ${TERVIX_GZIP} -9nkf ${TERVIX_USAGE}/tervix.1
  DEPENDS tervix ${source}/write_usage.py ${source}/tervix.1.in
  VERBATIM)
add_custom_target(tervix_usage ALL DEPENDS ${TERVIX_USAGE}/tervix.1.gz)

install(FILES ${TERVIX_USAGE}/tervix.1.gz COMPONENT tool
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${TERVIX_USAGE}/tervix.bash COMPONENT tool RENAME tervix
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${TERVIX_USAGE}/_tervix COMPONENT tool
  DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
