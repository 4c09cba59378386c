# What every target of this project is built with.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release)
endif()

# All binaries side by side, as they are once installed: the library finds its readers beside it.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
if(WIN32)
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
  set(CMAKE_SHARED_LIBRARY_PREFIX "") # MinGW has "lib"; a library's name is that of its target
endif()

# Where the readers are installed: on Windows beside the library.
set(TERVIX_READERS_DIR ${CMAKE_INSTALL_LIBDIR}/tervixexplorer)
if(WIN32)
  set(TERVIX_READERS_DIR ${CMAKE_INSTALL_BINDIR})
  set(TERVIX_ARCHIVE tervixexplorer-${PROJECT_VERSION}-windows-x86_64) # what cpack makes
endif()

add_library(tervix_warnings INTERFACE)
target_compile_options(tervix_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Wold-style-cast -Woverloaded-virtual -Wnull-dereference -Wformat=2
  $<$<BOOL:${TERVIX_WARNINGS_AS_ERRORS}>:-Werror>)

if(TERVIX_SANITIZE)
  add_compile_options(-fsanitize=${TERVIX_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TERVIX_SANITIZE})
  # At a fixed address programs start in two thirds of the time, and tests start thousands.
  if(TERVIX_SANITIZE MATCHES "address")
    add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-no-pie>)
  endif()
endif()

# What reads paths as std::filesystem has them, and what programs take that name files in UTF-8.
add_library(tervix_narrow_text INTERFACE)
add_library(tervix_utf8 INTERFACE)
if(WIN32)
  enable_language(RC)
  set(windows ${PROJECT_SOURCE_DIR}/foundation/platform/windows)
  target_sources(tervix_narrow_text INTERFACE ${windows}/NarrowText.cpp)
  target_include_directories(tervix_narrow_text INTERFACE ${PROJECT_SOURCE_DIR})
  target_sources(tervix_utf8 INTERFACE ${windows}/utf8.rc)
  target_link_libraries(tervix_utf8 INTERFACE tervix_narrow_text)
endif()

# What is fuzzed tells the fuzzer where it has been.
if(TERVIX_BUILD_FUZZERS)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "TERVIX_BUILD_FUZZERS needs Clang, which has libFuzzer; this is "
                        "${CMAKE_CXX_COMPILER_ID}. Configure with -DCMAKE_CXX_COMPILER=clang++, "
                        "as scripts/fuzz does.")
  endif()
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# A layer of the library: objects that go into the shared library, and that tests of its insides
# link as they are.
function(tervix_add_layer name)
  cmake_parse_arguments(layer "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} OBJECT ${layer_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR})
  target_compile_definitions(${name} PRIVATE TERVIX_BUILDING
    PUBLIC $<$<BOOL:${WIN32}>:TERVIX_STATIC>) # what the DLL exports is listed when it is linked
  target_link_libraries(${name} PUBLIC ${layer_LINKS} PRIVATE tervix_warnings)
endfunction()
