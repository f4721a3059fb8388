# Runs lupdate over the sources into copies of the .ts files, so a text added
# or changed in the sources without updating the .ts files is caught, then
# fails on any message that is unfinished, vanished or obsolete, empty, or a
# copy of its English source where the language needs a text of its own.
#   cmake -DLUPDATE=… -DSOURCE_DIR=… -DTS_DIR=… -DINCLUDES=a|b -DOPTIONS=x|y -DWORK_DIR=… -P CheckTranslations.cmake
cmake_minimum_required(VERSION 3.21)

# Translations that rightly equal their source: "<language>|<source>", "*"
# for every language; a line break in a source is written \n.
set(identical_allowed
  "*|R" "*|G" "*|B" "*|H" "*|S" "*|V" "*|A" "*|%1 %"
  "de|Text" "sv|Text" "cs|Text" "fr|Image" "fr|Messages"
  "de|Alpha" "fr|Alpha"
  "de|Information" "fr|Information" "sv|Information"
  "es|Error"
  "fr|%1 × %2 pixels" "pt_BR|%1 × %2 pixels" "nl|%1 × %2 pixels"
  "fr|%1\\n%2 × %3 pixels" "pt_BR|%1\\n%2 × %3 pixels" "nl|%1\\n%2 × %3 pixels")

foreach(var LUPDATE SOURCE_DIR TS_DIR WORK_DIR)
  if(NOT ${var})
    message(FATAL_ERROR "${var} is not set")
  endif()
endforeach()
string(REPLACE "|" ";" includes "${INCLUDES}")
string(REPLACE "|" ";" options "${OPTIONS}")

file(GLOB ts_files ${TS_DIR}/KvUICore_*.ts)
if(NOT ts_files)
  message(FATAL_ERROR "No KvUICore_*.ts files in ${TS_DIR}")
endif()
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
file(COPY ${ts_files} DESTINATION ${WORK_DIR})
file(GLOB copies ${WORK_DIR}/KvUICore_*.ts)

# The sources and include folders go through a list file: the command line
# stays short however many sources there are.
file(GLOB_RECURSE sources ${SOURCE_DIR}/*.cpp ${SOURCE_DIR}/*.h)
list(SORT sources)
set(list_lines)
foreach(dir IN LISTS includes)
  list(APPEND list_lines "-I${dir}")
endforeach()
list(APPEND list_lines ${sources})
string(REPLACE ";" "\n" list_text "${list_lines}")
file(WRITE ${WORK_DIR}/sources.lst "${list_text}\n")

execute_process(COMMAND ${LUPDATE} @${WORK_DIR}/sources.lst ${options} -ts ${copies}
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "lupdate failed (${result}):\n${output}${errors}")
endif()

set(problems)
# A text whose class lupdate cannot resolve gets a context that differs from
# the one the program looks it up under.
string(REGEX MATCHALL "[^\n]*(Qualifying with unknown|lacks Q_OBJECT|Cannot invoke tr)[^\n]*" context_problems
  "${output}${errors}")
list(APPEND problems ${context_problems})

string(ASCII 1 message_end)
string(ASCII 2 semicolon)
foreach(copy IN LISTS copies)
  get_filename_component(name ${copy} NAME)
  string(REGEX REPLACE "^KvUICore_(.*)\\.ts$" "\\1" language "${name}")
  file(READ ${copy} text)
  string(REPLACE ";" "${semicolon}" text "${text}")
  string(REPLACE "</message>" "${message_end}" text "${text}")
  string(REGEX MATCHALL "<message[^${message_end}]*" messages "${text}")
  foreach(message IN LISTS messages)
    string(REGEX MATCH "<source>([^<]*)</source>" unused "${message}")
    set(source "${CMAKE_MATCH_1}")
    string(REPLACE "\n" "\\n" source "${source}")
    string(REPLACE "${semicolon}" ";" shown "${source}")
    if(message MATCHES "type=\"(unfinished|vanished|obsolete)\"")
      list(APPEND problems "${name}: \"${shown}\" is ${CMAKE_MATCH_1}")
      continue()
    endif()
    if(message MATCHES "numerus=\"yes\"")
      if(message MATCHES "<numerusform></numerusform>")
        list(APPEND problems "${name}: \"${shown}\" has an empty plural form")
      endif()
      continue()
    endif()
    string(REGEX MATCH "<translation>([^<]*)</translation>" unused "${message}")
    set(translation "${CMAKE_MATCH_1}")
    string(REPLACE "\n" "\\n" translation "${translation}")
    if(translation STREQUAL "")
      list(APPEND problems "${name}: \"${shown}\" has no translation")
    elseif(translation STREQUAL source)
      if(NOT "${language}|${source}" IN_LIST identical_allowed AND NOT "*|${source}" IN_LIST identical_allowed)
        list(APPEND problems "${name}: \"${shown}\" is left in English")
      endif()
    endif()
  endforeach()
endforeach()

if(problems)
  list(LENGTH problems count)
  string(REPLACE ";" "\n  " listed "${problems}")
  message(FATAL_ERROR "${count} translation problem(s); update the files with "
    "`cmake --build build --target KvUICore_lupdate` and translate:\n  ${listed}")
endif()
list(LENGTH copies files)
message(STATUS "${files} translation files are complete and current")
