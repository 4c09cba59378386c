cmake_minimum_required(VERSION 3.22)
# Installs the library into a folder of its own, moves that, builds programs outside the project
# with find_package and with pkg-config, and lets them open samples. With PACKAGE, what is installed
# comes out of the archive that cpack makes; EMULATOR, if there is one, runs the programs.
file(REMOVE_RECURSE ${WORK})
function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

if(PACKAGE)
  run(${CPACK} --config ${BUILD}/CPackConfig.cmake -G ZIP -B ${WORK})
  file(ARCHIVE_EXTRACT INPUT ${WORK}/${PACKAGE}.zip DESTINATION ${WORK})
  file(RENAME ${WORK}/${PACKAGE} ${WORK}/prefix)
else()
  run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
  file(RENAME ${WORK}/installed ${WORK}/prefix)
endif()
set(compiler -DCMAKE_CXX_COMPILER=${COMPILER})
if(SYSTEM)
  list(APPEND compiler -DCMAKE_SYSTEM_NAME=${SYSTEM} -DCMAKE_RC_COMPILER=${RC_COMPILER}
    -DCMAKE_EXE_LINKER_FLAGS=-static)
  # Where the library for these programs lies, as Windows looks for it.
  set(ENV{WINEPATH} Z:${WORK}/prefix/bin)
endif()
function(build source)
  run(${CMAKE_COMMAND} -S ${source} -B ${WORK}/build/${ARGV1} -DCMAKE_PREFIX_PATH=${WORK}/prefix
    ${compiler} "-DCMAKE_CXX_FLAGS=${FLAGS}" -DCMAKE_BUILD_TYPE=Debug)
  run(${CMAKE_COMMAND} --build ${WORK}/build/${ARGV1})
endfunction()
build(${SOURCE} consumer)
build(${EXAMPLES}/front-end front_end)
# Destroyed or not: programs may end with their tree alive.
set(ENV{ASAN_OPTIONS} detect_leaks=0)
run(sh ${SOURCE}/../front_end_test.sh ${WORK}/build/front_end/front_end${SUFFIX} ${EXAMPLES} ${EMULATOR})

find_program(PKG_CONFIG pkg-config)
if(PKG_CONFIG AND NOT SYSTEM)
  file(GLOB_RECURSE package ${WORK}/prefix/TervixExplorer.pc)
  execute_process(COMMAND ${PKG_CONFIG} --cflags --libs ${package} OUTPUT_VARIABLE flags
    COMMAND_ERROR_IS_FATAL ANY)
  separate_arguments(flags UNIX_COMMAND "${flags} ${FLAGS}")
  run(${COMPILER} -std=c++17 ${EXAMPLES}/list_profiles.cpp -o ${WORK}/list_profiles ${flags})
endif()

file(COPY ${EXAMPLES}/ DESTINATION ${WORK}/samples)
foreach(sample
    "amp-simulation/amp.tvp|2|TOP:tran TOP:ac BIAS:dc"
    "amp-flat/amp.tvp|2|TOP:tran TOP:ac"
    "workspace/amp/tvx_sim_1/amp.tvp|1|amp:noise amp:tran"
    "workspace/flt/cfg_analog/flt.tvp|1|flt:ac flt:step")
  string(REPLACE "|" ";" parts "${sample}")
  list(GET parts 0 file)
  list(GET parts 1 front_end)
  list(GET parts 2 expected)
  run(${EMULATOR} ${WORK}/build/consumer/consumer${SUFFIX} ${WORK}/samples/${file} ${front_end})
  string(STRIP "${output}" found)
  if(NOT found STREQUAL expected)
    message(FATAL_ERROR "${file}: expected \"${expected}\", found \"${found}\"")
  endif()
endforeach()

# The tool runs from where the archive was unpacked, with nothing but what came with it.
if(PACKAGE)
  unset(ENV{WINEPATH})
  foreach(sample amp-simulation/amp.tvp amp-flat/amp.tvp)
    get_filename_component(name ${sample} DIRECTORY)
    run(${EMULATOR} ${WORK}/prefix/bin/tervix${SUFFIX} show ${WORK}/samples/${sample})
    string(REPLACE "\r" "" output "${output}")
    file(READ ${SOURCE}/../../tools/expected/${name}.txt expected)
    if(NOT output STREQUAL expected)
      message(FATAL_ERROR "${sample}: the tool of the package prints\n${output}")
    endif()
  endforeach()
endif()
