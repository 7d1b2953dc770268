# Plays one walk; what it prints must be what NAME.expected holds, if there is one.
string(REGEX REPLACE "walk$" "expected" expected ${WALK})
set(quiet --quiet)
if(EXISTS ${expected})
  set(quiet "")
endif()
execute_process(
  COMMAND ${PROBE} ${quiet} --dir ${DATA} --args ${ROOM} --out ${OUT} ${WALK}
  RESULT_VARIABLE status OUTPUT_VARIABLE printed ERROR_VARIABLE complaint)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${printed}${complaint}exit status ${status}")
endif()
if(EXISTS ${expected})
  file(READ ${expected} wanted)
  if(NOT printed STREQUAL wanted)
    message(FATAL_ERROR "printed:\n${printed}\nexpected:\n${wanted}")
  endif()
endif()
