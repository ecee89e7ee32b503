# Installs the build into an empty folder, moves the copy, and builds and runs a program that knows nothing else.

function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ECHO STDOUT RESULT_VARIABLE outcome)
  if(NOT outcome EQUAL 0)
    message(FATAL_ERROR "ended with ${outcome}: ${ARGV}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
file(RENAME ${WORK}/installed ${WORK}/moved)
run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${WORK}/build -G ${GENERATOR}
  -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_PREFIX_PATH=${WORK}/moved)
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${WORK}/build/consumer)
if(HOST_PROGRAM)
  run(${WORK}/moved/bin/${HOST_PROGRAM} --help)
endif()
