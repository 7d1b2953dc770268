// Fonts as fontconfig finds them.
#include <fontconfig/fontconfig.h>

#include <iostream>
#include <utility>

#include "platform/codec/fontfiles.h"
#include "platform/codec/ownfonts.h"
#include "platform/machine/system.h"

namespace zentrox {

namespace {

struct DestroyPattern {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
struct DestroyConfig {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
};
using Pattern = std::unique_ptr<FcPattern, DestroyPattern>;

const FcChar8* fcText(const char* text) {
    return reinterpret_cast<const FcChar8*>(text);
}

class InstalledFonts : public FontFiles {
public:
    InstalledFonts() : config_(FcInitLoadConfigAndFonts()) {
        if (!config_) return;
        // Those that came with the program, for a machine without them.
        const auto own = dataDirectoryFor(programDirectory()) / "fonts";
        std::error_code error;
        if (std::filesystem::is_directory(own, error)) FcConfigAppFontAddDir(config_.get(), fcText(own.c_str()));
    }

    FontFile find(const std::string& family, const char* generic, bool bold, bool scalable) override {
        if (!config_) return ownFont(generic, bold);
        const Pattern wanted(FcPatternCreate());
        FcPatternAddString(wanted.get(), FC_FAMILY, fcText(family.c_str()));
        FcPatternAddString(wanted.get(), FC_FAMILY, fcText(generic));
        FcPatternAddInteger(wanted.get(), FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
        FcPatternAddInteger(wanted.get(), FC_SLANT, FC_SLANT_ROMAN);
        if (scalable) FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
        FcConfigSubstitute(config_.get(), wanted.get(), FcMatchPattern);
        FcDefaultSubstitute(wanted.get());
        FcResult result = FcResultNoMatch;
        const Pattern match(FcFontMatch(config_.get(), wanted.get(), &result));
        FcChar8* path = nullptr;
        const bool found = match && FcPatternGetString(match.get(), FC_FILE, 0, &path) == FcResultMatch;
        return found ? fileOf(match.get(), path) : ownFont(generic, bold);
    }

private:
    // A machine without fonts has none for the whole run: it is told once.
    FontFile ownFont(const std::string& generic, bool bold) {
        if (!std::exchange(told_, true))
            std::cerr << "zentrox: no font is installed, a plain one of the program's own stands in; the packages "
                         "fonts-liberation and fonts-terminus-otb have those of the game\n";
        // Thickened, letters would be too broad for a narrow cell.
        const bool cells = generic == "monospace";
        return {.path = cells ? "cells" : "letters",
                .index = bold ? 1 : 0,
                .bytes = cells ? OwnCells : OwnLetters,
                .thickened = bold && !cells};
    }

    static FontFile fileOf(FcPattern* match, const FcChar8* path) {
        FontFile file{reinterpret_cast<const char*>(path)};
        FcPatternGetInteger(match, FC_INDEX, 0, &file.index);
        FcBool outlines = FcTrue;
        FcPatternGetBool(match, FC_SCALABLE, 0, &outlines);
        file.scalable = outlines != FcFalse;
        file.index &= 0xFFFF;  // the upper half names an instance of a variable font
        return file;
    }

    std::unique_ptr<FcConfig, DestroyConfig> config_;
    bool told_ = false;
};

}  // namespace

std::unique_ptr<FontFiles> makeFontFiles() {
    return std::make_unique<InstalledFonts>();
}

}  // namespace zentrox
