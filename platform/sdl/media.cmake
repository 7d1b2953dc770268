# Sound and video of the desktop. FFmpeg's libraries cost 20 MB and 30 ms as soon as they are linked, so that all that
# uses them is a module of its own, which is loaded on first use.
pkg_check_modules(FFMPEG REQUIRED IMPORTED_TARGET libavformat libavcodec libavutil libswscale libswresample)
pkg_check_modules(SOUND REQUIRED IMPORTED_TARGET SDL2_mixer fluidsynth libmpg123)

file(GLOB ffmpeg_sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/ffmpeg/*.cpp)
add_library(zentrox_decoder_module MODULE ${ffmpeg_sources})
target_link_libraries(zentrox_decoder_module PRIVATE zentrox_flags PkgConfig::FFMPEG)
set_target_properties(zentrox_decoder_module PROPERTIES
  PREFIX "" OUTPUT_NAME zentrox-decoder SUFFIX .so LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}
  CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)

# What the desktop and the probe read lengths and pictures with.
zentrox_library(zentrox_decode_media ${CMAKE_CURRENT_LIST_DIR}/sound/decoder.cpp)
target_link_libraries(zentrox_decode_media PUBLIC zentrox_platform ${CMAKE_DL_LIBS})
add_dependencies(zentrox_decode_media zentrox_decoder_module)

zentrox_library(zentrox_sound
  ${CMAKE_CURRENT_LIST_DIR}/sound/mp3.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound/sound.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound/soundfont.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound/streams.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound/synthesiser.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound/video.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound/wav.cpp)
target_link_libraries(zentrox_sound PUBLIC zentrox_decode_media PRIVATE PkgConfig::SOUND)
