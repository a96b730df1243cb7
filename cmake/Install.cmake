# Where everything goes on an installed system. Programs lie below the prefix; what the printer's software shares lies at
# fixed paths below /Library, whatever the prefix (BV_INSTALL_ROOT puts a directory in front, as BVCO_ROOT does at run
# time; a package uses DESTDIR instead).
set(BV_INSTALL_ROOT "" CACHE PATH "Directory put in front of the fixed /Library paths on installation")
set(BV_LIBRARY "${BV_INSTALL_ROOT}/Library")

install(TARGETS bvprint RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# bvprint looks for the plug-in beside itself, in ../lib/bvco.
install(TARGETS bvco LIBRARY DESTINATION lib/bvco)
install(TARGETS QL70Helper QL70Walk RUNTIME
  DESTINATION "${BV_LIBRARY}/Application Support/BREVANE/QL70/Helpers/QL70Helper.app/Contents/MacOS")

install(FILES ${CMAKE_SOURCE_DIR}/resources/QL70.ppd DESTINATION ${CMAKE_INSTALL_DATADIR}/ppd/brevane)
install(FILES ${CMAKE_SOURCE_DIR}/resources/bvprint.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_SOURCE_DIR}/resources/icons/bvprint.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${CMAKE_SOURCE_DIR}/resources/icons/fileExistqnQL70.icns
  DESTINATION "${BV_LIBRARY}/Printers/BREVANE/QL70/Icons")
install(DIRECTORY DESTINATION "${BV_LIBRARY}/Printers/BREVANE/QL70/Profiles")

# The folder of the profile lists: whoever can write it manages profiles, and nobody another user's. The group is the
# administrator's or the package's to give (chgrp lpadmin), since it need not exist here.
set(BV_LISTS "${BV_LIBRARY}/Printers/BREVANE/Preferences/vnd.brevane.printers.QL70")
install(DIRECTORY DESTINATION "${BV_LISTS}")
# Set-group-id and sticky; CMake has no word for the second.
install(CODE "execute_process(COMMAND chmod 3775 \"\$ENV{DESTDIR}${BV_LISTS}\" COMMAND_ERROR_IS_FATAL ANY)")
