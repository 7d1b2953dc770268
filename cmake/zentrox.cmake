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
