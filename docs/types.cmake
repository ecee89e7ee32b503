# Writes docs/types.md from facts/LateTypes.def and facts/LateTypeKinds.def.
#   cmake -P docs/types.cmake                 writes the page
#   cmake -DCHECK=ON -P docs/types.cmake      fails if the page differs
cmake_minimum_required(VERSION 3.25)
get_filename_component(root ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)
set(page ${root}/docs/types.md)

file(STRINGS ${root}/facts/LateTypeKinds.def rows REGEX "^[^/]")
foreach(row IN LISTS rows)
  if(NOT row MATCHES "^KIND\\(([A-Za-z]+), \"([^\"]+)\", \"([^\"]+)\"\\)$")
    message(FATAL_ERROR "facts/LateTypeKinds.def: not a row: ${row}")
  endif()
  set(scopes_${CMAKE_MATCH_1} "${CMAKE_MATCH_2} | ${CMAKE_MATCH_3}")
endforeach()

set(types "")
file(STRINGS ${root}/facts/LateTypes.def rows REGEX "^[^/]")
foreach(row IN LISTS rows)
  if(NOT row MATCHES "^LATE_TYPE\\(([A-Za-z]+), ([A-Za-z]+), (nullptr|\"[^\"]+\"), (Open|Guarded), \"([^\"]+)\"\\)$")
    message(FATAL_ERROR "facts/LateTypes.def: not a row: ${row}")
  endif()
  set(lateType ${CMAKE_MATCH_1})
  set(scopes "${scopes_${CMAKE_MATCH_2}}")
  set(baseName "${CMAKE_MATCH_3}")
  set(alias ${CMAKE_MATCH_4})
  set(description "${CMAKE_MATCH_5}")
  string(REPLACE "nullptr" "" baseName "${baseName}")
  string(REPLACE "Open" "" alias "${alias}")
  string(REPLACE "Guarded" "yes" alias "${alias}")
  string(APPEND types "| `${lateType}` | ${description} | ${baseName} | ${alias} | ${scopes} |\n")
endforeach()

set(text "# The types of features

This page lists the late types that the library treats specially. A late type is the type name that `GetLateType`
returns for a feature. Every other late type is allowed too. It has no base name, and the library does not guard the
names of its features.

This page is written by `cmake -P docs/types.cmake` from `facts/LateTypes.def` and `facts/LateTypeKinds.def`.

## How the scopes are determined

The scope of a name consists of the features with which the name is compared, or whose numbers are counted for a
proposal. It depends on the interfaces that the feature offers, not on its late type. The table shows the scopes of
features that offer the usual interfaces of their type.

Checks (`IsNameUnique`, `CheckName`) compare the name with the first of these that applies:

- The feature offers `QVRIStep`: the steps of its simulation history.
- It offers `QVRIPropagatingFeature`: the features of its kind in all steps of the case.
- It is in a set: the members of the first set that contains it.
- It is in no set: nothing. Every name is unique.

Proposals (`GetUniqueName`) count the numbers in the first of these that applies:

- The feature offers `QVRIStep`: the steps of the case except the first.
- The host reports it as a property or an amplitude: the members of the property set.
- Any other feature: the features of its kind in all steps of the case.

The kind of a feature is the late type of the first set that contains it. The features of a kind in all steps do not
include propagated features, except those of the late type `QVRInitialTemperatureLT`.

The late type itself determines the following results:

- `CreateBaseName` returns the base name in the table.
- The library guards the names of some types: `QVREFeatureAlias::SetAlias` stores a name only if `CheckName` accepts it.
  For `QVRJobLT`, `IsNameUniqueAcrossCases` must accept it instead. For `QVRShellSectionEnhLT`, a leading digit is
  allowed.
- `GetMorvelObjectName` compares the name of a bolt tightening with the names of the other children of its father.
- The library finds the simulation history, the property set and the job containers by their late types.

For jobs, the table shows the scopes of `IsNameUniqueAcrossCases` and of `GetUniqueNameForJob`, which always uses the
base name \"Job-\". For proposals for mesh parts, it shows the scope of `GetUniqueNameForMeshPart`.

## The types

| late type | what it is | base name | guarded | checks | proposals |
|---|---|---|---|---|---|
${types}")

if(CHECK)
  file(READ ${page} present)
  if(NOT present STREQUAL text)
    message(FATAL_ERROR "docs/types.md differs from the tables in facts/; run: cmake -P docs/types.cmake")
  endif()
else()
  file(WRITE ${page} "${text}")
endif()
