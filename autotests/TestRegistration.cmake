# Registers every tst_*.cpp of the calling folder as a QTest executable.
# A test declares what it needs in a comment line of its source:
#   // test-options: XVFB SCALES 1.25 1.5 2 LIBS Qt6::Svg TIMEOUT 300
# (XVFB: needs a real X server; SCALES: runs again per QT_SCALE_FACTOR; NEEDS
# VARIABLE: built only when that option of the build is on.)
file(GLOB test_sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/tst_*.cpp)
foreach(source IN LISTS test_sources)
  get_filename_component(name ${source} NAME_WE)
  file(STRINGS ${source} option_lines REGEX "^// test-options:")
  set(options)
  foreach(line IN LISTS option_lines)
    string(REGEX REPLACE "^// test-options:[ ]*" "" line "${line}")
    separate_arguments(line_options UNIX_COMMAND "${line}")
    list(APPEND options ${line_options})
  endforeach()
  cmake_parse_arguments(R "" "NEEDS" "" ${options})
  if(R_NEEDS AND NOT ${R_NEEDS})
    continue()
  endif()
  set(options ${R_UNPARSED_ARGUMENTS})
  file(GLOB helper_sources ${CMAKE_CURRENT_SOURCE_DIR}/${name}_*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${name}_*.h)
  kvuicore_add_test(NAME ${name} SOURCES ${source} ${helper_sources} ${options})
endforeach()
