# Text files as lists of lines, for the scripts that read pages and sources.
#   read_lines(FILE VARIABLE)      the lines; semicolons, which split lists, brackets, which hold them together, and
#                                  backslashes are stood in for: ${stand1} to ${stand4}
#   as_written(TEXT VARIABLE)      the text with all of them back

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
