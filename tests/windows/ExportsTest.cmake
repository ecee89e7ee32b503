# A library of Windows exports what is marked: the module its classes, the marker and the factory, nothing else.
string(REGEX REPLACE "objdump$" "c++filt" demangler "${OBJDUMP}")
execute_process(COMMAND ${OBJDUMP} -p ${MODULE}
  COMMAND sed -n "s/^\t\\[ *\\([0-9]*\\)\\] \\([^+ ]*\\)$/\\1 T \\2/p"
  COMMAND ${demangler} OUTPUT_VARIABLE symbols RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "${MODULE} cannot be read")
endif()
set(classes "QVRNameUtil|QVRGenZFXUnicodeStringUtils|QVRGenI18NUtils|QVRGenInstanceName|QVRBaseFeatureAlias|QVREFeatureAlias")
set(functions "HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility|CreateTIEZFXIAliasQVREFeatureAlias")
string(REPLACE "\n" ";" lines "${symbols}")
foreach(line IN LISTS lines)
  if(line AND NOT line MATCHES "^[0-9a-f]+ [A-Za-z] ((vtable for |typeinfo for |typeinfo name for )?(${classes})(::|$)|(${functions})$)")
    message(SEND_ERROR "exported beside the public classes: ${line}")
  endif()
endforeach()
foreach(name IN ITEMS QVRNameUtil::CheckName QVREFeatureAlias::meta_object QVRGenI18NUtils::Instance
        QVRGenZFXUnicodeStringUtils::RemoveSpaces HALVERN_WORKS_UXM2_INTERNAL_QVRNameUtility
        CreateTIEZFXIAliasQVREFeatureAlias)
  if(NOT symbols MATCHES "${name}")
    message(SEND_ERROR "not exported: ${name}")
  endif()
endforeach()
