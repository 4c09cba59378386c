# The packages that are headers only serve every system. They are offered to a cross build from a
# folder of its own, TERVIX_HEADER_PACKAGES, since the host's include folder as a whole would put
# the host's C library before the compiler's.

set(TERVIX_HEADER_PACKAGES ${CMAKE_BINARY_DIR}/header-packages)

function(tervix_header_package package header_folder)
  set(root ${TERVIX_HEADER_PACKAGES}/${package})
  file(MAKE_DIRECTORY ${root}/include)
  file(CREATE_LINK /usr/include/${header_folder} ${root}/include/${header_folder} SYMBOLIC)
  file(WRITE ${TERVIX_HEADER_PACKAGES}/lib/cmake/${package}/${package}Config.cmake "\
if(NOT TARGET ${package}::${package})
  add_library(${package}::${package} INTERFACE IMPORTED)
  set_target_properties(${package}::${package} PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES \"${root}/include\")
endif()
")
endfunction()

# The compiler checks of CMake read this file as well, each in a project of its own.
get_property(is_compiler_check GLOBAL PROPERTY IN_TRY_COMPILE)
if(NOT is_compiler_check)
  tervix_header_package(CLI11 CLI)
  tervix_header_package(nlohmann_json nlohmann)
  tervix_header_package(tomlplusplus toml++)
endif()
