// The few fonts that go with the page; what is asked for beside them gets the one that stands in.
#include "platform/codec/fontfiles.h"

#include <array>
#include <filesystem>
#include <stdexcept>
#include <string_view>

#include "platform/machine/near.h"

namespace zentrox {

namespace {

struct Row {
    std::string_view family;
    const char* regular;
    const char* bold;
    bool scalable = true;
};
constexpr std::array rows{
    Row{"Liberation Sans", "LiberationSans-Regular.ttf", "LiberationSans-Bold.ttf"},
    Row{"Liberation Serif", "LiberationSerif-Regular.ttf", "LiberationSerif-Bold.ttf"},
    Row{"Liberation Mono", "LiberationMono-Regular.ttf", "LiberationMono-Bold.ttf"},
    Row{"Terminus", "terminus-bold.otb", "terminus-bold.otb", false},
};
constexpr Row other{"", "DejaVuSans.ttf", "DejaVuSans-Bold.ttf"};

// Beside the page, and where the system has them.
constexpr std::array places{
    "/fonts",
    "/usr/share/fonts/truetype/liberation",
    "/usr/share/fonts/truetype/liberation2",
    "/usr/share/fonts/truetype/dejavu",
    "/usr/share/fonts/opentype/terminus",
};

std::string pathOf(const std::string& name) {
    for (const std::filesystem::path place : places) {
        std::error_code error;
        if (std::filesystem::exists(place / name, error)) return place / name;
    }
    throw std::runtime_error("the font " + name + " is missing");
}

class PageFonts : public FontFiles {
public:
    FontFile find(const std::string& family, const char* /*generic*/, bool bold, bool scalable) override {
        const Row* found = &other;
        for (const Row& row : rows)
            if (row.family == family && (row.scalable || !scalable)) found = &row;
        const std::string path = pathOf(bold ? found->bold : found->regular);
        bringNear(path);
        return {path, 0, found->scalable};
    }
};

}  // namespace

std::unique_ptr<FontFiles> makeFontFiles() {
    return std::make_unique<PageFonts>();
}

}  // namespace zentrox
