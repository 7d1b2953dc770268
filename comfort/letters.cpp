#include "comfort/letters.h"

#include "platform/window/controls/textlayout.h"

namespace zentrox {

FontSpec fittingFont(const Platform& platform, TextView text, Size room) {
    constexpr int step = 10;
    const FontSpec usual;
    FontSpec font = usual;
    for (int percent = platform.boxPercent; percent > 100; percent -= step) {
        font.points = usual.points * static_cast<float>(percent) / 100;
        const Font& face = platform.fonts.get(font);
        if (static_cast<int>(wrapText(face, text, room.w).size()) * face.lineHeight() <= room.h) return font;
    }
    return {};
}

}  // namespace zentrox
