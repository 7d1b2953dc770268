#include "tools/probe/story.h"

#include <algorithm>

#include "engine/state/felder.h"
#include "engine/state/merker.h"
#include "games/base/entscheidbar.h"
#include "platform/window/surface.h"

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

std::string inQuotes(TextView text) {
    return '"' + toUtf8(text) + '"';
}

// How many letters have to be put in, left out or changed to make one name of the other, case aside.
std::size_t distance(TextView a, TextView b) {
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t i = 0; i < row.size(); ++i) row[i] = i;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t corner = row[0]++;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t change = corner + (upper(a[i - 1]) == upper(b[j - 1]) ? 0 : 1);
            corner = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, change});
        }
    }
    return row.back();
}

// "; there is A, B and 3 more", the names most like `wanted` first.
std::string nearest(TextView wanted, std::vector<Text> names) {
    constexpr std::size_t shown = 5;
    if (names.empty()) return "; there is none at all";
    std::stable_sort(names.begin(), names.end(),
                     [wanted](const Text& a, const Text& b) { return distance(a, wanted) < distance(b, wanted); });
    std::string all = "; there is ";
    for (std::size_t i = 0; i < std::min(shown, names.size()); ++i) all += (i > 0 ? ", " : "") + inQuotes(names[i]);
    if (names.size() > shown) all += " and " + std::to_string(names.size() - shown) + " more";
    return all;
}

}  // namespace

Raumfenster* Story::room() const {
    return dynamic_cast<Raumfenster*>(platform_.queue.active());
}

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
    item = itemName(item);
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
    name = itemName(name);
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

std::optional<std::vector<Text>> Story::standingText() {
    Window* const window = platform_.queue.active();
    if (room() == nullptr || platform_.queue.reason() != "Text") return std::nullopt;
    const auto* const band = dynamic_cast<const Surface*>(window->find("Picture1"));
    return band != nullptr ? band->printed() : std::vector<Text>();
}

std::vector<Text> Story::options() {
    if (!choiceOpen() || z_.AuswahlTexte.empty()) return {};
    return {z_.AuswahlTexte.begin() + 1, z_.AuswahlTexte.end()};
}

std::string Story::whyNoObject(TextView name) {
    if (room() == nullptr) return "no room on top";
    std::vector<Text> names;
    bool there = false;
    bool active = false;
    for (const RaumObjekt& object : z_.AktuellerRaum.Objekte) {
        const bool meant = equalIgnoringCase(Getrimmt(object.Name), Getrimmt(name));
        there = there || meant;
        active = active || (meant && object.Aktiv);
        if (object.Aktiv) names.push_back(object.Name);
    }
    if (!there) return "no object of that name in " + toUtf8(z_.RaumDatei) + nearest(name, names);
    return active ? "that others or the bar cover all of it" : "that others cover all of it, and that it is off";
}

std::string Story::whyNoItem(TextView name) {
    std::vector<Text> names;
    for (int i = 0; i <= z_.InventarLetzter; ++i)
        names.push_back(baseName(z_.Inventar[static_cast<std::size_t>(i)]));
    return "that it is not carried" + nearest(name, names);
}

std::string Story::whyNoSuchItem(TextView name) {
    if (room() == nullptr) return "no room on top";
    if (z_.InventarLetzter + 1 >= InventarPlätze) return "that no more can be carried";
    std::vector<Text> names;
    for (const Text& file : itemFiles(platform_.files, z_.PfadItems)) names.push_back(baseName(file));
    return "no picture of that name" + nearest(name, names);
}

bool Story::decide(bool won) {
    auto* const game = dynamic_cast<Entscheidbar*>(platform_.queue.active());
    return game != nullptr && game->Entscheiden(won);
}

void Story::leaveGame() {
    if (auto* const game = dynamic_cast<Entscheidbar*>(platform_.queue.active())) game->Verlassen();
}

bool Story::setFlag(TextView name) {
    MerkerSetzen(z_, name);
    return room() != nullptr;
}

// By its base name, as walks know items; the file may have any extension.
bool Story::takeItem(TextView item) {
    if (room() == nullptr || z_.InventarLetzter + 1 >= InventarPlätze) return false;
    const auto file = itemNames_.file(platform_.files, z_.PfadItems, item);
    if (!file) return false;
    z_.Inventar[static_cast<std::size_t>(++z_.InventarLetzter)] = z_.PfadItems + *file;
    room()->GegenständeLaden();
    return true;
}

bool Story::clearFlag(TextView name) {
    MerkerLöschen(z_, name);
    return room() != nullptr;
}

bool Story::dropItem(TextView item) {
    if (room() == nullptr) return false;
    item = itemName(item);
    const auto end = z_.Inventar.begin() + z_.InventarLetzter + 1;
    const auto slot = std::find_if(z_.Inventar.begin(), end,
                                   [&](const Text& path) { return equalIgnoringCase(baseName(path), item); });
    if (slot == end) return false;
    std::move(slot + 1, end, slot);
    (end - 1)->clear();
    --z_.InventarLetzter;
    room()->GegenständeLaden();
    return true;
}

bool Story::setEvil(int points) {
    z_.BösePunkte = points;
    return room() != nullptr;
}

bool Story::goTo(TextView file) {
    const Text path = z_.PfadRooms + Text(file);
    if (room() == nullptr || !platform_.files.exists(path)) return false;
    room()->Lade(path);
    return true;
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
