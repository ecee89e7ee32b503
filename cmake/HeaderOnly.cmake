# qvr_header_only(target folder): lets an imported target of headers only, which lie in this machine's own include
# folder, be used when building for another system: that target then sees `folder` of them alone, through a link, and
# nothing else that is this machine's.
function(qvr_header_only target folder)
  if(NOT CMAKE_CROSSCOMPILING)
    return()
  endif()
  get_target_property(homes ${target} INTERFACE_INCLUDE_DIRECTORIES)
  list(GET homes 0 home)
  set(links ${PROJECT_BINARY_DIR}/header-only)
  file(MAKE_DIRECTORY ${links})
  file(CREATE_LINK ${home}/${folder} ${links}/${folder} SYMBOLIC)
  set_target_properties(${target} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${links})
endfunction()
