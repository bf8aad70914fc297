# Two ways to install. The plain one, `cmake --install BUILD --prefix FOLDER`, makes a folder that
# can be moved and started from anywhere: program, sounds, tunes, icon and a desktop entry. With
# TOMBRELLO_DATA set, everything goes where a system keeps it, for packages.

# The date of this version, from its heading in the change log.
file(STRINGS CHANGELOG.md heading REGEX "^## ${PROJECT_VERSION} ")
string(REGEX MATCH "[0-9]+-[0-9]+-[0-9]+" TOMBRELLO_DATE "${heading}")

if(TOMBRELLO_DATA)
  if(NOT TOMBRELLO_LIBRARIES)
    message(FATAL_ERROR "TOMBRELLO_DATA wants TOMBRELLO_LIBRARIES beside it")
  endif()
  set(TOMBRELLO_PROGRAM ${CMAKE_INSTALL_PREFIX}/games/tombrello)
  set(program_folder games)
  set(media_folder ${TOMBRELLO_DATA})
  set(library_folder ${TOMBRELLO_LIBRARIES})
else()
  set(TOMBRELLO_PROGRAM tombrello)
  set(program_folder .)
  set(media_folder .)
  set(library_folder .)
endif()
configure_file(packaging/tombrello.desktop.in tombrello.desktop @ONLY)
install(TARGETS tombrello RUNTIME DESTINATION ${program_folder})
install(TARGETS tombrello_sound LIBRARY DESTINATION ${library_folder})
install(DIRECTORY assets/sounds DESTINATION ${media_folder} FILES_MATCHING PATTERN "*.wav")
install(DIRECTORY assets/music DESTINATION ${media_folder} FILES_MATCHING PATTERN "*.mid")

if(TOMBRELLO_DATA)
  configure_file(packaging/tombrello.metainfo.xml.in tombrello.metainfo.xml @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/tombrello.desktop DESTINATION share/applications)
  install(FILES ${PROJECT_BINARY_DIR}/tombrello.metainfo.xml DESTINATION share/metainfo)
  install(FILES packaging/man/tombrello.6 DESTINATION share/man/man6)
  install(FILES packaging/man/it/tombrello.6 DESTINATION share/man/it/man6)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/hicolor DESTINATION share/icons)
else()
  install(FILES LEGGIMI.md docs/pictures/tombrello.png DESTINATION .)
  # The notice of the library whose headers turn drawings into pixels.
  install(FILES /usr/share/doc/libagg-dev/copyright DESTINATION . RENAME AGG.txt)
  install(PROGRAMS packaging/desktop-entry.sh DESTINATION .)
  install(PROGRAMS ${PROJECT_BINARY_DIR}/tombrello.desktop DESTINATION . RENAME Tombrello.desktop)
  install(CODE "cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_PREFIX OUTPUT_VARIABLE home)
    execute_process(COMMAND \"\$ENV{DESTDIR}\${home}/desktop-entry.sh\" COMMAND_ERROR_IS_FATAL ANY)")
endif()
