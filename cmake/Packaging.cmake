# Installation and the Debian package.
# `cmake --install build` puts the programs, their manual pages, the menu entry,
# the icons and the AppStream metadata where Linux desktops look for them;
# `cpack -G DEB` in the build folder wraps the same files into glimmer_<version>_<arch>.deb.
include(GNUInstallDirs)

# The package holds a few programs: installing and packaging do not rebuild every test
# and benchmark first (build, then install or run cpack).
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

set(GLIMMER_APP_ID org.glimmer.Glimmer)
set(GLIMMER_DOC_DIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/glimmer)
set(GLIMMER_DESKTOP_DIR ${PROJECT_SOURCE_DIR}/resources/desktop)
set(GLIMMER_DEBIAN_DIR ${PROJECT_SOURCE_DIR}/resources/debian)
set(GLIMMER_GENERATED_DIR ${CMAKE_BINARY_DIR}/packaging)

# Every installed program with the one-line summary of its manual page.
set(GLIMMER_PROGRAMS glimmer glimmer-speechd)
set(GLIMMER_MAN_NAME_glimmer "turn the moments of a video into still pictures with their captions")
set(GLIMMER_MAN_NAME_glimmer-speechd "local speech-recognition service for Glimmer")
if(TARGET glimmer-cli)
    list(APPEND GLIMMER_PROGRAMS glimmer-cli)
    set(GLIMMER_MAN_NAME_glimmer-cli "stitch the captioned frames of a video into one picture, without a window")
endif()

find_program(GLIMMER_HELP2MAN help2man)
find_program(GLIMMER_RSVG_CONVERT rsvg-convert)
find_program(GLIMMER_GZIP gzip)
if(NOT GLIMMER_HELP2MAN OR NOT GLIMMER_RSVG_CONVERT OR NOT GLIMMER_GZIP)
    message(WARNING "help2man, rsvg-convert or gzip is missing: manual pages and PNG icons are not built "
                    "(bash scripts/setup.sh installs them)")
endif()

set(GLIMMER_GENERATED_FILES)

# Manual pages from each program's --help and --version, compressed the way Debian wants
# (best compression, no name or time stamp in the header).
if(GLIMMER_HELP2MAN AND GLIMMER_GZIP)
    foreach(program ${GLIMMER_PROGRAMS})
        set(page ${GLIMMER_GENERATED_DIR}/man/${program}.1)
        add_custom_command(OUTPUT ${page}.gz
            COMMAND ${CMAKE_COMMAND} -E make_directory ${GLIMMER_GENERATED_DIR}/man
            COMMAND ${GLIMMER_HELP2MAN} --no-info --no-discard-stderr
                    "--name=${GLIMMER_MAN_NAME_${program}}" --output=${page} $<TARGET_FILE:${program}>
            COMMAND ${GLIMMER_GZIP} -9nf ${page}
            DEPENDS ${program}
            COMMENT "Writing the manual page of ${program}"
            VERBATIM)
        list(APPEND GLIMMER_GENERATED_FILES ${page}.gz)
        install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    endforeach()
endif()

# PNG icons for desktops and software centres that do not draw the SVG.
if(GLIMMER_RSVG_CONVERT)
    foreach(size 64 128)
        set(icon ${GLIMMER_GENERATED_DIR}/icons/${size}x${size}/glimmer.png)
        add_custom_command(OUTPUT ${icon}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${GLIMMER_GENERATED_DIR}/icons/${size}x${size}
            COMMAND ${GLIMMER_RSVG_CONVERT} --width=${size} --height=${size} --output=${icon}
                    ${GLIMMER_DESKTOP_DIR}/glimmer.svg
            DEPENDS ${GLIMMER_DESKTOP_DIR}/glimmer.svg
            VERBATIM)
        list(APPEND GLIMMER_GENERATED_FILES ${icon})
        install(FILES ${icon} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
    endforeach()
endif()

# Debian keeps a native package's changelog compressed in its doc folder.
if(GLIMMER_GZIP)
    set(changelog ${GLIMMER_GENERATED_DIR}/changelog.gz)
    add_custom_command(OUTPUT ${changelog}
        COMMAND ${GLIMMER_GZIP} -9nc ${GLIMMER_DEBIAN_DIR}/changelog > ${changelog}
        DEPENDS ${GLIMMER_DEBIAN_DIR}/changelog)
    list(APPEND GLIMMER_GENERATED_FILES ${changelog})
    install(FILES ${changelog} DESTINATION ${GLIMMER_DOC_DIR})
endif()

add_custom_target(glimmer_install_files ALL DEPENDS ${GLIMMER_GENERATED_FILES})

install(TARGETS ${GLIMMER_PROGRAMS} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${GLIMMER_DESKTOP_DIR}/${GLIMMER_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${GLIMMER_DESKTOP_DIR}/${GLIMMER_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${GLIMMER_DESKTOP_DIR}/glimmer.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${GLIMMER_DEBIAN_DIR}/copyright DESTINATION ${GLIMMER_DOC_DIR})
install(DIRECTORY ${GLIMMER_DESKTOP_DIR}/screenshots DESTINATION ${GLIMMER_DOC_DIR})

# The Debian package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME glimmer)
set(CPACK_PACKAGE_VENDOR "Glimmer developers")
set(CPACK_PACKAGE_CONTACT "Glimmer developers <glimmer@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "turn the moments of a video into pictures with their captions")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://www.glimmer-app.org)
# The summary above becomes the first line.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Glimmer captures the frames of a video together with their captions and
stitches them into one picture or exports them one by one. Captions come
from subtitle files (ASS or SRT) or from the bundled local speech service
(English), and can be edited in place on the video.")
# Libraries from dpkg-shlibdeps; the programs and data it runs are named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "ffmpeg, aria2, pocketsphinx-en-us, qt5-image-formats-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-cjk")
include(CPack)
