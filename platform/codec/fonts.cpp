// Fonts of the system, drawn by SDL_ttf one character at a time and kept.
#include <SDL_ttf.h>

#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <stdexcept>
#include <tuple>
#include <vector>

#include "platform/codec/decode.h"
#include "platform/codec/fontfiles.h"
#include "platform/picture/font.h"

namespace zentrox {

namespace {

// Up to this height letters have hard edges: they stay sharp at any scale, and a text that is printed over itself
// again and again, as scores are, keeps its shape. The big texts above it are printed once and look better smooth.
constexpr int crispUpTo = 40;

// Letters above this are large enough as they are.
constexpr int notedUpTo = 100;
constexpr int inkMargin = 1;  // pixels by which a letter at another size may lean out of its own ones

constexpr int leastPixels = 1;
constexpr int mostPixels = 400;

// What is taken for a family, and what for that where it is missing as well.
struct StandIn {
    TextView family;
    const char* instead;
    const char* generic;
};
constexpr std::array standIns{
    StandIn{"Arial", "Liberation Sans", "sans-serif"},
    StandIn{"MS Sans Serif", "Liberation Sans", "sans-serif"},
    StandIn{"Times New Roman", "Liberation Serif", "serif"},
    StandIn{"Courier", "Liberation Mono", "monospace"},
    StandIn{"Courier New", "Liberation Mono", "monospace"},
};

// The one family of fixed cells: bold and of one size, whatever is asked for.
constexpr TextView cellFamily = "Fixedsys";
constexpr const char* cellFont = "Terminus";
constexpr Size cell{8, 14};
constexpr int cellOutlinePixels = 12;  // of an outline font that has to stand in
constexpr int strikes = 16;            // as many sizes as a bitmap font may have

// --- SDL_ttf as values

struct CloseFont {
    void operator()(TTF_Font* font) const { TTF_CloseFont(font); }
};
using FontHandle = std::unique_ptr<TTF_Font, CloseFont>;

class Library {
public:
    Library() {
        if (TTF_Init() != 0) throw std::runtime_error(std::string("SDL_ttf does not start: ") + TTF_GetError());
    }
    ~Library() { TTF_Quit(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
};

// `size` is in pixels, or the number of a strike where the font has no outlines.
FontHandle open(const FontFile& file, int size) {
    FontHandle font(
        file.bytes.empty()
            ? TTF_OpenFontIndex(file.path.c_str(), size, file.index)
            : TTF_OpenFontRW(SDL_RWFromConstMem(file.bytes.data(), static_cast<int>(file.bytes.size())), 1, size));
    if (!font) throw std::runtime_error("the font " + file.path + " can't be used: " + TTF_GetError());
    TTF_SetFontKerning(font.get(), 0);
    if (file.thickened) TTF_SetFontStyle(font.get(), TTF_STYLE_BOLD);
    return font;
}

// --- glyphs

// One character as it is drawn: how much of each pixel it covers, and where that lies from the pen and the line's
// top.
struct Glyph {
    int advance = 0;
    Point offset;
    Size size;
    std::vector<std::uint8_t> coverage;
};

void takeCoverage(Glyph& glyph, SDL_Surface& picture) {
    glyph.size = {picture.w, picture.h};
    glyph.coverage.reserve(static_cast<std::size_t>(picture.w) * picture.h);
    const bool crisp = picture.format->BitsPerPixel == 8;
    for (int y = 0; y < picture.h; ++y) {
        const auto* const bytes =
            static_cast<const std::uint8_t*>(picture.pixels) + std::ptrdiff_t{y} * picture.pitch;
        const auto* const wide = reinterpret_cast<const std::uint32_t*>(bytes);
        for (int x = 0; x < picture.w; ++x)
            glyph.coverage.push_back(crisp ? (bytes[x] != 0 ? 255 : 0) : static_cast<std::uint8_t>(wide[x] >> 24U));
    }
}

Glyph render(TTF_Font* font, char32_t character, bool crisp) {
    Glyph glyph;
    int left = 0;
    int right = 0;
    int bottom = 0;
    int top = 0;
    if (TTF_GlyphMetrics32(font, character, &left, &right, &bottom, &top, &glyph.advance) != 0) return glyph;
    // The picture of a character begins at the pen and at the line's top, or further out where it leans out.
    glyph.offset = {std::min(left, 0), std::min(TTF_FontAscent(font) - top, 0)};
    constexpr SDL_Color full{255, 255, 255, 255};
    const SurfaceHandle picture(crisp ? TTF_RenderGlyph32_Solid(font, character, full)
                                      : TTF_RenderGlyph32_Blended(font, character, full));
    if (picture) takeCoverage(glyph, *picture);
    return glyph;
}

std::uint32_t blended(std::uint32_t under, std::uint32_t over, std::uint32_t coverage) {
    std::uint32_t out = 0;
    for (unsigned shift = 0; shift < 24; shift += 8) {
        const std::uint32_t mixed =
            (over >> shift & 0xFFU) * coverage + (under >> shift & 0xFFU) * (255 - coverage);
        out |= (mixed + 127) / 255 << shift;
    }
    return out;
}

// `Target` has rows of pixels.
template <class Target>
void drawGlyph(Target& target, const Rect& clip, const Glyph& glyph, Point pen, Colour colour) {
    const Point at = pen + glyph.offset;
    const Rect part = intersection({at, glyph.size}, clip);
    if (part.empty()) return;
    for (int y = part.y; y < part.bottom(); ++y) {
        const std::uint8_t* const coverage =
            glyph.coverage.data() + static_cast<std::size_t>(y - at.y) * glyph.size.w + (part.x - at.x);
        std::uint32_t* const pixels = target.row(y) + part.x;
        for (int x = 0; x < part.w; ++x) {
            if (coverage[x] == 255)
                pixels[x] = colour.rgb;
            else if (coverage[x] != 0)
                pixels[x] = blended(pixels[x], colour.rgb, coverage[x]);
        }
    }
}

// One font file, shared by all sizes of it: it is set to a size when a character is drawn for the first time.
class Face {
public:
    explicit Face(FontFile file) : file_(std::move(file)) {
        if (file_.scalable) {
            font_ = open(file_, size_);
            return;
        }
        for (size_ = 0; size_ < strikes; ++size_) {
            font_ = open(file_, size_);
            if (TTF_FontHeight(font_.get()) >= cell.h) return;
        }
    }
    bool scalable() const { return file_.scalable; }
    TTF_Font* at(int pixels, bool crisp) {
        if (file_.scalable && pixels != size_) TTF_SetFontSize(font_.get(), size_ = pixels);
        const int hinting = crisp ? TTF_HINTING_MONO : TTF_HINTING_NORMAL;
        if (hinting != TTF_GetFontHinting(font_.get())) TTF_SetFontHinting(font_.get(), hinting);
        return font_.get();
    }

private:
    FontFile file_;
    int size_ = 16;
    FontHandle font_;
};

class SizedFont : public Font {
public:
    // `notes` says whether letters are noted, and outlives it.
    SizedFont(Face& face, int pixels, bool crisp, std::optional<Size> fixedCell, const bool& notes)
        : face_(face),
          pixels_(pixels),
          crisp_(crisp),
          cell_(fixedCell),
          notes_(notes) {
        TTF_Font* const font = face_.at(pixels_, crisp_);
        lineHeight_ = cell_ ? cell_->h : TTF_FontHeight(font);
        ascent_ = TTF_FontAscent(font);
    }

    int lineHeight() const override { return lineHeight_; }

    int width(TextView line) const override {
        std::int64_t sum = 0;
        for (const char c : line) sum += glyph(c).advance;
        return held(sum);
    }

    void draw(Bitmap& target, Point at, TextView line, Colour colour) const override {
        if (notes_ && pixels_ <= notedUpTo && face_.scalable()) note(target, at, line, colour);
        ink(target, at, line, colour);
    }

    void ink(Bitmap& target, Point at, TextView line, Colour colour) const override {
        for (const char c : line) {
            const Glyph& next = glyph(c);
            drawGlyph(target, target.clip(), next, at, colour);
            at.x = held(std::int64_t{at.x} + next.advance);
        }
    }

    void inkLarge(const Pixels& target, const Rect& clip, Point corner, double scale,
                  const Letter& letter) const override {
        const SizedFont& font = larger(scale);
        const Glyph& glyph = font.glyph(letter.character);
        // On the same base line, and in the middle of the place that its own size takes.
        const double x = letter.at.x * scale + (this->glyph(letter.character).advance * scale - glyph.advance) / 2;
        const double y = (letter.at.y + ascent_) * scale - font.ascent_;
        drawGlyph(target, clip, glyph,
                  corner + Point{static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y))},
                  letter.colour);
    }

private:
    void note(Bitmap& target, Point at, TextView line, Colour colour) const {
        std::vector<Letter> letters;
        for (const char c : line) {
            const Glyph& next = glyph(c);
            const Rect ink = intersection({at + next.offset, next.size}, target.clip());
            const Rect leans{ink.at() - Point{inkMargin, inkMargin},
                             {ink.w + 2 * inkMargin, ink.h + 2 * inkMargin}};
            if (!ink.empty() && c != ' ')
                letters.push_back({this, c, at, colour, ink, intersection(leans, target.clip())});
            at.x = held(std::int64_t{at.x} + next.advance);
        }
        if (!letters.empty()) target.note(letters);
    }

    // With soft edges: at that size they look better.
    const SizedFont& larger(double scale) const {
        const int pixels = std::max(leastPixels, static_cast<int>(std::lround(pixels_ * scale)));
        auto& font = larger_[pixels];
        if (!font) font = std::make_unique<SizedFont>(face_, pixels, false, std::nullopt, notes_);
        return *font;
    }

    const Glyph& glyph(char c) const {
        auto& kept = glyphs_[static_cast<unsigned char>(c)];
        if (!kept) {
            const char32_t character = toUnicode(c);
            kept = render(face_.at(pixels_, crisp_), character < U' ' ? U' ' : character, crisp_);
            if (cell_) kept->advance = cell_->w;
        }
        return *kept;
    }

    Face& face_;
    int pixels_;
    bool crisp_;
    std::optional<Size> cell_;
    const bool& notes_;
    int lineHeight_ = 0;
    int ascent_ = 0;
    mutable std::map<int, std::unique_ptr<SizedFont>> larger_;
    mutable std::array<std::optional<Glyph>, 256> glyphs_;
};

// --- which font it is

int pixelsOf(float points) {
    const float pixels = points * 96.0F / 72.0F;
    if (!(pixels > leastPixels)) return leastPixels;
    return pixels < mostPixels ? static_cast<int>(std::lround(pixels)) : mostPixels;
}

struct FontKey {
    Text family;
    bool bold = false;
    int pixels = 0;
    friend bool operator<(const FontKey& a, const FontKey& b) {
        return std::tie(a.family, a.bold, a.pixels) < std::tie(b.family, b.bold, b.pixels);
    }
};

class SystemFonts : public Fonts {
public:
    const Font& get(const FontSpec& wanted) override {
        if (lastFont_ != nullptr && wanted == lastSpec_) return *lastFont_;
        const bool fixed = equalIgnoringCase(wanted.family, cellFamily);
        const FontKey key{lower(wanted.family), fixed || wanted.bold,
                          fixed ? cellOutlinePixels : pixelsOf(wanted.points)};
        auto& font = fonts_[key];
        if (!font)
            font = std::make_unique<SizedFont>(face(key), key.pixels, key.pixels <= crispUpTo,
                                               fixed ? std::optional(cell) : std::nullopt, notes_);
        lastSpec_ = wanted;
        lastFont_ = font.get();
        return *font;
    }

    bool lacking() const override { return lacking_; }
    void setNotes(bool on) override { notes_ = on; }

private:
    Face& face(const FontKey& key) {
        if (!library_) library_.emplace();
        const FontFile file = fileOf(key);
        lacking_ = lacking_ || !file.bytes.empty();
        auto& face = faces_[{file.path, file.index}];
        if (!face) face = std::make_unique<Face>(file);
        return *face;
    }

    FontFile fileOf(const FontKey& key) {
        if (!files_) files_ = makeFontFiles();
        if (key.family == lower(cellFamily)) return files_->find(cellFont, "monospace", true, false);
        for (const StandIn& row : standIns)
            if (equalIgnoringCase(key.family, row.family))
                return files_->find(row.instead, row.generic, key.bold, true);
        return files_->find(toUtf8(key.family), "sans-serif", key.bold, true);
    }

    // Made when a first font is asked for: reading the list of fonts takes a good part of a window's start.
    std::optional<Library> library_;
    std::unique_ptr<FontFiles> files_;
    std::map<std::pair<std::string, int>, std::unique_ptr<Face>> faces_;
    std::map<FontKey, std::unique_ptr<SizedFont>> fonts_;
    bool notes_ = false;
    bool lacking_ = false;
    FontSpec lastSpec_;
    const Font* lastFont_ = nullptr;
};

}  // namespace

std::unique_ptr<Fonts> makeFonts() {
    return std::make_unique<SystemFonts>();
}

}  // namespace zentrox
