# SPDX-License-Identifier: MIT
#
# Protection that compiler and linker put into every program, for daily use and in the package alike. tests/house/hardening.sh
# reads the programs and fails where one of these has had no effect.
#
#   _FORTIFY_SOURCE             calls of the C library that copy into a buffer of known size check that size
#   -fstack-protector-strong    a return address that has been written over ends the program
#   -fstack-clash-protection    a large frame cannot jump over the guard page below the stack
#   -fcf-protection             indirect jumps and returns lead where the compiler has put a mark (x86 alone)
#   relro, now                  the table of imported addresses is read-only before main begins
#   pie                         the program is loaded at another address each time; compilers of today do it by themselves, and
#                               CMake's own switch would be -fPIC, with which no procedure is put into another one of its source

# A sanitizer and the counters of coverage have checks of their own in the same places.
if(NOT UNIX OR APPLE OR VATRO_SANITIZE OR VATRO_COVERAGE OR VATRO_FUZZ)
  return()
endif()

# Fortified calls are inline functions: without optimising there are none, and the C library warns.
target_compile_definitions(vatro_options INTERFACE $<$<NOT:$<CONFIG:Debug>>:_FORTIFY_SOURCE=2>)
target_compile_options(vatro_options INTERFACE -fstack-protector-strong -fstack-clash-protection)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$")
  target_compile_options(vatro_options INTERFACE -fcf-protection=full)
endif()

target_link_options(vatro_options INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
