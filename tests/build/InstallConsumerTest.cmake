# Installs the build into an empty folder, moves the copy, and builds and runs the README's program against nothing
# else, found once by CMake and once by pkg-config: it must print what the README says, so libraries, headers, the
# message catalog, the package files and the README are all right.

# run(command...): the output's last line is left in `said`.
function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ECHO STDOUT ECHO_OUTPUT_VARIABLE OUTPUT_STRIP_TRAILING_WHITESPACE
    OUTPUT_VARIABLE said RESULT_VARIABLE outcome)
  if(NOT outcome EQUAL 0)
    message(FATAL_ERROR "ended with ${outcome}: ${ARGV}")
  endif()
  set(said "${said}" PARENT_SCOPE)
endfunction()

# readme_block(language variable): the README's first block of code in that language.
function(readme_block language variable)
  string(REGEX MATCH "```${language}\n([^`]+)```" found "${readme}")
  if(NOT found)
    message(FATAL_ERROR "${README} has no block of ${language}")
  endif()
  set(${variable} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

# expect(promised command...)
function(expect promised)
  run(${ARGN})
  if(NOT "${said}\n" STREQUAL "${promised}")
    message(FATAL_ERROR "printed\n${said}\nwhere this is promised\n${promised}")
  endif()
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
expect("${promised}" ${EMULATOR} ${WORK}/moved/bin/consumer${ENDING})

if(NOT EMULATOR)
  file(GLOB_RECURSE pc_file ${WORK}/moved/QVRNameUtility.pc)
  get_filename_component(pc_folder "${pc_file}" DIRECTORY)
  set(ENV{PKG_CONFIG_PATH} ${pc_folder})
  expect("${VERSION}\n" pkg-config --modversion QVRNameUtility)
  run(pkg-config --variable=libdir QVRNameUtility)
  set(libraries ${said})
  run(pkg-config --cflags --libs QVRNameUtility ZFXMemoryModel)
  separate_arguments(flags UNIX_COMMAND "${said}")
  run(${COMPILER} -std=c++17 -Wall -Wextra -Wpedantic -Werror ${WORK}/source/main.cpp -o ${WORK}/consumer ${flags}
    -Wl,-rpath,${libraries})
  expect("${promised}" ${WORK}/consumer)
endif()

# Each relative link of an installed page leads to an installed file.
file(GLOB_RECURSE pages ${WORK}/moved/*.md)
foreach(page IN LISTS pages)
  file(READ ${page} text)
  string(REPLACE "](" "@link " text "${text}")
  string(REGEX MATCHALL "@link [A-Za-z0-9_./-]+[)#]" links "${text}")
  foreach(link IN LISTS links)
    string(REGEX REPLACE "^@link |[)#]$" "" link "${link}")
    cmake_path(REPLACE_FILENAME page ${link} OUTPUT_VARIABLE target)
    if(NOT EXISTS ${target})
      message(SEND_ERROR "not installed: ${link}, to which ${page} links")
    endif()
  endforeach()
endforeach()

if(HOST_PROGRAM)
  set(host ${EMULATOR} ${WORK}/moved/bin/${HOST_PROGRAM}${ENDING})
  expect("qvrnames ${VERSION}\n" ${host} --version)
  run(${host} deck ${WORK}/moved/share/QVRGeneralUtilities/examples/rename-a-step.json)
endif()
