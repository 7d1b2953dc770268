# A room of the house: a static library of the sources below this folder, with our flags.
function(zentrox_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC zentrox_flags)
endfunction()

# A program that lies directly in the build folder.
function(zentrox_program name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE zentrox_flags)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
endfunction()

# A GoogleTest program: zentrox_test(NAME sources... LIBS libraries...). Its cases are CTest's.
function(zentrox_test name)
  cmake_parse_arguments(TEST "" "" "LIBS" ${ARGN})
  add_executable(${name} ${TEST_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE ${TEST_LIBS} zentrox_flags GTest::gtest_main)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST TEST_PREFIX ${name}. PROPERTIES TIMEOUT 300)
endfunction()

# A Google Benchmark program that the target `bench` runs: zentrox_bench(NAME sources... LIBS libraries...).
function(zentrox_bench name)
  cmake_parse_arguments(BENCH "" "" "LIBS" ${ARGN})
  add_executable(${name} EXCLUDE_FROM_ALL ${BENCH_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE ${BENCH_LIBS} zentrox_flags benchmark::benchmark_main)
  add_custom_target(run_${name} COMMAND ${name} USES_TERMINAL)
  add_dependencies(bench run_${name})
endfunction()

# A drawing that becomes a part of a library: zentrox_embed(LIBRARY DRAWING NAME WIDTH HEIGHT) defines the
# EmbeddedPicture NAME, see platform/picture/embedded.h. What the drawing leaves out is black.
function(zentrox_embed library drawing name width height)
  find_program(RSVG_CONVERT rsvg-convert REQUIRED)
  find_program(IMAGEMAGICK_CONVERT NAMES convert magick REQUIRED)
  set(drawing ${CMAKE_CURRENT_SOURCE_DIR}/${drawing})
  set(made ${CMAKE_CURRENT_BINARY_DIR}/${name})
  add_custom_command(
    OUTPUT ${made}.cpp
    COMMAND ${RSVG_CONVERT} --width ${width} --height ${height} --output ${made}.png ${drawing}
    COMMAND ${IMAGEMAGICK_CONVERT} ${made}.png -background black -flatten -depth 8 rgb:${made}.rgb
    COMMAND ${CMAKE_COMMAND} -DINPUT=${made}.rgb -DOUTPUT=${made}.cpp -DNAME=${name} -DWIDTH=${width}
      -DHEIGHT=${height} -P ${zentrox_SOURCE_DIR}/cmake/embed.cmake
    DEPENDS ${drawing} ${zentrox_SOURCE_DIR}/cmake/embed.cmake
    COMMENT "Drawing ${name}"
    VERBATIM)
  target_sources(${library} PRIVATE ${made}.cpp)
endfunction()

# A font that becomes a part of a library: zentrox_embed_font(LIBRARY FILE NAME) takes the characters of code page 1252
# from an installed font and defines the bytes NAME, see platform/codec/ownfonts.h.
function(zentrox_embed_font library file name)
  find_program(HB_SUBSET hb-subset REQUIRED)
  find_file(ZENTROX_FONT_${name} ${file} PATHS /usr/share/fonts/truetype/dejavu REQUIRED)
  set(made ${CMAKE_CURRENT_BINARY_DIR}/${name})
  set(characters 20-7E,A0-FF,152,153,160,161,178,17D,17E,192,2C6,2DC,2013,2014,2018-201A,201C-201E,2020-2022,2026,2030)
  string(APPEND characters ,2039,203A,20AC,2122)
  add_custom_command(
    OUTPUT ${made}.cpp
    COMMAND ${HB_SUBSET} --unicodes=${characters} --layout-features= --output-file=${made}.ttf
      ${ZENTROX_FONT_${name}}
    COMMAND ${CMAKE_COMMAND} -DINPUT=${made}.ttf -DOUTPUT=${made}.cpp -DNAME=${name}
      -P ${zentrox_SOURCE_DIR}/cmake/embedbytes.cmake
    DEPENDS ${ZENTROX_FONT_${name}} ${zentrox_SOURCE_DIR}/cmake/embedbytes.cmake
    COMMENT "Taking ${name} from ${file}"
    VERBATIM)
  target_sources(${library} PRIVATE ${made}.cpp)
endfunction()
