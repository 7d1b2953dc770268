// Fonts for tests: every character is a block of 6 by 13 pixels, whatever family is asked for.
#pragma once

#include "platform/picture/font.h"

namespace zentrox::test {

class FakeFont : public Font {
public:
    static constexpr int advance = 6;
    static constexpr int height = 13;

    int lineHeight() const override { return height; }
    int width(TextView line) const override { return advance * static_cast<int>(line.size()); }
    void draw(Bitmap& target, Point at, TextView line, Colour colour) const override {
        for (std::size_t i = 0; i < line.size(); ++i)
            if (line[i] != ' ')
                target.fill({at.x + advance * static_cast<int>(i), at.y + 2, advance - 1, height - 4}, colour);
    }
};

class FakeFonts : public Fonts {
public:
    const Font& get(const FontSpec& /*wanted*/) override { return font_; }

private:
    FakeFont font_;
};

}  // namespace zentrox::test
