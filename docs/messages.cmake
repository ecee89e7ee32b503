# Writes docs/messages.md: the messages of the catalog and the operations that raise them.
#   cmake -P docs/messages.cmake                 writes the page
#   cmake -DCHECK=ON -P docs/messages.cmake      fails if the page differs
# The texts come from the message catalog; the order and the operations come from MessageIds.def. Also fails if
# docs/operations.md names a message that its operation does not raise.
cmake_minimum_required(VERSION 3.25)
get_filename_component(root ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)
set(module ${root}/QVRGeneralUtilities)
set(table ${root}/facts/MessageIds.def)
set(catalog ${module}/resources/msgcatalog/QVRNameUtility.msg)
set(page ${root}/docs/messages.md)

include(${root}/cmake/ReadLines.cmake)

# ---- The rows: ids, and raisers_ID, the operations that raise the id ----

file(GLOB headers ${module}/public-headers/*.h)
set(declarations "")
foreach(header IN LISTS headers)
  file(READ ${header} text)
  string(APPEND declarations "${text}")
endforeach()

set(ids)
file(READ ${table} text)
string(REGEX MATCHALL "\nMESSAGE_ID\\([^)]*\\)" rows "${text}")
foreach(row IN LISTS rows)
  if(NOT row MATCHES "\\(([A-Za-z0-9_]+),[ \n]*\"([^)]*)\"\\)$")
    message(FATAL_ERROR "${table}: not a row: ${row}")
  endif()
  set(id ${CMAKE_MATCH_1})
  string(REGEX MATCHALL "[A-Za-z0-9]+" raisers_${id} "${CMAKE_MATCH_2}")
  list(APPEND ids ${id})
  foreach(operation IN LISTS raisers_${id})
    if(NOT declarations MATCHES "[ &]${operation}\\(")
      message(SEND_ERROR "${table}: no public header declares ${operation}")
    endif()
  endforeach()
endforeach()

# ---- The texts: Diagnostic_ID, Example_ID and Advice_ID ----

read_lines(${catalog} rows)
foreach(row IN LISTS rows)
  if(NOT row MATCHES "^([A-Za-z0-9_]+)\\.(Request|Diagnostic|Example|Advice)[ \t]*=[ \t]*(.+)$")
    continue()
  endif()
  set(id ${CMAKE_MATCH_1})
  set(part ${CMAKE_MATCH_2})
  if(NOT id IN_LIST ids)
    message(SEND_ERROR "${catalog}: ${id} is not in MessageIds.def")
  endif()
  # Escapes the characters that have a meaning in Markdown.
  string(REGEX REPLACE "([*_`#<>|~${stand2}${stand3}${stand4}])" "\\\\\\1" ${part}_${id} "${CMAKE_MATCH_3}")
endforeach()

# ---- The page ----

list(LENGTH ids count)
set(text "# The messages

This page lists the ${count} messages that explain to a user why a name is rejected or cannot be proposed, and the
operations that raise them. An operation raises a message if it registers the error itself, or if an operation that it
calls registers it. Most operations return the code of the error. [operations.md](operations.md) lists those that only
register it. A text, such as the characters that are not allowed, replaces `/P1`.

This page is written by `cmake -P docs/messages.cmake` from the message catalog and `MessageIds.def`.
")
foreach(id IN LISTS ids)
  if(NOT Diagnostic_${id} OR NOT Example_${id} OR NOT Advice_${id})
    message(SEND_ERROR "${catalog}: ${id} has no diagnostic, example or advice")
  endif()
  list(JOIN raisers_${id} "`, `" raisers)
  string(APPEND text "\n## ${id}\n\n**Cause:** ${Diagnostic_${id}}\n\n**Example:** ${Example_${id}}\n\n"
                     "**Fix:** ${Advice_${id}}\n\n**Raised by:** `${raisers}`\n")
endforeach()
as_written("${text}" text)

if(CHECK)
  file(READ ${page} present)
  if(NOT present STREQUAL text)
    message(FATAL_ERROR
      "docs/messages.md differs from the message catalog or MessageIds.def; run: cmake -P docs/messages.cmake")
  endif()
else()
  file(WRITE ${page} "${text}")
endif()

# ---- The ids in the text of docs/operations.md, each below the heading of its operations ----

read_lines(${root}/docs/operations.md rows)
set(operations)
set(inExample OFF)
foreach(row IN LISTS rows)
  if(row MATCHES "^##")
    string(REGEX MATCHALL "[A-Za-z0-9]+\\(" operations "${row}")
    list(TRANSFORM operations REPLACE "\\(" "")
  elseif(row MATCHES "^```" AND inExample)
    set(inExample OFF)
  elseif(row MATCHES "^```")
    set(inExample ON)
  elseif(NOT inExample)
    string(REGEX MATCHALL "[A-Za-z]+(ERR|Err_)[0-9_]*" named "${row}")
    foreach(id IN LISTS named)
      set(raised ${raisers_${id}})
      list(REMOVE_ITEM raised ${operations})
      if("${raised}" STREQUAL "${raisers_${id}}")
        message(SEND_ERROR "docs/operations.md: ${operations} does not raise ${id}")
      endif()
    endforeach()
  endif()
endforeach()
