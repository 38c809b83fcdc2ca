# The Debian package: what is installed beside the program and its data, and how it is packed.
# Only with the preset "package"; script/package does it all.

set(PACKAGING ${CMAKE_CURRENT_LIST_DIR})

# A release is told in three places, the first of them in the project's own line.
function(expect_release file words)
  file(READ ${PACKAGING}/${file} text)
  string(FIND "${text}" "${words}" place)
  if(place EQUAL -1)
    message(FATAL_ERROR "packaging/${file} doesn't tell of ${PROJECT_VERSION}: no \"${words}\"")
  endif()
endfunction()
expect_release(changelog "ratanka (${PROJECT_VERSION}) ")
expect_release(sk.ratanka.ratanka.metainfo.xml "<release version=\"${PROJECT_VERSION}\"")

# The program's sign for menus and docks, as it is and in the sizes that desktops ask for.
set(SIGN ${PROJECT_SOURCE_DIR}/assets/pictures/program.svg)
set(ICON_SIZES 16 22 24 32 48 64 128 256 512)
set(ICON_FOLDER ${PROJECT_BINARY_DIR}/icons)
set(ICON_FILES)
foreach(size IN LISTS ICON_SIZES)
  list(APPEND ICON_FILES ${ICON_FOLDER}/${size}.png)
  install(FILES ${ICON_FOLDER}/${size}.png RENAME ratanka.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
add_custom_command(OUTPUT ${ICON_FILES}
                   COMMAND ${CMAKE_COMMAND} -E make_directory ${ICON_FOLDER}
                   COMMAND make_icons ${SIGN} ${ICON_FOLDER} ${ICON_SIZES}
                   DEPENDS make_icons ${SIGN} VERBATIM)
install(FILES ${SIGN} RENAME ratanka.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

# Pages that Debian wants packed, and without a time in them.
set(PACKED_FILES)
foreach(page ratanka.6 changelog)
  set(packed ${PROJECT_BINARY_DIR}/${page}.gz)
  list(APPEND PACKED_FILES ${packed})
  add_custom_command(OUTPUT ${packed}
                     COMMAND ${CMAKE_COMMAND} -E copy ${PACKAGING}/${page} ${PROJECT_BINARY_DIR}
                     COMMAND gzip -9nf ${PROJECT_BINARY_DIR}/${page}
                     DEPENDS ${PACKAGING}/${page} VERBATIM)
endforeach()
add_custom_target(package_files ALL DEPENDS ${ICON_FILES} ${PACKED_FILES})
install(FILES ${PROJECT_BINARY_DIR}/ratanka.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${PROJECT_BINARY_DIR}/changelog.gz ${PACKAGING}/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/ratanka)
install(FILES ${PACKAGING}/ratanka.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PACKAGING}/sk.ratanka.ratanka.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# A school's own maze outlives an upgrade: it lies where Debian keeps what people change, and where
# the program looks for it there is a link.
set(KEPT_MAZE ${CMAKE_INSTALL_FULL_SYSCONFDIR}/ratanka/bludisko.txt)
install(FILES ${PROJECT_BINARY_DIR}/bludisko.txt
        DESTINATION ${CMAKE_INSTALL_FULL_SYSCONFDIR}/ratanka)
install(CODE "file(CREATE_LINK ${KEPT_MAZE}
                   \$ENV{DESTDIR}${CMAKE_INSTALL_FULL_DATADIR}/ratanka/bludisko.txt SYMBOLIC)")
file(WRITE ${PROJECT_BINARY_DIR}/conffiles "${KEPT_MAZE}\n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/conffiles)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ratanka)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "sums for small schoolchildren, with games as a reward")
file(READ ${PACKAGING}/description.txt CPACK_PACKAGE_DESCRIPTION)
set(CPACK_PACKAGE_CONTACT "Rátanka's makers <makers@ratanka.example>")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# What the program and its sound module are linked with, and nothing by hand: the toolkit's library
# brings what it needs for X11 along. The sound libraries are among them, though the program can do
# without: otherwise an installation without recommended packages would be mute for good, and no
# child could tell why.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Without these it works all the same: on Wayland through X11, with English buttons in boxes, with
# letters of other widths, without instruments.
string(CONCAT CPACK_DEBIAN_PACKAGE_RECOMMENDS
       "qt6-wayland, qt6-translations-l10n, fonts-liberation, fonts-comic-neue, "
       "timgm6mb-soundfont | sf3-soundfont-gm")
include(CPack)
