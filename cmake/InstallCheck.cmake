# SPDX-License-Identifier: GPL-2.0-or-later
# Stops an installation before anything is copied if a program is not built or a folder cannot be written. Then creates
# the folders, readable for everybody whatever the umask (CMake itself does not do so for parent folders).
# Input: places (folders; relative ones are below the prefix), programs (the built files), build (the build folder).
foreach(program IN LISTS programs)
  if(NOT EXISTS "${program}")
    message(FATAL_ERROR "Nothing was installed: ${program} is not built. Build first: cmake --build FOLDER")
  endif()
endforeach()

execute_process(COMMAND test -w "${build}" RESULT_VARIABLE refused)
if(refused)
  message(FATAL_ERROR "Nothing was installed: ${build} cannot be written, and the list of what is installed is kept "
    "there, for its removal. Build in a place of your own.")
endif()

foreach(place IN LISTS places)
  cmake_path(ABSOLUTE_PATH place BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}")
  set(place "$ENV{DESTDIR}${place}")
  # A folder that does not exist is created in its nearest existing parent, so that one must be writable.
  set(folder "${place}")
  while(NOT EXISTS "${folder}")
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
  execute_process(COMMAND test -d "${folder}" -a -w "${folder}" -a -x "${folder}" RESULT_VARIABLE refused)
  if(refused)
    message(FATAL_ERROR "Nothing was installed: ${folder} cannot be written, and ${place} is to be there. "
      "Install with sudo, or put everything below a folder of yours: DESTDIR=FOLDER in front of the command "
      "(or -DBV_INSTALL_ROOT=FOLDER at configuring, for what is not below the prefix).")
  endif()
  list(APPEND folders "${place}")
endforeach()
execute_process(COMMAND sh -c "umask 022 && mkdir -p \"$@\"" sh ${folders} COMMAND_ERROR_IS_FATAL ANY)
