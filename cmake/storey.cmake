# What the storeys of src/ have in common. A storey is one static library.

set(VATRO_CHECK_INCLUDES ${CMAKE_CURRENT_LIST_DIR}/check_includes.cmake)

# vatro_check_includes(TARGET FOLDER)
#
# Every include below FOLDER must name its header by a path below an include root of TARGET. An include that leads out of it, through ".."
# or from the root of the disk, could reach a storey that TARGET does not link. Building TARGET then fails.
function(vatro_check_includes target folder)
  get_filename_component(folder ${folder} ABSOLUTE)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS ${folder}/*.h ${folder}/*.cpp)
  set(list ${CMAKE_CURRENT_BINARY_DIR}/${target}_includes.txt)
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${target}_includes.stamp)
  list(JOIN files "\n" lines)
  file(CONFIGURE OUTPUT ${list} CONTENT "@lines@\n" @ONLY)
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -D LIST=${list} -D STAMP=${stamp} -P ${VATRO_CHECK_INCLUDES}
    DEPENDS ${files} ${list} ${VATRO_CHECK_INCLUDES}
    COMMENT "Checking the includes of ${target}" VERBATIM)
  add_custom_target(${target}_includes DEPENDS ${stamp})
  add_dependencies(${target} ${target}_includes)
endfunction()

# vatro_storey(NAME ROOT FOLDER [USES TARGET...])
#
# Adds the library vatro_NAME from all sources below ROOT, which is its include root. It sees the include roots of the targets it uses, and
# of those that they use. Sources for other operating systems and those of programs are left out.
function(vatro_storey name)
  cmake_parse_arguments(PARSE_ARGV 1 storey "" "ROOT" "USES")
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${storey_ROOT}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "${VATRO_OTHER_SYSTEM}\\.cpp$")
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(vatro_${name} STATIC ${sources})
  target_include_directories(vatro_${name} PUBLIC ${storey_ROOT})
  target_link_libraries(vatro_${name} PUBLIC ${storey_USES} PRIVATE vatro_options)
  # What nearly every source includes.
  target_precompile_headers(vatro_${name} PRIVATE <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <string> <string_view>
    <utility> <vector>)
  vatro_check_includes(vatro_${name} ${storey_ROOT})
endfunction()
