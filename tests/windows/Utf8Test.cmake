# qvrnames takes UTF-8 names of files and features, and prints the same bytes as on every other system.
file(REMOVE_RECURSE ${WORK})
set(document "${WORK}/Träger 温/Flansch-ß.json")
file(WRITE "${document}" "{\"cases\": [{\"name\": \"Fläche 衝\"}]}\n")

function(same expected found)
  if(NOT found STREQUAL expected)
    message(SEND_ERROR "${found}\ninstead of\n${expected}")
  endif()
endfunction()
# prints(expected ARGUMENT...): runs the program. It must print this, with its exit code at the end.
function(prints expected)
  execute_process(COMMAND ${PROGRAM} ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err)
  same("${expected}" "${out}${err}exit code ${code}")
endfunction()

prints("Fläche 衝: \"Fläche 衝\" -> \"Öse ß\"\nexit code 0" rename "${document}" "Fläche 衝" "Öse ß")
file(READ "${document}" now)
same("{\"cases\": [{\"name\": \"Öse ß\"}]}\n" "${now}")
prints("qvrnames: ${WORK}/Öse.json: cannot be read: No such file or directory\nexit code 2" audit "${WORK}/Öse.json")
file(GLOB left "${WORK}/Träger 温/*" "${WORK}/Träger 温/.*")
same("${document}" "${left}")
