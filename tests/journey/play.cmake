# Plays one walk from the menu, in a directory of its own. What it prints must be what NAME.expected holds, if there is
# one.
string(REGEX REPLACE "walk$" "expected" expected ${WALK})
file(REMOVE_RECURSE ${PLACE})
file(MAKE_DIRECTORY ${PLACE})
file(COPY ${DATA}/ DESTINATION ${PLACE}/spiel)
file(WRITE ${PLACE}/cd/Zentrox "")
file(WRITE ${PLACE}/cd/Videos/film.mpg "")
file(WRITE ${PLACE}/spiel/saves/kaputt.xtc "kein Spielstand")
set(quiet --quiet)
if(EXISTS ${expected})
  set(quiet "")
endif()
execute_process(
  COMMAND ${PROBE} ${quiet} --dir spiel --root cd --out . ${WALK}
  WORKING_DIRECTORY ${PLACE}
  RESULT_VARIABLE status OUTPUT_VARIABLE printed ERROR_VARIABLE complaint)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${printed}${complaint}exit status ${status}")
endif()
if(EXISTS ${expected})
  string(REPLACE "${PLACE}" "PLACE" printed "${printed}")
  file(READ ${expected} wanted)
  if(NOT printed STREQUAL wanted)
    message(FATAL_ERROR "printed:\n${printed}\nexpected:\n${wanted}")
  endif()
endif()
