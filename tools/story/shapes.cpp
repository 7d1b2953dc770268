#include "tools/story/shapes.h"

#include <cmath>
#include <span>

#include "engine/state/felder.h"
#include "tools/story/area.h"

namespace zentrox::story {

namespace {

constexpr std::size_t mostCorners = 1000;
constexpr double farthest = 1e6;  // pixels; beyond that lies no corner

std::optional<std::vector<Corner>> corners(const Statement& s, Findings& findings) {
    std::vector<double> numbers;
    for (const Token& word : std::span(s).subspan(1)) {
        const auto number = Zahl(word.value);
        if (!number || !(std::abs(*number) <= farthest)) {
            findings.broken(word.place, "argument",
                            shown(word.value) + " ist keine Zahl von Pixeln; eine Ecke ist X und Y, wie 120 300");
            return std::nullopt;
        }
        numbers.push_back(*number);
    }
    std::vector<Corner> result;
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) result.push_back({numbers[i], numbers[i + 1]});
    if (numbers.size() % 2 == 0) return result;
    findings.broken(s.back().place, "argument", "zu dieser Zahl fehlt die zweite: eine Ecke ist X und Y");
    return std::nullopt;
}

void wrongCount(const Statement& s, const std::string& needs, std::size_t present, Findings& findings) {
    findings.broken(s[0].place, "argument",
                    shown(s[0].value) + " braucht " + needs + "; hier stehen " + std::to_string(present));
}

void needsCells(const Statement& s, bool found, Findings& findings) {
    if (!found)
        findings.broken(s[0].place, "flaeche",
                        "diese Fläche trifft keinen Punkt des Bildes; es reicht von 0 0 bis 640 480");
}

}  // namespace

void takeRectangle(const Statement& s, Maske& mask, Findings& findings) {
    const auto points = corners(s, findings);
    if (!points) return;
    if (points->size() != 2) return wrongCount(s, "zwei Ecken, X1 Y1 X2 Y2", points->size(), findings);
    const Corner& a = (*points)[0];
    const Corner& b = (*points)[1];
    if (a.x > b.x || a.y > b.y)
        findings.warning(
            s[1].place, "ecken",
            "die erste Ecke eines Rechtecks ist die linke obere, die zweite die rechte untere; so wie es "
            "hier steht, werden sie vertauscht");
    needsCells(s, addRectangle(mask, a, b), findings);
}

void takePolygon(const Statement& s, Maske& mask, Findings& findings) {
    const auto points = corners(s, findings);
    if (!points) return;
    if (points->size() < 3 || points->size() > mostCorners)
        return wrongCount(s, "drei bis " + std::to_string(mostCorners) + " Ecken, jede X Y", points->size(),
                          findings);
    needsCells(s, addPolygon(mask, *points), findings);
}

void takePicture(const Statement& s, const std::optional<Bitmap>& picture, Maske& mask, Findings& findings) {
    if (!picture)
        findings.broken(
            s[1].place, "flaeche",
            "das Bild " + shown(s[1].value) + " lässt sich nicht lesen; gesucht wird es neben dieser Datei");
    else if (!addPicture(mask, *picture))
        findings.broken(s[1].place, "flaeche", "in diesem Bild ist nichts weiß; weiß ist die Fläche");
}

}  // namespace zentrox::story
