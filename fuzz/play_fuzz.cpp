// The whole program: the demo, up to three files of it damaged, played without an aim.
#include <array>

#include "fuzz/play.h"

namespace {

using zentrox::fuzz::Course;
using zentrox::fuzz::Stage;

constexpr std::array numbers{"-1",    "0",     "1",          "2",           "255",        "1000",
                             "32767", "65536", "2147483647", "-2147483648", "4294967296", "99999999999999999999",
                             "1e308", "nan"};

const std::string& someFile(const Stage& stage, Course& course) {
    const bool any = course.byte() % 4 == 0;
    return stage.files()[course.below(any ? stage.files().size() : stage.written())];
}

// Another number for the one that begins a line of a room or a script.
void renumber(std::string& bytes, std::size_t at, Course& course) {
    const std::size_t begin = bytes.rfind('\n', at) == std::string::npos ? 0 : bytes.rfind('\n', at) + 1;
    const std::size_t end = bytes.find_first_not_of("-0123456789", begin);
    const std::uint32_t wanted = course.byte();
    const std::string number = wanted < 64 ? std::to_string(wanted) : numbers[wanted % numbers.size()];
    bytes.replace(begin, (end == std::string::npos ? bytes.size() : end) - begin, number);
}

void repeatLine(std::string& bytes, std::size_t at, Course& course) {
    const std::size_t begin = bytes.rfind('\n', at) == std::string::npos ? 0 : bytes.rfind('\n', at) + 1;
    const std::size_t end = std::min(bytes.size(), bytes.find('\n', at) + 1);
    if (end <= begin) return;
    const std::string line = bytes.substr(begin, end - begin);
    for (std::uint32_t i = course.byte() % 8; i > 0; --i) bytes.insert(begin, line);
}

void damage(std::string& bytes, const Stage& stage, Course& course) {
    const std::size_t at = bytes.empty() ? 0 : course.pair() * bytes.size() / 65536;
    if (bytes.empty()) return;
    switch (course.byte() % 9) {
        case 0: bytes[at] = static_cast<char>(course.byte()); return;
        case 1: bytes.erase(at, course.byte() + 1); return;
        case 2: bytes.insert(at, course.bytes(course.byte() % 64)); return;
        case 3: bytes.resize(at); return;
        case 4: bytes.insert(at, bytes.substr(0, std::min<std::size_t>(bytes.size(), course.pair()))); return;
        case 5: bytes = stage.whole(someFile(stage, course)); return;
        case 6: renumber(bytes, at, course); return;
        case 7: repeatLine(bytes, at, course); return;
        default: bytes.replace(at, 4, course.bytes(4)); return;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Stage stage;
    Course course(data, size);
    const std::string& begins = stage.files()[course.below(stage.written())];
    const bool room = begins.starts_with("rooms/");
    const std::uint64_t seed = course.byte();
    for (std::uint32_t files = course.byte() % 4; files > 0; --files) {
        const std::string& file = someFile(stage, course);
        std::string bytes = stage.whole(file);
        for (std::uint32_t i = course.byte() % 8; i > 0; --i) damage(bytes, stage, course);
        if (course.byte() % 16 == 0)
            stage.remove(file);
        else
            stage.replace(file, bytes);
    }
    zentrox::fuzz::play(stage, room ? begins.substr(6) : "", seed, course);
    stage.restore();
    return 0;
}
