# Turns a file into C++: cmake -DINPUT=... -DOUTPUT=... -DNAME=... -P embedbytes.cmake defines the span of bytes NAME in
# the namespace zentrox.
file(READ ${INPUT} hex HEX)
string(REGEX REPLACE "(................................)" "\\1\n" hex "${hex}")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," hex "${hex}")
file(WRITE ${OUTPUT} "#include <span>

namespace zentrox {

namespace {

constexpr unsigned char bytes[] = {
${hex}
};

}  // namespace

extern const std::span<const unsigned char> ${NAME};
const std::span<const unsigned char> ${NAME}(bytes);

}  // namespace zentrox
")
