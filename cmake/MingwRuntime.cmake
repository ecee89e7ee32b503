# The compiler's runtime libraries, shared by ours and the program: exceptions and standard streams go from one to the
# other. Nobody's Windows has them, so they lie beside the programs, in the build and in an installed copy.

set(runtimes)
foreach(runtime libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime}
    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND runtimes ${file})
endforeach()
file(COPY ${runtimes} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})

include(GNUInstallDirs)
install(PROGRAMS ${runtimes} DESTINATION ${CMAKE_INSTALL_BINDIR})
