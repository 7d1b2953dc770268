// Where the fonts of the machine lie.
#pragma once

#include <memory>
#include <span>
#include <string>

namespace zentrox {

struct FontFile {
    std::string path;
    int index = 0;  // of the font in a file of several
    bool scalable = true;
    std::span<const unsigned char> bytes{};  // of a font that is a part of the program; its path is a mere name
    bool thickened = false;                  // bold letters are made of plain ones
};

class FontFiles {
public:
    virtual ~FontFiles() = default;
    // The font nearest to a family, in UTF-8, upright; `generic` is what kind of font stands in for it: "serif",
    // "sans-serif" or "monospace". One that is a part of the program if there is no font at all.
    virtual FontFile find(const std::string& family, const char* generic, bool bold, bool scalable) = 0;
};

// Reads the list of what is installed.
std::unique_ptr<FontFiles> makeFontFiles();

}  // namespace zentrox
