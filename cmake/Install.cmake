# Where everything goes on an installed system. Programs lie below the prefix; what the printer's software shares lies at
# fixed paths below /Library, whatever the prefix (BV_INSTALL_ROOT puts a directory in front, as BVCO_ROOT does at run
# time; a package uses DESTDIR instead).
set(BV_INSTALL_ROOT "" CACHE PATH "Directory put in front of the fixed /Library paths on installation")
set(BV_LIBRARY "${BV_INSTALL_ROOT}/Library")
# The folder of the profile lists: whoever can write it manages profiles, and nobody another user's.
set(BV_LISTS "${BV_LIBRARY}/Printers/BREVANE/Preferences/vnd.brevane.printers.QL70")

set(BV_HELPERS "${BV_LIBRARY}/Application Support/BREVANE/QL70/Helpers/QL70Helper.app/Contents/MacOS")
set(BV_SHARED "${BV_LIBRARY}/Printers/BREVANE/QL70")
set(BV_PPD_FOLDER ${CMAKE_INSTALL_DATADIR}/ppd/brevane)
set(BV_APPLICATIONS ${CMAKE_INSTALL_DATADIR}/applications)
set(BV_ICONS ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
# Where the print server looks for filters (cups-config --serverbin), seen from the prefix /usr.
set(BV_FILTERS lib/cups/filter)
set(BV_PLACES ${CMAKE_INSTALL_BINDIR} lib/bvco ${BV_FILTERS} ${BV_PPD_FOLDER} ${BV_APPLICATIONS} ${BV_ICONS}
  "${BV_HELPERS}" "${BV_SHARED}/Icons" "${BV_SHARED}/Profiles" "${BV_LIBRARY}/Printers/BREVANE/Preferences")

# First of all, since half an installation is worse than none. It makes the folders, too.
install(CODE "
  set(places [==[${BV_PLACES}]==])
  set(programs [==[$<TARGET_FILE:bvprint>;$<TARGET_FILE:bvco>;$<TARGET_FILE:QL70Helper>;$<TARGET_FILE:QL70Walk>;$<TARGET_FILE:bvql70>]==])
  include([==[${CMAKE_SOURCE_DIR}/cmake/InstallCheck.cmake]==])")

install(TARGETS bvprint RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# bvprint looks for the plug-in beside itself, in ../lib/bvco.
install(TARGETS bvco LIBRARY DESTINATION lib/bvco)
install(TARGETS QL70Helper QL70Walk RUNTIME DESTINATION "${BV_HELPERS}")

install(TARGETS bvql70 RUNTIME DESTINATION ${BV_FILTERS})

install(FILES ${CMAKE_SOURCE_DIR}/resources/QL70.ppd DESTINATION ${BV_PPD_FOLDER})
install(FILES ${CMAKE_SOURCE_DIR}/resources/bvprint.desktop DESTINATION ${BV_APPLICATIONS})
install(FILES ${CMAKE_SOURCE_DIR}/resources/icons/bvprint.svg DESTINATION ${BV_ICONS})
install(FILES ${CMAKE_SOURCE_DIR}/resources/icons/fileExistqnQL70.icns DESTINATION "${BV_SHARED}/Icons")

# Set-group-id and sticky; CMake has no word for the second. The group is the administrator's or the package's to give
# (chgrp lpadmin), since it need not exist here. A folder that is there already keeps the rights it was given.
install(CODE "
  set(lists [==[${BV_LISTS}]==])
  set(lists \"\$ENV{DESTDIR}\${lists}\")
  if(NOT IS_DIRECTORY \"\${lists}\")
    file(MAKE_DIRECTORY \"\${lists}\")
    execute_process(COMMAND chmod 3775 \"\${lists}\" COMMAND_ERROR_IS_FATAL ANY)
  endif()")

# What was installed from this build folder goes away again; lists stay, and their folder as long as it holds any.
add_custom_target(uninstall
  COMMAND ${CMAKE_COMMAND} -Dmanifest=${CMAKE_BINARY_DIR}/install_manifest.txt -Dlibrary=${BV_LIBRARY} -Dlists=${BV_LISTS}
    -P ${CMAKE_SOURCE_DIR}/cmake/Uninstall.cmake
  VERBATIM)
