# qvr_header_only(target folder): makes an imported header-only library usable in a cross build.
# Its headers are in the include folder of the build machine, which also contains headers that must not be used for the
# other system. The function creates a folder with a link to `folder` only, and sets it as the target's include folder.
function(qvr_header_only target folder)
  if(NOT CMAKE_CROSSCOMPILING)
    return()
  endif()
  get_target_property(include_folders ${target} INTERFACE_INCLUDE_DIRECTORIES)
  list(GET include_folders 0 include_folder)
  set(links ${PROJECT_BINARY_DIR}/header-only)
  file(MAKE_DIRECTORY ${links})
  file(CREATE_LINK ${include_folder}/${folder} ${links}/${folder} SYMBOLIC)
  set_target_properties(${target} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${links})
endfunction()
