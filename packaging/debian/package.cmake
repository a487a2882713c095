# What is installed on Linux, and the Debian package that CPack makes of it.
include(GNUInstallDirs)

set(TAVREL_PACKAGE tavrel-writer)
set(TAVREL_COMPONENT example.tavrelwriter.editor)
set(TAVREL_DOCS ${CMAKE_INSTALL_DATAROOTDIR}/doc/${TAVREL_PACKAGE})
set(TAVREL_PACKAGED ${CMAKE_CURRENT_BINARY_DIR}/packaging)

file(READ LICENSE license)
if(NOT license MATCHES "Copyright \\(c\\) ([^\n]+)\n+(.+[^\n])\n*$")
  message(FATAL_ERROR "LICENSE does not name who holds the copyright")
endif()
set(TAVREL_COPYRIGHT "${CMAKE_MATCH_1}")
# A Debian copyright file indents the licence and writes a dot for an empty line.
string(REPLACE "\n\n" "\n.\n" license "${CMAKE_MATCH_2}")
string(REPLACE "\n" "\n " TAVREL_LICENSE " ${license}")

foreach(input changelog copyright tavrel-writer.1 tavrel-notes.1 tavrel-writer.metainfo.xml)
  configure_file(packaging/debian/${input}.in ${TAVREL_PACKAGED}/${input} @ONLY)
endforeach()

# The newest entries of the two files that list releases have to be the version that is built.
file(READ ${TAVREL_PACKAGED}/changelog changelog LIMIT 200)
file(READ ${TAVREL_PACKAGED}/tavrel-writer.metainfo.xml metainfo)
if(NOT changelog MATCHES "^${TAVREL_PACKAGE} \\(([0-9.]+)-([^)]+)\\)" OR NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "packaging/debian/changelog.in does not begin with version ${PROJECT_VERSION}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_2})
if(NOT metainfo MATCHES "<release version=\"([0-9.]+)\"" OR NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "packaging/debian/tavrel-writer.metainfo.xml.in does not list version ${PROJECT_VERSION} first")
endif()

# gzip would keep the time and the name, which say nothing here.
function(tavrel_gzip input output)
  add_custom_command(OUTPUT ${TAVREL_PACKAGED}/${output}
    COMMAND gzip -9nc ${input} > ${TAVREL_PACKAGED}/${output}
    DEPENDS ${input} VERBATIM)
  set_property(GLOBAL APPEND PROPERTY TAVREL_GZIPPED ${TAVREL_PACKAGED}/${output})
endfunction()
tavrel_gzip(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog.gz)
tavrel_gzip(${TAVREL_PACKAGED}/changelog changelog.Debian.gz)
tavrel_gzip(${TAVREL_PACKAGED}/tavrel-writer.1 tavrel-writer.1.gz)
tavrel_gzip(${TAVREL_PACKAGED}/tavrel-notes.1 tavrel-notes.1.gz)
get_property(gzipped GLOBAL PROPERTY TAVREL_GZIPPED)
add_custom_target(tavrel_package_files ALL DEPENDS ${gzipped})

install(PROGRAMS $<TARGET_FILE:tavrel_writer> DESTINATION ${CMAKE_INSTALL_BINDIR} RENAME ${TAVREL_PACKAGE})
install(PROGRAMS $<TARGET_FILE:tavrel_notes> DESTINATION ${CMAKE_INSTALL_BINDIR})
# CMake would strip only a target that is installed under its own name.
install(CODE "
  if(CMAKE_INSTALL_DO_STRIP)
    foreach(program ${TAVREL_PACKAGE} tavrel-notes)
      execute_process(COMMAND ${CMAKE_STRIP} --strip-unneeded --remove-section=.comment --remove-section=.note
        \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/\${program}\" COMMAND_ERROR_IS_FATAL ANY)
    endforeach()
  endif()")
install(FILES packaging/debian/tavrel-writer.desktop DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications)
install(FILES ${TAVREL_PACKAGED}/tavrel-writer.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/metainfo
  RENAME ${TAVREL_COMPONENT}.metainfo.xml)
install(FILES ${TAVREL_PACKAGED}/tavrel-writer.1.gz ${TAVREL_PACKAGED}/tavrel-notes.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${TAVREL_PACKAGED}/copyright ${TAVREL_PACKAGED}/changelog.gz ${TAVREL_PACKAGED}/changelog.Debian.gz
  DESTINATION ${TAVREL_DOCS})
foreach(size 16 24 32 48 64 128 256)
  install(FILES resources/icons/tavrel-${size}.png RENAME ${TAVREL_PACKAGE}.png
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES resources/icons/tavrel.svg RENAME ${TAVREL_PACKAGE}.svg
  DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor/scalable/apps)
install(FILES packaging/debian/lintian-overrides RENAME ${TAVREL_PACKAGE}
  DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${TAVREL_PACKAGE})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The Tavrel Writer developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor that publishes linked pages as iPod notes")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Tavrel Writer developers <${TAVREL_SUPPORT_ADDRESS}>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${TAVREL_HOME_PAGE})
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Tavrel Writer is a desktop editor for guides, recipes, stories, tours and
lessons made of up to 999 linked pages. It publishes them as a folder of notes
and carries the notes to a connected iPod, where links lead from note to note
and to music.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
