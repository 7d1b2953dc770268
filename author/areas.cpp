#include "author/areas.h"

#include <algorithm>
#include <array>
#include <system_error>

#include "author/sourceedit.h"
#include "platform/machine/replace_file.h"
#include "platform/machine/whole_file.h"
#include "platform/values/keys.h"

namespace zentrox::author {

namespace {

constexpr TextView areaFor = "Fläche für \""_t;
constexpr TextView howToDraw =
    "Ziehen: Rechteck. Klicken: Vieleck, Eingabe schließt es. Umschalt: dazu. Rechts, Tab: anderes Objekt. Esc: Ende."_t;
constexpr Size roomSize{Maskenspalten * Maskenzelle, Maskenzeilen* Maskenzelle};
constexpr int dragFrom = 4;  // pixels that the pointer has to move for a rectangle
constexpr int nearTo = 8;    // a click so near to the first corner closes the outline
constexpr Colour line{255, 255, 255};
constexpr Colour labelGround{0, 0, 0};
constexpr Colour inactive{150, 150, 150};
constexpr std::array colours{Colour{255, 80, 80},  Colour{80, 200, 255},  Colour{120, 255, 90},
                             Colour{255, 210, 60}, Colour{230, 110, 255}, Colour{255, 150, 60},
                             Colour{90, 255, 210}};

Colour colourOf(int object, const RaumObjekt& of) {
    return of.Aktiv ? colours[static_cast<std::size_t>(object) % colours.size()] : inactive;
}

// Half of the colour over what is there.
void tint(Bitmap& picture, const Rect& area, Colour colour) {
    const Rect part = intersection(area, picture.clip());
    constexpr std::uint32_t parts = 0x7F7F7F;  // the upper bits of each of red, green and blue
    for (int y = part.y; y < part.bottom(); ++y)
        for (int x = part.x; x < part.right(); ++x) {
            std::uint32_t& pixel = picture.row(y)[x];
            pixel = (pixel >> 1U & parts) + (colour.rgb >> 1U & parts);
        }
}

Rect cellAt(Point room, int column, int row) {
    return {room.x + column * Maskenzelle, room.y + row * Maskenzelle, Maskenzelle, Maskenzelle};
}

int distance(Point a, Point b) {
    return std::max(std::abs(a.x - b.x), std::abs(a.y - b.y));
}

}  // namespace

Areas::Areas(Workbench& bench) : bench_(bench), z_(bench.comforts().zustand()) {
    ComfortKeys& keys = bench.comforts().keys();
    keys.add({.code = key::f5,
              .control = true,
              .label = "Strg+F5",
              .does = "Flächen zeigen"_t,
              .group = Werkbank,
              .down = [this] { showOrHide(); }});
    keys.add({.code = key::f6,
              .control = true,
              .label = "Strg+F6",
              .does = "Flächen zeichnen"_t,
              .group = Werkbank,
              .down = [this] { beginOrEnd(); }});
    bench.comforts().addLook([this](const Input& input) { return look(input); });
    bench.comforts().addOverlay([this](Bitmap& picture, const Rect& base) { draw(picture, base); });
}

std::optional<Rect> Areas::room() const {
    Window* const window = bench_.comforts().platform().queue.active();
    if (window == nullptr || window->name() != "Form1") return std::nullopt;
    const Control* const picture = window->find("Picture1");
    if (picture == nullptr) return std::nullopt;
    return picture->areaInWindow();
}

int Areas::objectAt(Point inRoom) const {
    const auto& objects = z_.AktuellerRaum.Objekte;
    for (std::size_t i = 0; i < objects.size(); ++i)
        if (objects[i].Maske.at(inRoom.x / Maskenzelle, inRoom.y / Maskenzelle)) return static_cast<int>(i);
    return -1;
}

// --- what is drawn for, and how

void Areas::showOrHide() {
    shown_ = !shown_;
    bench_.comforts().refresh();
}

void Areas::beginOrEnd() {
    drawing_ = !drawing_ && room().has_value() && !z_.AktuellerRaum.Objekte.empty();
    giveUpShape();
    if (drawing_) chosen_ = std::max(0, objectAt({static_cast<int>(z_.MausX), static_cast<int>(z_.MausY)}));
    bench_.comforts().refresh();
}

void Areas::next(int step) {
    const auto count = static_cast<int>(z_.AktuellerRaum.Objekte.size());
    if (count > 0) chosen_ = (chosen_ + step + count) % count;
}

void Areas::giveUpShape() {
    corners_.clear();
    pressed_ = further_ = false;
}

bool Areas::look(const Input& input) {
    const auto area = drawing_ ? room() : std::nullopt;
    if (!area) return false;
    using Kind = Input::Kind;
    const Point at = input.at - area->at();
    switch (input.kind) {
        case Kind::keyDown: return key(input);
        case Kind::press: press(input, at); break;
        case Kind::move: pointer_ = at; break;
        case Kind::release: release(at); break;
        case Kind::keyUp:
        case Kind::keyPress: return true;
        default: return false;
    }
    bench_.comforts().refresh();
    return true;
}

bool Areas::key(const Input& input) {
    const bool shape = pressed_ || !corners_.empty();
    if (input.code == key::tab) next(input.shift ? -1 : 1);
    if (input.code == key::enter && corners_.size() > 2) finish(polygonLine(corners_));
    if (input.code == key::backspace && !corners_.empty()) corners_.pop_back();
    if (input.code == key::escape && !shape) drawing_ = false;
    if (input.code == key::escape) giveUpShape();
    bench_.comforts().refresh();
    return true;
}

void Areas::press(const Input& input, Point at) {
    pointer_ = at;
    if (input.button == Button::right) {
        // The object below the pointer is drawn for.
        if (const int object = objectAt(at); object >= 0) chosen_ = object;
        return giveUpShape();
    }
    if (input.button != Button::left) return;
    pressed_ = true;
    further_ = further_ || input.shift;
    from_ = at;
}

void Areas::release(Point at) {
    if (!pressed_) return;
    pressed_ = false;
    const auto held = [](Point p) { return Point{std::clamp(p.x, 0, roomSize.w), std::clamp(p.y, 0, roomSize.h)}; };
    if (corners_.empty() && distance(from_, at) >= dragFrom) return finish(rectangleLine(held(from_), held(at)));
    if (corners_.size() > 2 && distance(corners_.front(), at) <= nearTo) return finish(polygonLine(corners_));
    corners_.push_back(held(at));
}

void Areas::finish(const std::string& shape) {
    const bool further = further_;
    giveUpShape();
    Comforts& comforts = bench_.comforts();
    if (write(shape, further)) return comforts.notice(fromUtf8(shape));
    comforts.platform().backend.setClipboard(shape);
    comforts.notice(Text("In der Zwischenablage: "_t) + fromUtf8(shape));
}

// What is saved comes back as any change of a source does.
bool Areas::write(const std::string& shape, bool further) {
    const Compiler& compiler = bench_.compiler();
    if (bench_.faulty()) return false;  // lines are no longer where they were
    for (const story::StoryRoom& room : compiler.story().rooms) {
        if (!equalIgnoringCase(room.file, z_.RaumDatei)) continue;
        const auto index = static_cast<std::size_t>(chosen_);
        if (index >= room.objects.size()) return false;
        const story::Place place = room.objects[index].name;
        const auto file = compiler.fileOf(place);
        const auto source = readFile(file);
        const auto edited = source ? withArea(*source, place.line, shape, further) : std::nullopt;
        if (!edited) return false;
        try {
            replaceFile(file, *edited);
        } catch (const std::system_error&) {
            return false;
        }
        return true;
    }
    return false;
}

// --- the picture

void Areas::draw(Bitmap& picture, const Rect& base) const {
    const auto area = room();
    if (!area || !(shown_ || drawing_)) return;
    const Point at = base.at() + area->at();
    const auto count = static_cast<int>(z_.AktuellerRaum.Objekte.size());
    for (int i = 0; i < count; ++i) drawObject(picture, at, i);
    for (int i = 0; i < count; ++i) drawName(picture, at, i);
    if (!drawing_) return;
    drawShape(picture, at);
    if (!bench_.faulty()) drawHelp(picture, {at, roomSize});
}

// Only the cells in which it takes the click are filled; the others, which lie below another object, are outlined.
void Areas::drawObject(Bitmap& picture, Point at, int object) const {
    const RaumObjekt& of = z_.AktuellerRaum.Objekte[static_cast<std::size_t>(object)];
    const Colour colour = colourOf(object, of);
    const bool chosen = drawing_ && object == chosen_;
    for (int column = 0; column < Maskenspalten; ++column)
        for (int row = 0; row < Maskenzeilen; ++row) {
            if (!of.Maske.at(column, row)) continue;
            const Rect cell = cellAt(at, column, row);
            const bool lowest = objectAt({column * Maskenzelle, row * Maskenzelle}) == object;
            if (lowest && !drawing_) tint(picture, cell, colour);
            if (!lowest || !of.Aktiv)
                picture.line({cell.x + 2, cell.bottom() - 3}, {cell.right() - 3, cell.y + 2}, colour);
            const Colour edge = chosen ? line : colour;
            const Point top{cell.x, cell.y};
            const Point far{cell.right() - 1, cell.bottom() - 1};
            if (!of.Maske.at(column - 1, row)) picture.line(top, {top.x, far.y}, edge);
            if (!of.Maske.at(column + 1, row)) picture.line({far.x, top.y}, far, edge);
            if (!of.Maske.at(column, row - 1)) picture.line(top, {far.x, top.y}, edge);
            if (!of.Maske.at(column, row + 1)) picture.line({top.x, far.y}, far, edge);
            // The grid that the game knows.
            picture.setPixel(top, edge);
        }
}

// Its number among the objects says which lies above which: the lower one takes the click.
void Areas::drawName(Bitmap& picture, Point at, int object) const {
    const RaumObjekt& of = z_.AktuellerRaum.Objekte[static_cast<std::size_t>(object)];
    for (int row = 0; row < Maskenzeilen; ++row)
        for (int column = 0; column < Maskenspalten; ++column) {
            if (!of.Maske.at(column, row)) continue;
            const Font& font = bench_.comforts().platform().fonts.get({});
            const Text name = std::to_string(object + 1) + " " + of.Name + (of.Aktiv ? "" : " (aus)");
            Rect label{cellAt(at, column, row).at(), {font.width(name) + 6, font.lineHeight() + 2}};
            label.x = std::min(label.x, at.x + roomSize.w - label.w);
            label.y = std::min(label.y, at.y + roomSize.h - label.h);
            picture.fill(label, labelGround);
            if (drawing_ && object == chosen_) picture.outline(label, line);
            font.draw(picture, label.at() + Point{3, 1}, name, colourOf(object, of));
            return;
        }
}

void Areas::drawShape(Bitmap& picture, Point at) const {
    if (pressed_ && corners_.empty()) {
        const auto [left, right] = std::minmax(from_.x, pointer_.x);
        const auto [top, bottom] = std::minmax(from_.y, pointer_.y);
        picture.outline({at.x + left, at.y + top, right - left + 1, bottom - top + 1}, line);
    }
    for (std::size_t i = 0; i < corners_.size(); ++i) {
        const Point next = i + 1 < corners_.size() ? corners_[i + 1] : pointer_;
        picture.line(at + corners_[i], at + next, line);
        picture.circle(at + corners_[i], 3, line);
    }
}

void Areas::drawHelp(Bitmap& picture, const Rect& area) const {
    const Font& font = bench_.comforts().platform().fonts.get({});
    const auto& objects = z_.AktuellerRaum.Objekte;
    const auto index = static_cast<std::size_t>(chosen_);
    const Text name = index < objects.size() ? objects[index].Name : Text();
    const Text place = std::to_string(pointer_.x) + " " + std::to_string(pointer_.y);
    const std::array rows{Text(areaFor) + name + "\"   " + place, Text(howToDraw)};
    const int height = 2 * font.lineHeight() + 6;
    picture.fill({area.x, area.y, area.w, height}, labelGround);
    Point at{area.x + 6, area.y + 3};
    for (const Text& row : rows) {
        font.draw(picture, at, row, line);
        at.y += font.lineHeight();
    }
}

}  // namespace zentrox::author
