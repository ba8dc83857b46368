# SPDX-License-Identifier: MIT
#
# Protection that the compiler and the linker add to every program, both in daily use and in the package. packaging/check-hardening
# inspects the programs and fails if one of these options had no effect.
#
#   _FORTIFY_SOURCE             calls of the C library that copy into a buffer of known size check that size
#   -fstack-protector-strong    the program ends if a return address on the stack was overwritten
#   -fstack-clash-protection    a large frame cannot jump over the guard page below the stack
#   -fcf-protection             indirect jumps and returns can only reach places that the compiler has marked (x86 only)
#   relro, now                  the table of imported addresses is read-only before main begins
#   pie                         the program is loaded at a different address each time; current compilers do this by default, and
#                               CMake's own switch would be -fPIC, which prevents inlining within a source

# Left out with sanitizers, coverage and fuzzing, which add checks of their own in the same places.
if(NOT UNIX OR APPLE OR VATRO_SANITIZE OR VATRO_COVERAGE OR VATRO_FUZZ)
  return()
endif()

# Fortified calls are inline functions. Without optimisation nothing is inlined, and the C library warns about that.
target_compile_definitions(vatro_options INTERFACE $<$<NOT:$<CONFIG:Debug>>:_FORTIFY_SOURCE=2>)
target_compile_options(vatro_options INTERFACE -fstack-protector-strong -fstack-clash-protection)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$")
  target_compile_options(vatro_options INTERFACE -fcf-protection=full)
endif()

target_link_options(vatro_options INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
