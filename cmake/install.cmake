# `cmake --install BUILD --prefix FOLDER` makes a folder that can be moved and started from
# anywhere: program, sounds, tunes, icon and a desktop entry.
install(TARGETS tombrello RUNTIME DESTINATION .)
install(DIRECTORY assets/sounds DESTINATION . FILES_MATCHING PATTERN "*.wav")
install(DIRECTORY assets/music DESTINATION . FILES_MATCHING PATTERN "*.mid")
install(FILES LEGGIMI.md docs/pictures/tombrello.png DESTINATION .)
# The entry finds the program beside itself, or, copied into a menu, where it was installed. It
# names the icon by its place: after moving the folder, install again or lose the picture.
install(CODE "cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_PREFIX OUTPUT_VARIABLE home)
  configure_file(\"${PROJECT_SOURCE_DIR}/cmake/Tombrello.desktop.in\"
                 \"\$ENV{DESTDIR}\${home}/Tombrello.desktop\" @ONLY)")
