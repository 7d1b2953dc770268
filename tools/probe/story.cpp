#include "tools/probe/story.h"

#include <algorithm>

#include "engine/state/felder.h"
#include "engine/state/merker.h"

namespace zentrox::probe {

namespace {

constexpr int cell = 64;  // of the bar
constexpr int cellsARow = 10;
constexpr int margin = 5;  // from the edge of the bar, so that a drag has left it

Text baseName(TextView path) {
    Text name = Dateiname(path);
    const std::size_t dot = name.rfind('.');
    if (dot != Text::npos) name.resize(dot);
    return name;
}

}  // namespace

std::optional<Rect> Story::picture() const {
    Window* const window = platform_.queue.active();
    if (window == nullptr || window->name() != "Form1") return std::nullopt;
    const Control* const picture = window->find("Picture1");
    if (picture == nullptr) return std::nullopt;
    return picture->areaInWindow();
}

std::optional<Point> Story::inPicture(Point p) const {
    const auto area = picture();
    if (!area) return std::nullopt;
    return area->at() + p;
}

int Story::freeHeight() const {
    const auto area = picture();
    const int height = area ? area->h : 0;
    return z_.LeisteOffen ? height - z_.LeisteHöhe : height;
}

bool Story::idle() {
    const Window* const window = platform_.queue.active();
    if (window == nullptr) return false;
    if (window->name() == "Menu") return true;
    return window->name() == "Form1" && !z_.SkriptLäuft && !z_.LeisteBewegt && !z_.RaumDatei.empty();
}

bool Story::flag(TextView name) {
    return MerkerGesetzt(z_, name);
}

bool Story::carries(TextView item) {
    for (int i = 0; i <= z_.InventarLetzter; ++i)
        if (equalIgnoringCase(baseName(z_.Inventar[static_cast<std::size_t>(i)]), item)) return true;
    return false;
}

bool Story::inRoom(TextView file) {
    return equalIgnoringCase(z_.RaumDatei, file);
}

int Story::lowestAt(int column, int row) const {
    const Raum& room = z_.AktuellerRaum;
    for (int i = 0; i <= room.LetztesObjekt; ++i)
        if (room.Objekte[static_cast<std::size_t>(i)].Maske.at(column, row)) return i;
    return -1;
}

// The cell nearest to the middle of the object's reachable cells, where a player would click. Of several objects of
// that name the first active one is meant.
std::optional<Point> Story::object(TextView name) {
    const Raum& room = z_.AktuellerRaum;
    for (const bool active : {true, false}) {
        for (int i = 0; i <= room.LetztesObjekt; ++i) {
            const RaumObjekt& object = room.Objekte[static_cast<std::size_t>(i)];
            if (object.Aktiv != active || !equalIgnoringCase(Getrimmt(object.Name), Getrimmt(name))) continue;
            std::vector<Point> cells;
            Point sum;
            for (int column = 0; column < Maskenspalten; ++column)
                for (int row = 0; (row + 1) * Maskenzelle <= freeHeight() && row < Maskenzeilen; ++row)
                    if (object.Maske.at(column, row) && lowestAt(column, row) == i) {
                        cells.push_back({column, row});
                        sum = sum + Point{column, row};
                    }
            if (cells.empty()) continue;
            const auto count = static_cast<int>(cells.size());
            const auto distance = [&](Point c) {
                const Point d{c.x * count - sum.x, c.y * count - sum.y};
                return static_cast<double>(d.x) * d.x + static_cast<double>(d.y) * d.y;
            };
            const Point best = *std::min_element(cells.begin(), cells.end(),
                                                 [&](Point a, Point b) { return distance(a) < distance(b); });
            return inPicture({best.x * Maskenzelle + Maskenzelle / 2, best.y * Maskenzelle + Maskenzelle / 2});
        }
    }
    return std::nullopt;
}

std::optional<Point> Story::item(TextView name) {
    if (!z_.LeisteOffen) return std::nullopt;
    for (int i = 0; i <= z_.InventarLetzter; ++i) {
        if (!equalIgnoringCase(baseName(z_.Inventar[static_cast<std::size_t>(i)]), name)) continue;
        return inPicture({i % cellsARow * cell + cell / 2, freeHeight() + i / cellsARow * cell + cell / 2});
    }
    return std::nullopt;
}

std::optional<Point> Story::option(int number) {
    const auto area = picture();
    if (!choiceOpen() || !area || number < 1 || number >= static_cast<int>(z_.AuswahlKanten.size()))
        return std::nullopt;
    const int top = area->h / 2 - z_.AuswahlHöhe / 2;
    const auto edge = [&](int i) { return top + z_.AuswahlKanten[static_cast<std::size_t>(i)]; };
    const int y = (edge(number - 1) + edge(number)) / 2;
    if (y <= edge(number - 1) || y < 0 || y >= area->h) return std::nullopt;
    return inPicture({area->w / 2, y});
}

std::optional<Point> Story::aboveBar() {
    const auto area = picture();
    if (!area || freeHeight() <= margin) return std::nullopt;
    return inPicture({area->w / 2, freeHeight() - margin});
}

std::vector<Text> Story::state() {
    std::vector<Text> lines{"room " + z_.RaumDatei, "evil " + std::to_string(z_.BösePunkte)};
    std::vector<Text> flags;
    for (const Text& name : z_.Merker)
        if (!name.empty()) flags.push_back(name);
    std::sort(flags.begin(), flags.end(), [](const Text& a, const Text& b) {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                            [](unsigned char x, unsigned char y) { return x < y; });
    });
    lines.push_back("flags " + std::to_string(flags.size()));
    for (const Text& name : flags) lines.push_back("flag " + name);
    lines.push_back("items " + std::to_string(z_.InventarLetzter + 1));
    for (int i = 0; i <= z_.InventarLetzter; ++i)
        lines.push_back("item " + z_.Inventar[static_cast<std::size_t>(i)]);
    lines.push_back("music " + recorder_.song());
    lines.push_back("voice " + recorder_.voice());
    return lines;
}

}  // namespace zentrox::probe
