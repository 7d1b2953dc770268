# Turns the pixels of a picture into C++: cmake -DINPUT=... -DOUTPUT=... -DNAME=... -DWIDTH=... -DHEIGHT=... -P embed.cmake
# defines the EmbeddedPicture NAME in the namespace zentrox. The input has three bytes a pixel, red first.
file(READ ${INPUT} hex HEX)
string(REGEX REPLACE "(................................)" "\\1\n" hex "${hex}")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," hex "${hex}")
file(WRITE ${OUTPUT} "#include \"platform/picture/embedded.h\"

namespace zentrox {

namespace {

constexpr unsigned char pixels[] = {
${hex}
};
static_assert(sizeof(pixels) == 3 * ${WIDTH} * ${HEIGHT});

}  // namespace

extern const EmbeddedPicture ${NAME};
const EmbeddedPicture ${NAME}{{${WIDTH}, ${HEIGHT}}, pixels};

}  // namespace zentrox
")
