# Reads text files as lists of lines, for the scripts that check pages and sources.
#   read_lines(FILE VARIABLE)   sets VARIABLE to the lines of the file. Replaces the characters that are special in lists
#                               (; [ ] \) by the control characters ${stand1} to ${stand4}.
#   as_written(TEXT VARIABLE)   sets VARIABLE to TEXT with the original characters.

foreach(number RANGE 1 4)
  string(ASCII ${number} stand${number})
endforeach()
function(read_lines file variable)
  file(READ ${file} text)
  string(REPLACE ";" "${stand1}" text "${text}")
  string(REPLACE "[" "${stand2}" text "${text}")
  string(REPLACE "]" "${stand3}" text "${text}")
  string(REGEX REPLACE "\\\\\n" "\n" text "${text}") # a backslash at the end would join two elements
  string(REPLACE "\\" "${stand4}" text "${text}")
  string(REPLACE "\n" ";" text "${text}")
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

function(as_written text variable)
  string(REPLACE "${stand1}" ";" text "${text}")
  string(REPLACE "${stand2}" "[" text "${text}")
  string(REPLACE "${stand3}" "]" text "${text}")
  string(REPLACE "${stand4}" "\\" text "${text}")
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()
