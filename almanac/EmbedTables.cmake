# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
# Writes the source tables of resources/data into one C++ file as string constants, so that the
# program computes the coming years from the same text the generator read. Script mode:
#   cmake -DFOLDER=<resources/data> -DOUTPUT=<file.cpp> -P EmbedTables.cmake
set(tables
  places places.tsv
  hijriMonthStarts hijri-month-starts.tsv
  lunarOccasions lunar-occasions.tsv
  solarOccasions solar-occasions.tsv
  occasions1392 occasions-1392.tsv)
set(text "// Generated at build time from resources/data; edit the .tsv files instead.\n")
string(APPEND text "#include \"almanac/SourceTexts.h\"\n\nnamespace kavenda::almanac::texts {\n")
list(LENGTH tables count)
math(EXPR last "${count} - 1")
foreach(index RANGE 0 ${last} 2)
  math(EXPR fileIndex "${index} + 1")
  list(GET tables ${index} name)
  list(GET tables ${fileIndex} file)
  file(READ "${FOLDER}/${file}" content)
  string(FIND "${content}" ")tsv\"" clash)
  if(NOT clash EQUAL -1)
    message(FATAL_ERROR "${file} holds the text that ends the embedded string")
  endif()
  string(APPEND text "\nconst std::string_view ${name} = R\"tsv(${content})tsv\";\n")
endforeach()
string(APPEND text "\n}  // namespace kavenda::almanac::texts\n")
file(WRITE "${OUTPUT}.new" "${text}")
file(COPY_FILE "${OUTPUT}.new" "${OUTPUT}" ONLY_IF_DIFFERENT)
file(REMOVE "${OUTPUT}.new")
