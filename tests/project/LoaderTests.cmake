# Programs that use the shared library as others do.
foreach(program tervix_loader_tests tervix_interposed_tests)
  if(program STREQUAL "tervix_loader_tests")
    add_executable(${program} LoaderTest.cpp)
  else()
    add_executable(${program} InterposedReaderTest.cpp)
  endif()
  target_link_libraries(${program} PRIVATE
    TervixExplorer::TervixExplorer tvx_wobj_header tervix_project_test_support
    GTest::gtest_main tervix_warnings)
endforeach()

# Its own functions take the place of those of the library that TervixExplorer links.
set_target_properties(tervix_interposed_tests PROPERTIES ENABLE_EXPORTS ON)
set(library_folder ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
gtest_discover_tests(tervix_interposed_tests)

# Stand-ins for the readers, each in a folder of its own.
set(stub_folder ${CMAKE_CURRENT_BINARY_DIR}/stubs)
function(tervix_add_reader_stub folder type name source)
  set(target tervix_stub_${folder})
  add_library(${target} ${type} stubs/${source})
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME ${name} LIBRARY_OUTPUT_DIRECTORY ${stub_folder}/${folder})
  target_link_libraries(${target} PRIVATE tvx_wobj_header tervix_warnings)
  target_compile_definitions(${target} PRIVATE
    "STUB_EXPORT=__attribute__((visibility(\"default\")))" ${ARGN})
  add_dependencies(tervix_loader_tests ${target})
endfunction()
function(tervix_add_design_reader_stub folder entry ending)
  tervix_add_reader_stub(${folder} MODULE ZelDsnReader DesignReaderStub.cpp
    "STUB_ENTRY=${entry}" "STUB_ENDING=${ending}")
  set_target_properties(tervix_stub_${folder} PROPERTIES PREFIX "" SUFFIX ".dll")
endfunction()
tervix_add_design_reader_stub(own_design getDsnInfo "return 0")
tervix_add_design_reader_stub(failing_design getDsnInfo "return -1")
tervix_add_design_reader_stub(throwing_design getDsnInfo "throw std::string()")
tervix_add_design_reader_stub(nameless_design getDesignInformation "return 0")
tervix_add_reader_stub(own_project SHARED tvx_wobj ProjectReaderStub.cpp "STUB_ENDING=return 0")
tervix_add_reader_stub(failing_project SHARED tvx_wobj ProjectReaderStub.cpp
  "STUB_ENDING=return -1")
tervix_add_reader_stub(throwing_project SHARED tvx_wobj ProjectReaderStub.cpp
  "STUB_ENDING=throw std::string()")
file(WRITE ${stub_folder}/broken_design/ZelDsnReader.dll "This is no library.\n")

# The library with everything that it needs but a design reader.
set(lone_folder ${stub_folder}/no_design_reader)
if(TARGET tvx_wobj)
  set(project_readers $<TARGET_FILE:tvx_wobj> $<TARGET_FILE:TervixFormats>)
endif()
add_custom_command(TARGET tervix_loader_tests POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E make_directory ${lone_folder}
  COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:TervixExplorer>
          ${lone_folder}/$<TARGET_SONAME_FILE_NAME:TervixExplorer>
  COMMAND ${CMAKE_COMMAND} -E copy ${project_readers} ${lone_folder}
  VERBATIM)

# Every test runs in a folder that holds a design reader, where it must not be found.
function(tervix_add_loader_test name test path)
  add_test(NAME loader.${name}
    COMMAND tervix_loader_tests --gtest_filter=Loader.${test}
    WORKING_DIRECTORY ${stub_folder}/own_design)
  set_tests_properties(loader.${name} PROPERTIES FAIL_REGULAR_EXPRESSION "Running 0 tests")
  if(path)
    set_tests_properties(loader.${name} PROPERTIES ENVIRONMENT "LD_LIBRARY_PATH=${path}")
  else()
    set_tests_properties(loader.${name} PROPERTIES
      ENVIRONMENT_MODIFICATION "LD_LIBRARY_PATH=unset:")
  endif()
endfunction()

tervix_add_loader_test(beside_the_library FindsTheReadersBesideTheLibrary "")
tervix_add_loader_test(not_in_the_current_folder FindsNoDesignReaderInTheCurrentFolder
  ${lone_folder})
# An empty entry of the path means the current folder.
tervix_add_loader_test(not_in_the_current_folder_by_an_empty_entry
  FindsNoDesignReaderInTheCurrentFolder ${lone_folder}:)
tervix_add_loader_test(beside_the_library_after_an_empty_entry FindsTheReadersBesideTheLibrary
  :${library_folder})
tervix_add_loader_test(own_design PrefersADesignReaderOnItsPath
  ${stub_folder}/own_design:${library_folder})
tervix_add_loader_test(own_design_again LoadsADesignReaderEachTime
  ${stub_folder}/own_design:${library_folder})
foreach(design failing_design throwing_design nameless_design broken_design)
  tervix_add_loader_test(${design} TakesAFailingDesignReaderForAnUnreadableDesign
    ${stub_folder}/${design}:${library_folder})
endforeach()
tervix_add_loader_test(own_project PrefersAProjectReaderOnItsPath
  ${stub_folder}/own_project:${library_folder})
foreach(project failing_project throwing_project)
  tervix_add_loader_test(${project} TakesAFailingProjectReaderForAnUnreadableProject
    ${stub_folder}/${project}:${library_folder})
endforeach()
