#include "comfort/targets.h"

#include <algorithm>
#include <array>
#include <map>

#include "engine/state/felder.h"
#include "platform/window/controls/textlayout.h"

namespace zentrox {

namespace {

constexpr int cell = 64;  // of the bag
constexpr int edge = 8;   // from it to an item's picture
constexpr int outside = 50;

Text baseName(TextView path) {
    Text name = Dateiname(path);
    return name.substr(0, name.rfind('.'));
}

bool hidden(TextView name) {
    return name.empty() || name.front() == '_';
}

// The cells of the room picture by the object that takes a click there: the lowest one.
std::map<int, std::vector<Point>> cellsByObject(const Raum& room, int freeHeight) {
    std::map<int, std::vector<Point>> cells;
    for (int column = 0; column < Maskenspalten; ++column)
        for (int row = 0; row < Maskenzeilen && (row + 1) * Maskenzelle <= freeHeight; ++row)
            for (int i = 0; i <= room.LetztesObjekt; ++i) {
                if (!room.Objekte[static_cast<std::size_t>(i)].Maske.at(column, row)) continue;
                cells[i].push_back({column, row});
                break;
            }
    return cells;
}

// The cell nearest to the middle of them all.
Point middleOf(const std::vector<Point>& cells) {
    Point sum;
    for (const Point c : cells) sum = sum + c;
    const auto count = static_cast<int>(cells.size());
    const auto distance = [&](Point c) {
        const Point d{c.x * count - sum.x, c.y * count - sum.y};
        return static_cast<double>(d.x) * d.x + static_cast<double>(d.y) * d.y;
    };
    return *std::min_element(cells.begin(), cells.end(),
                             [&](Point a, Point b) { return distance(a) < distance(b); });
}

Rect around(const std::vector<Point>& cells) {
    Rect all;
    for (const Point c : cells) all = united(all, {c.x * Maskenzelle, c.y * Maskenzelle, Maskenzelle, Maskenzelle});
    return all;
}

void addThings(const Zustand& z, Point corner, int freeHeight, bool dropping, std::vector<Target>& into) {
    std::vector<Target> things;
    for (const auto& [i, cells] : cellsByObject(z.AktuellerRaum, freeHeight)) {
        const RaumObjekt& object = z.AktuellerRaum.Objekte[static_cast<std::size_t>(i)];
        const bool answers = dropping ? object.HatSkript[2] : object.HatSkript[0] || object.HatSkript[1];
        if (!object.Aktiv || !answers || hidden(object.Name)) continue;
        const Rect area = around(cells);
        const Point middle = middleOf(cells);
        constexpr int half = Maskenzelle / 2;
        things.push_back({Target::Kind::thing,
                          i,
                          object.Name,
                          {area.at() + corner, area.size()},
                          corner + Point{middle.x * Maskenzelle + half, middle.y * Maskenzelle + half}});
    }
    std::stable_sort(things.begin(), things.end(),
                     [](const Target& a, const Target& b) { return a.at.x < b.at.x; });
    into.insert(into.end(), things.begin(), things.end());
}

void addItems(const Zustand& z, const Rect& picture, std::vector<Target>& into) {
    const int top = picture.h - z.LeisteHöhe;
    const int columns = std::max(1, picture.w / cell);
    for (int i = 0; z.LeisteOffen && i <= z.InventarLetzter; ++i) {
        const Point corner = picture.at() + Point{i % columns * cell, top + i / columns * cell};
        into.push_back({Target::Kind::item,
                        i,
                        baseName(z.Inventar[static_cast<std::size_t>(i)]),
                        {corner + Point{edge, edge}, {cell - 2 * edge, cell - 2 * edge}},
                        corner + Point{cell / 2, cell / 2}});
    }
}

// The first line is the question.
std::vector<Target> answers(const Zustand& z, const Rect& picture) {
    std::vector<Target> all;
    const int top = picture.y + picture.h / 2 - z.AuswahlHöhe / 2;
    for (std::size_t i = 1; i < z.AuswahlKanten.size() && i < z.AuswahlTexte.size(); ++i) {
        const Rect area{picture.x, top + z.AuswahlKanten[i - 1], picture.w,
                        z.AuswahlKanten[i] - z.AuswahlKanten[i - 1]};
        if (area.empty()) continue;
        all.push_back({Target::Kind::answer,
                       static_cast<int>(i),
                       z.AuswahlTexte[i],
                       area,
                       {area.x + area.w / 2, area.y + area.h / 2}});
    }
    return all;
}

void addControls(Control& control, std::vector<Target>& into) {
    if (!control.visible() || !control.enabled()) return;
    const bool clickable = control.onClick || control.onDown || control.onUp;
    const Rect area = control.areaInWindow();
    if (clickable && control.parent() != nullptr && !area.empty()) {
        const Text name = control.shownText().empty() ? control.toolTip() : control.shownText();
        into.push_back({Target::Kind::control,
                        static_cast<int>(into.size()),
                        Text(firstLine(name)),
                        area,
                        {area.x + area.w / 2, area.y + area.h / 2}});
    }
    for (Control* const child : control.children()) addControls(*child, into);
}

// The windows of games that are played with the mouse, at rest.
constexpr std::array mouseGames{TextView("Memory"), TextView("HDW"), "Prügel"_t};

}  // namespace

std::vector<Target> targetsIn(const Zustand& z, Window& active, bool dropping) {
    std::vector<Target> all;
    const Control* const picture = active.name() == "Form1" ? active.find("Picture1") : nullptr;
    if (picture == nullptr) {
        if (std::find(mouseGames.begin(), mouseGames.end(), active.name()) != mouseGames.end())
            addControls(active.root(), all);
        return all;
    }
    const Rect area = picture->areaInWindow();
    if (z.SkriptLäuft) return z.AuswahlErgebnis == -1 ? answers(z, area) : all;
    if (z.LeisteBewegt) return all;
    addItems(z, area, all);
    addThings(z, area.at(), z.LeisteOffen ? area.h - z.LeisteHöhe : area.h, dropping, all);
    return all;
}

Point nowhereIn(Window& active) {
    const Control* const picture = active.find("Picture1");
    return picture != nullptr ? picture->areaInWindow().at() - Point{outside, outside} : Point{-outside, -outside};
}

}  // namespace zentrox
