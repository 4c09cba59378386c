cmake_minimum_required(VERSION 3.22)
# Installs the library into a folder of its own, builds a program outside the project with
# find_package, and lets it open each sample.
file(REMOVE_RECURSE ${WORK})
function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
run(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/build -DCMAKE_PREFIX_PATH=${WORK}/prefix
  -DCMAKE_CXX_COMPILER=${COMPILER} "-DCMAKE_CXX_FLAGS=${FLAGS}" -DCMAKE_BUILD_TYPE=Debug)
run(${CMAKE_COMMAND} --build ${WORK}/build)

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
  run(${WORK}/build/consumer ${WORK}/samples/${file} ${front_end})
  string(STRIP "${output}" found)
  if(NOT found STREQUAL expected)
    message(FATAL_ERROR "${file}: expected \"${expected}\", found \"${found}\"")
  endif()
endforeach()
