# Writes a manual page: cmake -DPROGRAM=... -DPAGE=... -DOUTPUT=... -P man.cmake puts what the program says of its
# options into the page.
execute_process(COMMAND ${PROGRAM} --words-for man OUTPUT_VARIABLE options COMMAND_ERROR_IS_FATAL ANY)
file(READ ${PAGE} page)
string(REPLACE "@OPTIONS@\n" "${options}" page "${page}")
file(WRITE ${OUTPUT} "${page}")
