# The engine for the browser, compiled by emscripten; `./web` calls this with what it needs. The outside libraries were
# built by scripts/web-libs into ZENTROX_WEB_LIBS.
set(ZENTROX_WEB_LIBS ${CMAKE_SOURCE_DIR}/build/web-libs CACHE PATH "Where the libraries for the browser lie")
set(ZENTROX_TESTS OFF)
set(ZENTROX_BENCH OFF)

add_library(zentrox_web_libs INTERFACE)
include_directories(SYSTEM ${ZENTROX_WEB_LIBS}/include)
foreach(library SDL2_image SDL2_ttf SDL2 png jpeg freetype z)
  target_link_libraries(zentrox_web_libs INTERFACE ${ZENTROX_WEB_LIBS}/lib/lib${library}.a)
endforeach()
add_library(PkgConfig::SDL ALIAS zentrox_web_libs)

# The game leaves its deepest waits by an exception.
add_compile_options(-fexceptions)
add_link_options(-fexceptions)
