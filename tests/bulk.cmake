# The tests of programs for another system, which an emulator runs. It takes longer to start than most tests take to run, so there
# is one test for each quarter of the unit tests and one for each folder of scenarios.
add_test(NAME emulator COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} cmd /c exit 0)
set_tests_properties(emulator PROPERTIES FIXTURES_SETUP emulator TIMEOUT 300)

set(parts 4)
foreach(part RANGE 1 ${parts})
  math(EXPR index "${part} - 1")
  add_test(NAME unit.${part} COMMAND vatro-tests --gtest_brief=1)
  set_tests_properties(unit.${part} PROPERTIES LABELS unit FIXTURES_REQUIRED emulator TIMEOUT 300
    ENVIRONMENT "GTEST_TOTAL_SHARDS=${parts};GTEST_SHARD_INDEX=${index}")
endforeach()

set(folders ${scenarios})
list(TRANSFORM folders REPLACE "/.*" "")
list(REMOVE_DUPLICATES folders)
foreach(folder IN LISTS folders)
  set(files ${scenarios})
  list(FILTER files INCLUDE REGEX "^${folder}/")
  add_test(NAME scenario.${folder} COMMAND vatro-replay ${files} WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/scenarios)
  set_tests_properties(scenario.${folder} PROPERTIES LABELS scenario FIXTURES_REQUIRED emulator TIMEOUT 300)
endforeach()

file(GLOB left_out RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} */*${VATRO_OTHER_SYSTEM}_test.cpp)
list(JOIN left_out ", " left_out)
message(STATUS "Not for ${CMAKE_SYSTEM_NAME}: ${left_out}; the tests of the tree, the readers, the Morse, the limits and the contests of chance")
