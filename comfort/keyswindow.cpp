#include "comfort/keyswindow.h"

#include <algorithm>

#include "comfort/letters.h"
#include "platform/values/keys.h"
#include "platform/window/controls/textlayout.h"

namespace zentrox {

namespace {

constexpr int width = 616;
constexpr int edge = 8;
constexpr int inset = 8;
constexpr int extraRow = 3;  // pixels between two lines

// Larger letters have one column, which can be scrolled.
int columnsFor(const Platform& platform) {
    return platform.boxPercent == 100 ? 2 : 1;
}

Size buttonFor(const Platform& platform) {
    return {grown(platform, 90, 140), grown(platform, 25, 36)};
}

int heightFor(const Platform& platform) {
    return grown(platform, 400, 440);
}

Rect pageFor(const Platform& platform) {
    return {edge, edge, width - 2 * edge, heightFor(platform) - buttonFor(platform).h - 2 * edge - 3};
}

// What the game itself and its machine understand.
constexpr std::array gameLines{
    KeyLine{"", "Im Raum"_t},
    KeyLine{"linke Taste", "benutzen, nehmen, reden, hingehen"_t},
    KeyLine{"rechte Taste", "ansehen"_t},
    KeyLine{"Ziehen", "einen Gegenstand auf etwas anwenden"_t},
    KeyLine{"Leertaste", "Tasche auf und zu"_t},
    KeyLine{"eine Taste", "den Text weiter"_t},
    KeyLine{"Esc", "Film beenden"_t},
    KeyLine{"F1", "Spielstand laden"_t},
    KeyLine{"F2", "speichern"_t},
    KeyLine{"F7", "wie böse ich war, als Zahl"_t},
    KeyLine{"", "In den Spielen"_t},
    KeyLine{"Pfeile", "laufen, ducken, Schläger bewegen"_t},
    KeyLine{"Leertaste", "springen"_t},
    KeyLine{"Esc", "aufgeben"_t},
    KeyLine{"", "Überall"_t},
    KeyLine{"F11", "Vollbild und zurück (auch Alt+Enter)"_t},
    KeyLine{"F8", "anders vergrößern"_t},
};

std::vector<KeyLine> allLines(const ComfortKeys& keys) {
    std::vector<KeyLine> lines(gameLines.begin(), gameLines.end());
    for (const ComfortKey& key : keys.all())
        if (!key.does.empty() && key.group.empty()) lines.push_back({key.label, key.does});
    TextView group;
    for (const ComfortKey& key : keys.all()) {
        if (key.group.empty()) continue;
        if (key.group != group) lines.push_back({"", key.group});
        group = key.group;
        lines.push_back({key.label, key.does});
    }
    return lines;
}

}  // namespace

KeyPage::KeyPage(Control* parent, const Rect& area, std::vector<KeyLine> lines)
    : Control(parent, area),
      lines_(std::move(lines)) {
    columnsFor(window()->platform()) == 1 ? layOutOne() : layOutTwo();
    bar_.setArea(
        {area.w - ScrollBar::breadth - look::edge, look::edge, ScrollBar::breadth, area.h - 2 * look::edge});
    int rows = 0;
    for (const Cell& cell : cells_) rows = std::max(rows, cell.row + 1);
    bar_.setRange(rows, rowsThatFit());
    bar_.setPosition(0);
}

const Font& KeyPage::font(bool bold) const {
    FontSpec wanted = window()->platform().boxFont();
    wanted.bold = bold;
    return look::fontFor(*this, wanted);
}

int KeyPage::pitch() const {
    return font(false).lineHeight() + extraRow;
}

int KeyPage::rowsThatFit() const {
    return (height() - 2 * inset) / pitch();
}

void KeyPage::layOutTwo() {
    constexpr int columns = 2;
    constexpr int labelWidth = 92;
    const auto titles = std::count_if(lines_.begin(), lines_.end(), [](auto& line) { return line.label.empty(); });
    const auto all = static_cast<int>(lines_.size());
    const int rows = std::min(rowsThatFit(), (all + static_cast<int>(titles)) / columns + 1);
    int row = 0;
    int column = 0;
    for (const KeyLine& line : lines_) {
        const bool title = line.label.empty();
        if (title && row > 0) ++row;
        // Nor does a title stand alone at the foot of a column.
        if (row + (title ? 2 : 0) >= rows && column + 1 < columns) {
            row = 0;
            ++column;
        }
        const int x = column * (width() / columns);
        cells_.push_back({row, x, title ? line.does : line.label, title});
        if (!title) cells_.push_back({row, x + labelWidth, line.does, false});
        ++row;
    }
}

void KeyPage::layOutOne() {
    const int labelWidth = grown(window()->platform(), 92, 190);
    const int room = width() - labelWidth - 2 * inset - ScrollBar::breadth;
    int row = 0;
    for (const KeyLine& line : lines_) {
        const bool title = line.label.empty();
        if (title && row > 0) ++row;
        cells_.push_back({row, 0, title ? line.does : line.label, title});
        if (!title)
            for (const TextLine& piece : wrapText(font(false), line.does, room))
                cells_.push_back(
                    {row++, labelWidth, line.does.substr(piece.begin, piece.end - piece.begin), false});
        else
            ++row;
    }
}

void KeyPage::pointerDown(const PointerEvent& event) {
    const Point at{static_cast<int>(event.x), static_cast<int>(event.y)};
    if (bar_.needed() && bar_.area().contains(at)) bar_.press(at);
}

void KeyPage::pointerMove(const PointerEvent& event) {
    if (bar_.held()) bar_.move({static_cast<int>(event.x), static_cast<int>(event.y)});
}

bool KeyPage::keyDown(int code, bool /*shift*/, bool /*control*/) {
    const int page = rowsThatFit() - 1;
    switch (code) {
        case key::up: bar_.setPosition(bar_.position() - 1); return true;
        case key::down: bar_.setPosition(bar_.position() + 1); return true;
        case key::pageUp: bar_.setPosition(bar_.position() - page); return true;
        case key::pageDown: bar_.setPosition(bar_.position() + page); return true;
        default: return false;
    }
}

Text KeyPage::shownText() const {
    Text all;
    for (const KeyLine& line : lines_)
        all += (all.empty() ? "" : "\n") + Text(line.label) + (line.label.empty() ? "" : ": ") + Text(line.does);
    return all;
}

void KeyPage::paint(Bitmap& onto, Point at) {
    const Rect ground{at, area().size()};
    onto.fill(ground, look::ground);
    look::sunken(onto, ground);
    const look::Clip clip(onto, look::shrunk(ground, look::edge));
    for (const Cell& cell : cells_) {
        const int row = cell.row - bar_.position();
        if (bar_.needed() && (row < 0 || row >= rowsThatFit())) continue;
        font(cell.bold).draw(onto, at + Point{inset + cell.x, inset + row * pitch()}, cell.text, look::text);
    }
    if (bar_.needed()) bar_.paint(onto, at);
}

KeysWindow::KeysWindow(Comforts& comforts)
    : Window(comforts.platform(), "Tasten", "Tasten", {width, heightFor(comforts.platform())}, Frame::dialog),
      page_(&root(), pageFor(comforts.platform()), allLines(comforts.keys())),
      close_(&root(), {}, "Schließen"_t) {
    const Size button = buttonFor(platform());
    close_.setArea({{(width - button.w) / 2, page_.area().bottom() + 5}, button});
    close_.setFont(platform().boxFont());
    close_.setDefault(true);
    close_.onClick = [this] { close(); };
}

void KeysWindow::onKeyDown(int code) {
    if (code == key::escape || code == key::f3 || code == key::enter) close();
}

}  // namespace zentrox
