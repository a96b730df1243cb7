# SPDX-License-Identifier: GPL-2.0-or-later
# Hardening of everything that is built: position independent, read-only relocations bound at the start, no executable
# stack, checked stacks and buffers. tests/tools/hardening_test looks at the built files.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

add_compile_options(-fstack-protector-strong -fstack-clash-protection)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$")
  add_compile_options(-fcf-protection)
endif()
add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)

# Needs optimization, and hides faults from the address sanitizer.
set(BV_FORTIFY ON)
if(BV_SANITIZE OR BV_FUZZ OR CMAKE_BUILD_TYPE STREQUAL "Debug")
  set(BV_FORTIFY OFF)
endif()
if(BV_FORTIFY)
  add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
endif()
