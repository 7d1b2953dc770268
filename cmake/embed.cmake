# Turns the bytes of a file into a C++ array: cmake -DINPUT=... -DOUTPUT=... -DNAME=... -P embed.cmake defines NAMEPixel
# and NAMEBytes in the namespace zentrox.
file(READ ${INPUT} hex HEX)
string(LENGTH "${hex}" digits)
math(EXPR bytes "${digits} / 2")
string(REGEX REPLACE "(................................)" "\\1\n" hex "${hex}")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," hex "${hex}")
file(WRITE ${OUTPUT} "namespace zentrox {
extern const unsigned char ${NAME}Pixel[];
extern const unsigned int ${NAME}Bytes;
const unsigned char ${NAME}Pixel[] = {
${hex}
};
const unsigned int ${NAME}Bytes = ${bytes};
}  // namespace zentrox
")
