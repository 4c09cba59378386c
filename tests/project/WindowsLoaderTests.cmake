# Programs that use the DLL as others do. Windows looks for what a program links in the program's
# folder first, and then on PATH, so each program gets a folder that lacks what it is to find there.

add_executable(tervix_loader_tests LoaderTest.cpp OpenedProject.cpp)
target_link_libraries(tervix_loader_tests PRIVATE
  TervixExplorer::TervixExplorer tvx_wobj_header tervix_test_support
  ${TERVIX_TEST_MAIN} tervix_warnings)
add_dependencies(tervix_loader_tests ZelDsnReader)

# Stand-ins for the readers, each in a folder of its own.
set(stub_folder ${CMAKE_CURRENT_BINARY_DIR}/stubs)
function(tervix_add_reader_stub folder name source)
  set(target tervix_stub_${folder})
  add_library(${target} MODULE stubs/${source})
  set_target_properties(${target} PROPERTIES PREFIX "" SUFFIX .dll
    OUTPUT_NAME ${name} LIBRARY_OUTPUT_DIRECTORY ${stub_folder}/${folder})
  target_link_libraries(${target} PRIVATE tvx_wobj_header tervix_warnings)
  target_compile_definitions(${target} PRIVATE
    TVX_WOBJ_BUILDING "STUB_EXPORT=__declspec(dllexport)" ${ARGN})
  add_dependencies(tervix_loader_tests ${target})
endfunction()
foreach(stub "own_design|getDsnInfo|return 0" "failing_design|getDsnInfo|return -1"
    "throwing_design|getDsnInfo|throw std::string()"
    "nameless_design|getDesignInformation|return 0")
  string(REPLACE "|" ";" stub "${stub}")
  list(GET stub 0 folder)
  list(GET stub 1 entry)
  list(GET stub 2 ending)
  tervix_add_reader_stub(${folder} ZelDsnReader DesignReaderStub.cpp
    "STUB_ENTRY=${entry}" "STUB_ENDING=${ending}")
endforeach()
foreach(stub "own_project|return 0" "failing_project|return -1"
    "throwing_project|throw std::string()")
  string(REPLACE "|" ";" stub "${stub}")
  list(GET stub 0 folder)
  list(GET stub 1 ending)
  tervix_add_reader_stub(${folder} tvx_wobj ProjectReaderStub.cpp "STUB_ENDING=${ending}")
endforeach()
file(WRITE ${stub_folder}/broken_design/ZelDsnReader.dll "This is no library.\n")

# The program with all that it needs but one of the readers.
function(tervix_add_program_without reader)
  add_custom_command(TARGET tervix_loader_tests POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E make_directory ${stub_folder}/no_${reader}
    COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:tervix_loader_tests> ${ARGN}
      $<TARGET_FILE:TervixExplorer> $<TARGET_FILE:TervixFormats> ${stub_folder}/no_${reader}
    VERBATIM)
endfunction()
tervix_add_program_without(design_reader $<TARGET_FILE:tvx_wobj>)
tervix_add_program_without(project_reader $<TARGET_FILE:ZelDsnReader>)

# Every test runs in a folder that holds a design reader, where it must not be found.
function(tervix_add_loader_test name test folder path)
  add_test(NAME loader.${name}
    COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} ${folder}/tervix_loader_tests.exe
      --gtest_filter=Loader.${test}
    WORKING_DIRECTORY ${stub_folder}/own_design)
  set_tests_properties(loader.${name} PROPERTIES FAIL_REGULAR_EXPRESSION "Running 0 tests")
  if(path)
    set_tests_properties(loader.${name} PROPERTIES ENVIRONMENT "WINEPATH=${path}")
  endif()
endfunction()

set(no_design_reader ${stub_folder}/no_design_reader)
tervix_add_loader_test(beside_the_library FindsTheReadersBesideTheLibrary
  ${CMAKE_RUNTIME_OUTPUT_DIRECTORY} "")
tervix_add_loader_test(not_in_the_current_folder FindsNoDesignReaderInTheCurrentFolder
  ${no_design_reader} "")
tervix_add_loader_test(not_in_the_current_folder_by_its_name FindsNoDesignReaderInTheCurrentFolder
  ${no_design_reader} ".")
# An empty entry of the path is none.
tervix_add_loader_test(not_in_the_current_folder_by_an_empty_entry
  FindsNoDesignReaderInTheCurrentFolder ${no_design_reader} "\;")
tervix_add_loader_test(beside_the_library_after_an_empty_entry FindsTheReadersBesideTheLibrary
  ${no_design_reader} "\;Z:${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
tervix_add_loader_test(own_design PrefersADesignReaderOnItsPath
  ${no_design_reader} Z:${stub_folder}/own_design)
tervix_add_loader_test(own_design_again LoadsADesignReaderEachTime
  ${no_design_reader} Z:${stub_folder}/own_design)
foreach(design failing_design throwing_design nameless_design broken_design)
  tervix_add_loader_test(${design} TakesAFailingDesignReaderForAnUnreadableDesign
    ${no_design_reader} Z:${stub_folder}/${design})
endforeach()
tervix_add_loader_test(own_project PrefersAProjectReaderOnItsPath
  ${stub_folder}/no_project_reader Z:${stub_folder}/own_project)
foreach(project failing_project throwing_project)
  tervix_add_loader_test(${project} TakesAFailingProjectReaderForAnUnreadableProject
    ${stub_folder}/no_project_reader Z:${stub_folder}/${project})
endforeach()

tervix_skip_test(tervix_interposed_tests "Windows binds each function to the library that it comes \
from, so a program cannot put one of its own in front")
