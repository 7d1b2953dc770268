# Debian packages of the components.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zentrox)
set(CPACK_PACKAGE_VENDOR "The Zentrox developers")
set(CPACK_PACKAGE_CONTACT "The Zentrox developers <zentrox@zentrox.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL game tools demo)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://zentrox.example/)

set(CPACK_COMPONENT_GAME_DESCRIPTION "point-and-click adventure game
Plays German adventures: rooms to look at, things to carry and to combine,
people to talk to, and eight mini-games that decide how the story goes on.
A story is a directory or one packed file.")
set(CPACK_DEBIAN_GAME_PACKAGE_NAME zentrox)
set(CPACK_DEBIAN_GAME_PACKAGE_SECTION games)
set(CPACK_DEBIAN_GAME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_GAME_PACKAGE_DEPENDS "fonts-liberation, fonts-terminus-otb")
set(CPACK_DEBIAN_GAME_PACKAGE_RECOMMENDS "timgm6mb-soundfont | fluid-soundfont-gm, xdg-utils, zentrox-demo")
set(CPACK_DEBIAN_GAME_PACKAGE_SUGGESTS "speech-dispatcher, zentrox-tools")

set(CPACK_COMPONENT_TOOLS_DESCRIPTION "author's tools for the adventure game Zentrox
A compiler for stories in readable sources, a checker, a program that plays a
story without a screen and proves that it can be won, and makers of songs and
voices.")
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME zentrox-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION games)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "zentrox (= ${PROJECT_VERSION}), fonts-liberation, fonts-terminus-otb")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS "espeak-ng, graphviz, sox, libsox-fmt-mp3")

set(CPACK_COMPONENT_DEMO_DESCRIPTION "sample story for the adventure game Zentrox
\"Die letzte Stunde\": a small adventure of ten to fifteen minutes that shows
all that the game can do.")
set(CPACK_DEBIAN_DEMO_PACKAGE_NAME zentrox-demo)
set(CPACK_DEBIAN_DEMO_PACKAGE_SECTION games)
set(CPACK_DEBIAN_DEMO_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DEMO_PACKAGE_RECOMMENDS "zentrox")
include(CPack)
