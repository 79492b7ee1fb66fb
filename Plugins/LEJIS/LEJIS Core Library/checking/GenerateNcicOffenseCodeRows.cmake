# Turns the published list (one code, a tab and its literal a line) into the rows of NcicOffenseCodes.cpp.
file(STRINGS "${INPUT}" lines)
set(rows "")
foreach(line IN LISTS lines)
    string(REPLACE "\"" "\\\"" line "${line}")
    string(REGEX REPLACE "^([0-9]+)\t(.+)$" "{L\"\\1\", L\"\\2\"},\n" row "${line}")
    string(APPEND rows "${row}")
endforeach()
file(WRITE "${OUTPUT}" "${rows}")
