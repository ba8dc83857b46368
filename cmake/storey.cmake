# What every storey of the house has in common.

set(VATRO_CHECK_INCLUDES ${CMAKE_CURRENT_LIST_DIR}/check_includes.cmake)

# vatro_check_includes(TARGET FOLDER)
#
# Every include below FOLDER names its header by a path below an include root of TARGET. One that leads out of it, by ".." or from
# the root of the disk, would get at a storey that TARGET does not link: building TARGET fails at it.
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
