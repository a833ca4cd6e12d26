# Where the program goes when it is installed, and its packages: an archive with the bundle, which
# works wherever it is unpacked, and a Debian package.
# The places are fixed because the link to the program is relative.
set(packageName quillon-settings)

# Resources come from the sources: the built bundle holds the settings of whoever tried it.
function(install_bundle folder)
  install(TARGETS quillon-settings RUNTIME DESTINATION ${folder}/Contents/MacOS ${ARGN})
  install(FILES ${contents}/Info.plist DESTINATION ${folder}/Contents ${ARGN})
  foreach(resource ${resources})
    get_filename_component(place ${folder}/Contents/Resources/${resource} DIRECTORY)
    install(FILES resources/${resource} DESTINATION ${place} ${ARGN})
  endforeach()
  install(FILES ${languages} DESTINATION ${folder}/Contents/Resources ${ARGN})
endfunction()

function(install_link target folder)
  set(link ${CMAKE_BINARY_DIR}/links/${folder}/${packageName})
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links/${folder})
  file(CREATE_LINK ${target} ${link} SYMBOLIC)
  install(FILES ${link} DESTINATION ${folder} ${ARGN})
endfunction()

set(program QuillonSettings.app/Contents/MacOS/quillon-settings)
install_bundle(lib/${packageName}/QuillonSettings.app)
install_link(../lib/${packageName}/${program} bin)

install(FILES resources/desktop/org.quillon.settings.desktop DESTINATION share/applications)
install(FILES resources/desktop/org.quillon.settings.metainfo.xml DESTINATION share/metainfo)
set(icons share/icons/hicolor)
install(FILES resources/icons/quillon-settings.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 32 48 64 128 256)
  install(FILES resources/icons/quillon-settings-${size}.png
          DESTINATION ${icons}/${size}x${size}/apps RENAME quillon-settings.png)
endforeach()
install(FILES packaging/quillon-settings.bash
        DESTINATION share/bash-completion/completions RENAME ${packageName})

# Without name and time, so that the same text always gives the same file.
find_program(GZIP_PROGRAM gzip REQUIRED)
foreach(text packaging/quillon-settings.1 packaging/debian/changelog)
  get_filename_component(name ${text} NAME)
  set(packed ${CMAKE_BINARY_DIR}/${name}.gz)
  add_custom_command(
    OUTPUT ${packed}
    COMMAND ${GZIP_PROGRAM} -9nc ${CMAKE_SOURCE_DIR}/${text} > ${packed}
    DEPENDS ${text})
  list(APPEND manuals ${packed})
endforeach()
add_custom_target(manuals ALL DEPENDS ${manuals})
install(FILES ${CMAKE_BINARY_DIR}/quillon-settings.1.gz DESTINATION share/man/man1)
install(FILES ${CMAKE_BINARY_DIR}/changelog.gz packaging/debian/copyright
        DESTINATION share/doc/${packageName})

# The archive; nothing of this is installed otherwise. Beside the bundle is room for the emulator
# and for disk images.
set(archive COMPONENT archive EXCLUDE_FROM_ALL)
install_bundle(QuillonSettings.app ${archive})
install_link(${program} . ${archive})
install(FILES LICENSE DESTINATION . ${archive})

set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_SOURCE_DIR}/packaging/cpack.cmake)
set(CPACK_GENERATOR TGZ DEB)
set(CPACK_PACKAGE_NAME ${packageName})
string(TOLOWER ${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR} platform)
set(CPACK_PACKAGE_FILE_NAME ${packageName}-${PROJECT_VERSION}-${platform})
set(CPACK_PACKAGE_VENDOR "The Quillon Settings developers")
set(CPACK_PACKAGE_CONTACT "${CPACK_PACKAGE_VENDOR} <developers@quillon.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "settings window of the Quillon emulator")
set(CPACK_PACKAGE_DESCRIPTION
    "Quillon emulates 68k Macintosh computers and is set up by a preferences file.
This program shows that file as one window with tabs, writes it back, makes
blank disk images and starts the emulator, which is not part of this package.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION otherosfs)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland")
include(CPack)
