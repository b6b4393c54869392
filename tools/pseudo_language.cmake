# Writes the string table of the pseudo-locale module: each default text as "[text ~~~~]", with
# tildes after it half as many as its characters (at least two), so a translation that runs
# longer than English shows where a layout has no room for it, and every text from the module
# is told from its built-in default by the brackets.
file(GLOB tables ${TABLES}/*.h)
set(rc "STRINGTABLE\nBEGIN\n")
foreach(table IN LISTS tables)
  file(STRINGS ${table} lines REGEX "^CV_STRING\\(")
  foreach(line IN LISTS lines)
    if(line MATCHES "^CV_STRING\\([A-Za-z0-9_]+, *([0-9]+), *L\"(.*)\"\\)$")
      set(number ${CMAKE_MATCH_1})
      set(text "${CMAKE_MATCH_2}")
      string(LENGTH "${text}" length)
      math(EXPR pad "(${length} + 1) / 2")
      if(pad LESS 2)
        set(pad 2)
      endif()
      string(REPEAT "~" ${pad} tildes)
      # A quote inside a resource string is written twice, not with a backslash.
      string(REPLACE "\\\"" "\"\"" text "${text}")
      string(APPEND rc "    ${number}, L\"[${text} ${tildes}]\"\n")
    else()
      message(FATAL_ERROR "Unreadable string table line in ${table}: ${line}")
    endif()
  endforeach()
endforeach()
string(APPEND rc "END\n")
file(WRITE ${OUT} "${rc}")
