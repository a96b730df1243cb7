# SPDX-License-Identifier: GPL-2.0-or-later
# The places of an installed system. Programs are below the prefix. Files shared with the printer's other software are
# at fixed paths below /Library, whatever the prefix. BV_INSTALL_ROOT puts a directory in front of these paths, as
# BVCO_ROOT does at run time; a package uses DESTDIR instead.
set(BV_INSTALL_ROOT "" CACHE PATH "Directory put in front of the fixed /Library paths on installation")
set(BV_LIBRARY "${BV_INSTALL_ROOT}/Library")
# The folder of the profile lists. A user who can write here may manage profiles, but only the own list.
set(BV_LISTS "${BV_LIBRARY}/Printers/BREVANE/Preferences/vnd.brevane.printers.QL70")

set(BV_HELPERS "${BV_LIBRARY}/Application Support/BREVANE/QL70/Helpers/QL70Helper.app/Contents/MacOS")
set(BV_SHARED "${BV_LIBRARY}/Printers/BREVANE/QL70")
set(BV_PPD_FOLDER ${CMAKE_INSTALL_DATADIR}/ppd/brevane)
set(BV_APPLICATIONS ${CMAKE_INSTALL_DATADIR}/applications)
set(BV_ICONS ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
# The print server's folder of filters (cups-config --serverbin), relative to the prefix /usr.
set(BV_FILTERS lib/cups/filter)
set(BV_PORTALS ${CMAKE_INSTALL_DATADIR}/xdg-desktop-portal/portals)
set(BV_SERVICES ${CMAKE_INSTALL_DATADIR}/dbus-1/services)
set(BV_SERVICE_MENUS ${CMAKE_INSTALL_DATADIR}/kio/servicemenus)
set(BV_NEMO_ACTIONS ${CMAKE_INSTALL_DATADIR}/nemo/actions)
set(BV_METAINFO ${CMAKE_INSTALL_DATADIR}/metainfo)
# Where the shells look for completions of programs that are not their own.
set(BV_BASH_COMPLETIONS ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
set(BV_ZSH_COMPLETIONS ${CMAKE_INSTALL_DATADIR}/zsh/site-functions CACHE STRING "Folder of zsh's completions")
set(BV_FISH_COMPLETIONS ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
set(BV_MAN_PLACES "")
if(TARGET bvmanual)
  set(BV_MAN_PLACES ${CMAKE_INSTALL_MANDIR}/man1 ${CMAKE_INSTALL_MANDIR}/man8)
endif()
set(BV_PLACES ${CMAKE_INSTALL_BINDIR} lib/bvco ${BV_FILTERS} ${BV_PPD_FOLDER} ${BV_APPLICATIONS} ${BV_ICONS} ${BV_PORTALS} ${BV_SERVICES}
  ${BV_SERVICE_MENUS} ${BV_NEMO_ACTIONS} ${BV_METAINFO} ${BV_MAN_PLACES}
  ${BV_BASH_COMPLETIONS} ${BV_ZSH_COMPLETIONS} ${BV_FISH_COMPLETIONS}
  "${BV_HELPERS}" "${BV_SHARED}/Icons" "${BV_SHARED}/Profiles" "${BV_LIBRARY}/Printers/BREVANE/Preferences")

# Runs first, so that an installation is never left half done. Also creates the folders.
install(CODE "
  set(places [==[${BV_PLACES}]==])
  set(build [==[${CMAKE_BINARY_DIR}]==])
  set(programs [==[$<TARGET_FILE:bvprint>;$<TARGET_FILE:bvportal>;$<TARGET_FILE:bvco>;$<TARGET_FILE:bvpages>;$<TARGET_FILE:QL70Helper>;$<TARGET_FILE:QL70Walk>;$<TARGET_FILE:QL70Resolve>;$<TARGET_FILE:bvql70>]==])
  include([==[${CMAKE_SOURCE_DIR}/cmake/InstallCheck.cmake]==])")

install(TARGETS bvprint bvportal RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
# bvprint looks for the plug-in and for bvpages beside itself, in ../lib/bvco.
install(TARGETS bvco LIBRARY DESTINATION lib/bvco)
install(TARGETS bvpages QL70Resolve RUNTIME DESTINATION lib/bvco)
install(TARGETS QL70Helper QL70Walk RUNTIME DESTINATION "${BV_HELPERS}")

install(TARGETS bvql70 RUNTIME DESTINATION ${BV_FILTERS})

install(FILES ${CMAKE_SOURCE_DIR}/resources/QL70.ppd DESTINATION ${BV_PPD_FOLDER})
install(FILES ${CMAKE_SOURCE_DIR}/resources/desktop/vnd.brevane.bvprint.desktop DESTINATION ${BV_APPLICATIONS})
# The service file holds the path of bvportal, and the prefix is known at installation only.
set(BV_SERVICE org.freedesktop.impl.portal.desktop.bvprint.service)
install(FILES ${CMAKE_SOURCE_DIR}/resources/portal/vnd.brevane.bvprint.portal DESTINATION ${BV_PORTALS})
install(CODE "
  set(BV_PORTAL \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/bvportal\")
  if(BV_PORTAL MATCHES \"[^A-Za-z0-9/._+-]\")
    # The message bus takes the line apart like a shell, after the escapes of the file.
    string(REGEX REPLACE [==[([\"$`])]==] [==[\\\\\\\\\\1]==] BV_PORTAL \"\${BV_PORTAL}\")
    set(BV_PORTAL \"\\\"\${BV_PORTAL}\\\"\")
  endif()
  configure_file([==[${CMAKE_SOURCE_DIR}/resources/portal/${BV_SERVICE}.in]==]
    [==[${CMAKE_BINARY_DIR}/${BV_SERVICE}]==] @ONLY)")
install(FILES ${CMAKE_BINARY_DIR}/${BV_SERVICE} DESTINATION ${BV_SERVICES})
# File managers offer printing by these, and no desktop takes bvprint for the opener of a type.
install(FILES ${CMAKE_SOURCE_DIR}/resources/desktop/vnd.brevane.bvprint.servicemenu.desktop DESTINATION ${BV_SERVICE_MENUS}
  RENAME vnd.brevane.bvprint.desktop)
install(FILES ${CMAKE_SOURCE_DIR}/resources/desktop/vnd.brevane.bvprint.nemo_action DESTINATION ${BV_NEMO_ACTIONS})
install(FILES ${CMAKE_SOURCE_DIR}/resources/desktop/vnd.brevane.bvprint.metainfo.xml DESTINATION ${BV_METAINFO})
if(TARGET bvmanual) # the simulated printer is not installed, and neither is its page
  install(FILES ${CMAKE_BINARY_DIR}/share/man/bvprint.1 ${CMAKE_BINARY_DIR}/share/man/bvportal.1
          DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${CMAKE_BINARY_DIR}/share/man/bvql70.8 ${CMAKE_SOURCE_DIR}/resources/manual/QL70Helper.8
          DESTINATION ${CMAKE_INSTALL_MANDIR}/man8)
endif()
set(completion ${CMAKE_SOURCE_DIR}/resources/completion)
install(FILES ${completion}/bvprint.bash DESTINATION ${BV_BASH_COMPLETIONS} RENAME bvprint)
install(FILES ${completion}/_bvprint DESTINATION ${BV_ZSH_COMPLETIONS})
install(FILES ${completion}/bvprint.fish DESTINATION ${BV_FISH_COMPLETIONS})
install(FILES ${CMAKE_SOURCE_DIR}/resources/icons/vnd.brevane.bvprint.svg DESTINATION ${BV_ICONS})
install(FILES ${CMAKE_SOURCE_DIR}/resources/icons/fileExistqnQL70.icns DESTINATION "${BV_SHARED}/Icons")

# Set-group-id and sticky; CMake has no keyword for sticky. The administrator or the package sets the group (chgrp
# lpadmin), since it may not exist here. An existing folder keeps its mode.
install(CODE "
  set(lists [==[${BV_LISTS}]==])
  set(lists \"\$ENV{DESTDIR}\${lists}\")
  if(NOT IS_DIRECTORY \"\${lists}\")
    file(MAKE_DIRECTORY \"\${lists}\")
    execute_process(COMMAND chmod 3775 \"\${lists}\" COMMAND_ERROR_IS_FATAL ANY)
  endif()")

# Removes what was installed from this build folder. Lists stay, and so does their folder while it holds any.
add_custom_target(uninstall
  COMMAND ${CMAKE_COMMAND} -Dmanifest=${CMAKE_BINARY_DIR}/install_manifest.txt -Dlibrary=${BV_LIBRARY} -Dlists=${BV_LISTS}
    -P ${CMAKE_SOURCE_DIR}/cmake/Uninstall.cmake
  VERBATIM)
