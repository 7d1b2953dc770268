#include "comfort/historywindow.h"

#include <algorithm>

#include "comfort/letters.h"
#include "engine/state/farbe.h"
#include "platform/values/keys.h"
#include "platform/window/controls/textlayout.h"

namespace zentrox {

namespace {

constexpr Size whole{600, 430};  // pixels
constexpr int margin = 10;
constexpr int indent = 22;  // where the mark of a spoken text stands
constexpr Colour pointedGround{40, 40, 70};

Size buttonSize(const Platform& platform) {
    return {grown(platform, 120, 150), grown(platform, 25, 36)};
}

}  // namespace

SpokenList::SpokenList(Control* parent, const Rect& area, const History& history, const FontSpec& font)
    : Control(parent, area),
      fontSpec_(font) {
    bar_.setArea(
        {area.w - ScrollBar::breadth - look::edge, look::edge, ScrollBar::breadth, area.h - 2 * look::edge});
    for (const Spoken& spoken : history.all()) addRows(spoken);
    if (!rows_.empty()) rows_.pop_back();
    bar_.setRange(static_cast<int>(rows_.size()), page());
    bar_.setPosition(static_cast<int>(rows_.size()));
}

void SpokenList::addRows(const Spoken& spoken) {
    const int width = area().w - indent - ScrollBar::breadth - 2 * look::edge;
    for (const SpokenLine& line : spoken.lines)
        for (const TextLine& piece : wrapText(font(), line.text, width))
            rows_.push_back({&spoken, line.colour, line.text.substr(piece.begin, piece.end - piece.begin)});
    rows_.emplace_back();
}

int SpokenList::page() const {
    return (area().h - 2 * look::edge) / font().lineHeight();
}

const Spoken* SpokenList::spokenAt(Point at) const {
    const int row = bar_.position() + (at.y - look::edge) / font().lineHeight();
    if (at.x < 0 || at.y < look::edge || row >= static_cast<int>(rows_.size()) || at.x >= bar_.area().x)
        return nullptr;
    return rows_[static_cast<std::size_t>(row)].spoken;
}

Text SpokenList::shownText() const {
    Text all;
    for (const Row& row : rows_) all += row.text + "\r\n";
    return all;
}

void SpokenList::pointerDown(const PointerEvent& event) {
    const Point at{static_cast<int>(event.x), static_cast<int>(event.y)};
    if (bar_.needed() && bar_.area().contains(at)) return bar_.press(at);
    if (const Spoken* const spoken = spokenAt(at); spoken != nullptr && !spoken->voice.empty() && onSay)
        onSay(*spoken);
}

void SpokenList::pointerMove(const PointerEvent& event) {
    const Point at{static_cast<int>(event.x), static_cast<int>(event.y)};
    if (bar_.held()) return bar_.move(at);
    const Spoken* spoken = spokenAt(at);
    if (spoken != nullptr && spoken->voice.empty()) spoken = nullptr;
    if (spoken != pointed_) changed();
    pointed_ = spoken;
}

void SpokenList::pointerUp(const PointerEvent& /*event*/) {
    bar_.release();
}

bool SpokenList::keyDown(int code, bool /*shift*/, bool /*control*/) {
    const int here = bar_.position();
    switch (code) {
        case key::up: bar_.setPosition(here - 1); return true;
        case key::down: bar_.setPosition(here + 1); return true;
        case key::pageUp: bar_.setPosition(here - page() + 1); return true;
        case key::pageDown: bar_.setPosition(here + page() - 1); return true;
        case key::home: bar_.setPosition(0); return true;
        case key::end: bar_.setPosition(static_cast<int>(rows_.size())); return true;
        default: return false;
    }
}

void SpokenList::paint(Bitmap& onto, Point at) {
    const Rect ground{at, area().size()};
    onto.fill(ground, black);
    const look::Clip clip(onto, look::shrunk(ground, look::edge));
    const int height = font().lineHeight();
    int y = at.y + look::edge;
    const auto first = static_cast<std::size_t>(bar_.position());
    for (std::size_t i = first; i < rows_.size() && y < ground.bottom(); ++i, y += height) {
        const Row& row = rows_[i];
        if (row.spoken == nullptr) continue;
        if (row.spoken == pointed_) onto.fill({at.x, y, area().w, height}, pointedGround);
        const bool firstOfText = i == 0 || rows_[i - 1].spoken != row.spoken;
        if (firstOfText && !row.spoken->voice.empty()) {
            for (int k = 0; k < 5; ++k)  // a small triangle, as on a player
                onto.line({at.x + 8 + k, y + height / 2 - 4 + k}, {at.x + 8 + k, y + height / 2 + 4 - k},
                          look::face);
        }
        if (firstOfText && row.spoken->chosen) font().draw(onto, {at.x + 8, y}, ">", white);
        font().draw(onto, {at.x + indent, y}, row.text, Farbe16(row.colour));
    }
    if (bar_.needed()) bar_.paint(onto, at);
}

HistoryWindow::HistoryWindow(Platform& platform, const History& history, const FontSpec& font)
    : Window(platform, "Verlauf", "Was gesagt wurde", whole, Frame::dialog),
      list_(&root(), {margin, margin, whole.w - 2 * margin, whole.h - 3 * margin - buttonSize(platform).h}, history,
            font),
      close_(&root(),
             {Point{whole.w - margin, whole.h - margin} - Point{buttonSize(platform).w, buttonSize(platform).h},
              buttonSize(platform)},
             "Schließen"_t) {
    close_.setFont(platform.boxFont());
    list_.onSay = [this](const Spoken& spoken) { say(spoken); };
    close_.setDefault(true);
    close_.onClick = [this] { close(); };
}

void HistoryWindow::onKeyDown(int code) {
    if (code == key::escape || code == key::enter || code == key::space) close();
}

void HistoryWindow::say(const Spoken& spoken) {
    hush();
    voice_ = platform().sound.openVoice(spoken.voice);
    if (voice_ != 0) platform().sound.playVoice(voice_);
}

void HistoryWindow::hush() {
    if (voice_ != 0) platform().sound.freeVoice(voice_);
    voice_ = 0;
}

}  // namespace zentrox
