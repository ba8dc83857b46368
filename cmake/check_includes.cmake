# cmake -D LIST=FILE -D STAMP=FILE -P check_includes.cmake
#
# Refuses includes that lead out of the include roots. LIST is a file with one source path per line; STAMP is touched if all includes are
# allowed.
cmake_minimum_required(VERSION 3.25)

# Blanks and comments may stand between the parts of a directive.
set(blank "([ \t]|/\\*.*\\*/)*")
file(STRINGS ${LIST} files ENCODING UTF-8)
set(wrong)
foreach(file IN LISTS files)
  file(STRINGS ${file} includes REGEX "^${blank}(#|%:)${blank}(include|include_next|import)([^A-Za-z0-9_]|$)" ENCODING UTF-8)
  foreach(include IN LISTS includes)
    # The header must be written out here: a macro or a continued line could hold any path.
    if(NOT include MATCHES "^[ \t]*#[ \t]*include[ \t]*(\"([^\"]+)\"|<([^>]+)>)[ \t]*(//.*)?$")
      string(APPEND wrong "${file}: ${include}\n  The header must follow #include on the same line, in quotes or angle brackets.\n")
      continue()
    endif()
    set(path "${CMAKE_MATCH_2}${CMAKE_MATCH_3}")
    if(path MATCHES "(^|[/\\])\\.\\.([/\\]|$)")
      string(APPEND wrong "${file}: ${include}\n  An include must not contain \"..\": name the header by its path below an include root.\n")
    elseif(path MATCHES "^([/\\]|[A-Za-z]:)")
      string(APPEND wrong "${file}: ${include}\n  An include must not be an absolute path: name the header by its path below an include root.\n")
    endif()
  endforeach()
endforeach()
if(wrong)
  file(REMOVE ${STAMP})
  message(NOTICE "${wrong}")
  message(FATAL_ERROR "includes lead out of the include roots")
endif()
file(TOUCH ${STAMP})
