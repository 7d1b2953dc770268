// Texts and choices that do not fit the picture, measured in the font that the game shows them in.
#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/blocks.h"
#include "tools/story/check.h"

namespace zentrox::story {

namespace {

constexpr int pictureWidth = 640;
constexpr int pictureHeight = 480;
constexpr std::size_t linesBelowQuestion = 2;  // that a choice leaves empty

struct ShownText {
    std::vector<Text> lines;
    std::size_t emptyLines = 0;  // more that stand between them
};

bool isHex(char c) {
    return (c >= '0' && c <= '9') || (lower(c) >= 'a' && lower(c) <= 'f');
}

void addLines(std::vector<Text>& lines, TextView text) {
    lines.emplace_back();
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool pair = text.substr(i, 2) == "\r\n";
        if (text[i] == '#' || text[i] == '\r' || text[i] == '\n')
            lines.emplace_back();
        else
            lines.back() += text[i];
        if (pair) ++i;
    }
}

std::optional<ShownText> shownBy(const Skript& script, std::size_t i) {
    const Opcode* const row = findOpcode(script.Befehl[i]);
    if (!row || (row->arg != Arg::text && row->arg != Arg::choice)) return std::nullopt;
    ShownText text;
    if (row->arg == Arg::text) {
        addLines(text.lines, argumentOf(script, i));
        return text;
    }
    const ChoiceText choice = splitChoice(argumentOf(script, i));
    addLines(text.lines, choice.question);
    for (const Text& option : choice.options) addLines(text.lines, Getrimmt(option));
    text.emptyLines = linesBelowQuestion;
    return text;
}

class TextChecker {
public:
    TextChecker(const ScriptView& view, Fonts* fonts, Findings& findings)
        : view_(view),
          findings_(findings),
          font_(fonts ? &fonts->get(FontSpec{}) : nullptr) {}

    void instruction(std::size_t i) {
        const auto text = shownBy(view_.script, i);
        if (!text) return;
        for (std::size_t n = 0; n < text->lines.size(); ++n) line(text->lines[n], placeOf(i, n));
        const auto count =
            static_cast<int>(std::min<std::size_t>(text->lines.size() + text->emptyLines, pictureHeight));
        if (!font_ || count * font_->lineHeight() <= pictureHeight) return;
        findings_.warning(view_.places.commands[i].command, "text-hoch",
                          "dieser Text ist mit " + std::to_string(text->lines.size() + text->emptyLines) +
                              " Zeilen höher als das Bild; höchstens " +
                              std::to_string(pictureHeight / font_->lineHeight()) + " haben Platz");
    }

private:
    Place placeOf(std::size_t i, std::size_t n) const {
        const auto& places = view_.places.commands[i].argument;
        return n < places.size() ? places[n] : view_.places.argument(i);
    }

    void line(TextView text, Place place) {
        if (text.starts_with('$')) {
            if (text.size() < 2 || !isHex(text[1]))
                findings_.warning(place, "farbmarke",
                                  "hinter $ am Anfang einer Zeile steht ihre Farbe, 0 bis 9 oder A bis F");
            text.remove_prefix(std::min<std::size_t>(2, text.size()));
        }
        if (!font_ || text.empty()) return;
        const int width = font_->width(Getrimmt(text));
        if (width > pictureWidth)
            findings_.warning(place, "text-breit",
                              "diese Zeile ist " + std::to_string(width) + " Pixel breit, Platz ist für " +
                                  std::to_string(pictureWidth) +
                                  "; das Spiel bricht nicht um, die nächste Zeile steht in eigenen "
                                  "Anführungszeichen");
    }

    const ScriptView& view_;
    Findings& findings_;
    const Font* font_;
};

}  // namespace

void checkTexts(const ScriptView& view, Fonts* fonts, Findings& findings) {
    TextChecker checker(view, fonts, findings);
    for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) checker.instruction(i);
}

}  // namespace zentrox::story
