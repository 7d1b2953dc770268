// Fonts as fontconfig finds them.
#include <fontconfig/fontconfig.h>

#include <stdexcept>

#include "platform/codec/fontfiles.h"
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
        if (!config_) throw std::runtime_error("fontconfig has no configuration");
        // Those that came with the program, for a machine without them.
        const auto own = dataDirectoryFor(programDirectory()) / "fonts";
        std::error_code error;
        if (std::filesystem::is_directory(own, error)) FcConfigAppFontAddDir(config_.get(), fcText(own.c_str()));
    }

    FontFile find(const std::string& family, const char* generic, bool bold, bool scalable) override {
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
        return fileOf(match.get());
    }

private:
    static FontFile fileOf(FcPattern* match) {
        FcChar8* path = nullptr;
        if (match == nullptr || FcPatternGetString(match, FC_FILE, 0, &path) != FcResultMatch)
            throw NoFonts(
                "no font is installed; the packages fonts-liberation and fonts-terminus-otb have those of the "
                "game");
        FontFile file{reinterpret_cast<const char*>(path)};
        FcPatternGetInteger(match, FC_INDEX, 0, &file.index);
        FcBool outlines = FcTrue;
        FcPatternGetBool(match, FC_SCALABLE, 0, &outlines);
        file.scalable = outlines != FcFalse;
        file.index &= 0xFFFF;  // the upper half names an instance of a variable font
        return file;
    }

    std::unique_ptr<FcConfig, DestroyConfig> config_;
};

}  // namespace

std::unique_ptr<FontFiles> makeFontFiles() {
    return std::make_unique<InstalledFonts>();
}

}  // namespace zentrox
