# `cmake --install BUILD --prefix FOLDER` makes a folder that can be moved and started from
# anywhere: program, sounds, tunes, icon and a desktop entry.
install(TARGETS tombrello RUNTIME DESTINATION .)
install(DIRECTORY sounds DESTINATION . FILES_MATCHING PATTERN "*.wav")
install(DIRECTORY music DESTINATION . FILES_MATCHING PATTERN "*.mid")
install(FILES LEGGIMI.md docs/pictures/tombrello.png DESTINATION .)
# The entry names the icon by its place: run the install again after moving the folder, or only
# the picture in the menu is lost.
install(CODE "configure_file(\"${PROJECT_SOURCE_DIR}/cmake/Tombrello.desktop.in\"
                             \"\${CMAKE_INSTALL_PREFIX}/Tombrello.desktop\" @ONLY)")
