# Installs the build into an empty folder, moves the copy, and builds and runs the README's program against nothing
# else: it must print what the README says, so libraries, headers, the message catalog and the README are all right.

function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ECHO STDOUT RESULT_VARIABLE outcome)
  if(NOT outcome EQUAL 0)
    message(FATAL_ERROR "ended with ${outcome}: ${ARGV}")
  endif()
endfunction()

# readme_block(language variable): the README's first block of code in that language.
function(readme_block language variable)
  string(REGEX MATCH "```${language}\n([^`]+)```" found "${readme}")
  if(NOT found)
    message(FATAL_ERROR "${README} has no block of ${language}")
  endif()
  set(${variable} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

file(READ ${README} readme)
readme_block(cpp program)
readme_block(text promised)

file(REMOVE_RECURSE ${WORK})
file(WRITE ${WORK}/source/main.cpp "${program}")
file(COPY ${CONSUMER}/CMakeLists.txt DESTINATION ${WORK}/source)
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
file(RENAME ${WORK}/installed ${WORK}/moved)
run(${CMAKE_COMMAND} -S ${WORK}/source -B ${WORK}/build -G ${GENERATOR}
  -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN} -DCMAKE_PREFIX_PATH=${WORK}/moved
  -DCMAKE_RUNTIME_OUTPUT_DIRECTORY=${WORK}/moved/bin)
run(${CMAKE_COMMAND} --build ${WORK}/build)

# Where Windows looks for the libraries, and as good a place as any elsewhere.
execute_process(COMMAND ${EMULATOR} ${WORK}/moved/bin/consumer${ENDING} OUTPUT_VARIABLE printed RESULT_VARIABLE outcome)
if(NOT outcome EQUAL 0 OR NOT printed STREQUAL promised)
  message(FATAL_ERROR "ended with ${outcome} and printed\n${printed}where the README says\n${promised}")
endif()
if(HOST_PROGRAM)
  run(${EMULATOR} ${WORK}/moved/bin/${HOST_PROGRAM}${ENDING} --help)
endif()
