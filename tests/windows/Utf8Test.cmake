# qvrnames takes UTF-8 names of files and features, and prints the same bytes as on every other system.
file(REMOVE_RECURSE ${WORK})
set(document "${WORK}/Träger 温/Flansch-ß.json")
file(WRITE "${document}" [[{"cases": [{"name": "Fläche 衝"}]}
]])

# told(outcome output ARGUMENT...)
function(told outcome output)
  execute_process(COMMAND ${PROGRAM} ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT code EQUAL outcome OR NOT "${out}${err}" STREQUAL output)
    message(SEND_ERROR "${ARGN} ended with ${code} and printed\n${out}${err}instead of\n${output}")
  endif()
endfunction()

told(0 "Fläche 衝: \"Fläche 衝\" -> \"Öse ß\"\n" rename "${document}" "Fläche 衝" "Öse ß")
file(READ "${document}" now)
if(NOT now STREQUAL "{\"cases\": [{\"name\": \"Öse ß\"}]}\n")
  message(SEND_ERROR "the document is now\n${now}")
endif()
told(2 "qvrnames: ${WORK}/Öse.json: cannot be read: No such file or directory\n" audit "${WORK}/Öse.json")
file(GLOB left "${WORK}/Träger 温/*" "${WORK}/Träger 温/.*")
if(NOT left STREQUAL document)
  message(SEND_ERROR "beside the document lie ${left}")
endif()
