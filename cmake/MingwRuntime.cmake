# Copies the runtime libraries of the compiler into the folder of the programs, in the build and in an installed copy.
# They are linked dynamically, because exceptions and standard streams cross the borders of our libraries. Windows does
# not contain them.

set(runtimes)
foreach(runtime libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime}
    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND runtimes ${file})
endforeach()
file(COPY ${runtimes} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})

install(PROGRAMS ${runtimes} DESTINATION ${CMAKE_INSTALL_BINDIR})
