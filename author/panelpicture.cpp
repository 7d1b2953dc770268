// What the panel looks like.
#include <algorithm>
#include <array>

#include "author/panel.h"
#include "engine/state/felder.h"
#include "engine/state/merker.h"
#include "tools/probe/itemnames.h"

namespace zentrox::author {

namespace {

constexpr TextView evil = "Böse: "_t;
constexpr TextView noScript = "Kein Skript läuft."_t;
constexpr TextView areas = "Flächen"_t;
constexpr int margin = 8;  // pixels
constexpr int gap = 6;     // between groups
constexpr int mostFindings = 3;

Text placeOf(const std::filesystem::path& file, int line) {
    return file.empty() ? Text("-") : fromUtf8(file.filename().string()) + ":" + std::to_string(line);
}

bool holds(const Text& name, const Text& filter) {
    return upper(name).find(upper(filter)) != Text::npos;
}

}  // namespace

int Panel::width() const {
    return sheet_.size().w - 2 * margin;
}

void Panel::paint() {
    sheet_.begin(window_->size());
    const int y = tabs(buttons(script(header(margin))));
    const Rect frame{margin, y, width(), findings() - y};
    sheet_.list(frame, page_ == Page::trace ? traceRows() : nameRows(), scroll_, page_ == Page::trace);
}

// Where a play is: its room, and at the right its evil counter.
int Panel::header(int y) {
    const int counter = evilCounter(y);
    const Text room = z_.RaumDatei.empty() ? Text("(kein Raum)") : z_.RaumDatei;
    sheet_.text({margin, y + 4}, counter - 2 * margin, room, ink::accent, true);
    for (const story::StoryRoom& one : bench_.compiler().story().rooms) {
        if (!equalIgnoringCase(one.file, z_.RaumDatei)) continue;
        sheet_.clickable({margin, y, counter - 2 * margin, sheet_.lineHeight()},
                         [this, place = one.head] { openEditor(bench_.compiler().fileOf(place), place.line); });
    }
    return y + sheet_.buttonHeight() + gap;
}

// Gives the x of its left edge.
int Panel::evilCounter(int y) {
    const Text label = Text(evil) + std::to_string(z_.BösePunkte);
    const int labelWidth = sheet_.width(label) + gap;
    const int left = margin + width() - sheet_.buttonWidth("-") - 4 - sheet_.buttonWidth("+") - labelWidth;
    sheet_.text({left, y + 4}, labelWidth, label, z_.BösePunkte > 0 ? ink::warm : ink::plain);
    const int x = sheet_.button({left + labelWidth, y}, "-", false, [this] { changeEvil(-1); });
    sheet_.button({x, y}, "+", false, [this] { changeEvil(1); });
    return left;
}

int Panel::script(int y) {
    const bool runs = !trace_.running().empty() && !trace_.entries().empty();
    const Text name = runs ? "Skript: " + trace_.running() : Text(noScript);
    sheet_.text({margin, y}, width(), name, runs ? ink::warm : ink::faint);
    const int second = y + sheet_.lineHeight();
    if (runs) {
        const Trace::Entry& entry = trace_.entries().back();
        sheet_.text({margin, second}, width(), placeOf(entry.file, entry.line) + "  " + entry.text, ink::plain);
        sheet_.clickable({margin, second, width(), sheet_.lineHeight()},
                         [this, entry] { openEditor(entry.file, entry.line); });
    }
    return second + sheet_.lineHeight() + gap;
}

int Panel::buttons(int y) {
    const int x = sheet_.button({margin, y}, held_ ? "Schritt (F4)" : "Halten (F4)", stepping_, [this] { step(); });
    if (stepping_) sheet_.button({x, y}, "Weiter", false, [this] { goOn(); });
    const Text show(areas);
    const Text draw = "Zeichnen";
    const int right = margin + width() - sheet_.buttonWidth(show) - 4 - sheet_.buttonWidth(draw);
    const int next = sheet_.button({right, y}, show, areas_.shown(), [this] { areas_.showOrHide(); });
    sheet_.button({next, y}, draw, areas_.drawing(), [this] { areas_.beginOrEnd(); });
    return y + sheet_.buttonHeight() + gap;
}

// Below the list, so that nothing moves below the pointer when they come; gives the y above them.
int Panel::findings() {
    const int bottom = sheet_.size().h - margin;
    const int rows = std::min(mostFindings, static_cast<int>(bench_.findings().size()));
    if (rows == 0) return bottom;
    const int top = bottom - rows * sheet_.lineHeight();
    int y = top;
    for (const bool errors : {true, false})
        for (const Compiler::Finding& finding : bench_.findings()) {
            if (finding.isError != errors || y + sheet_.lineHeight() > bottom) continue;
            sheet_.text({margin, y}, width(), fromUtf8(shortly(finding)), errors ? ink::warm : ink::faint);
            sheet_.clickable({margin, y, width(), sheet_.lineHeight()},
                             [this, finding] { openEditor(finding.file, finding.line); });
            y += sheet_.lineHeight();
        }
    return top - gap;
}

Text Panel::label(Page page) const {
    const auto counted = [](const Text& name, std::ptrdiff_t count) {
        return count == 0 ? name : name + " (" + std::to_string(count) + ")";
    };
    switch (page) {
        case Page::rooms: return Text("Räume"_t);
        case Page::flags:
            return counted("Merker", std::count_if(z_.Merker.begin(), z_.Merker.end(),
                                                   [](const Text& flag) { return !flag.empty(); }));
        case Page::items: return counted(Text("Gepäck"_t), z_.InventarLetzter + 1);
        default: return "Spur";
    }
}

int Panel::tabs(int y) {
    int x = margin;
    for (const Page page : {Page::trace, Page::rooms, Page::flags, Page::items})
        x = sheet_.button({x, y}, label(page), page_ == page, [this, page] { turnTo(page); });
    if (page_ != Page::trace)
        sheet_.text({x + gap, y + 4}, margin + width() - x - gap, filter_.empty() ? Text("Tippen sucht") : filter_,
                    filter_.empty() ? ink::faint : ink::accent, !filter_.empty());
    return y + sheet_.buttonHeight() + gap;
}

// The newest stands at the bottom, as in a terminal.
std::vector<Sheet::Row> Panel::traceRows() {
    std::vector<Sheet::Row> rows;
    for (const Trace::Entry& entry : trace_.entries())
        rows.push_back({.place = placeOf(entry.file, entry.line), .text = entry.text, .click = [this, entry] {
                            openEditor(entry.file, entry.line);
                        }});
    if (held_ && !rows.empty()) rows.back().current = true;
    return rows;
}

std::vector<Sheet::Row> Panel::nameRows() {
    std::vector<Sheet::Row> rows;
    const auto add = [&](const Text& name, bool ticked, Sheet::Action click) {
        if (holds(name, filter_)) rows.push_back({.text = name, .box = ticked, .click = std::move(click)});
    };
    if (page_ == Page::rooms)
        for (const Text& file : roomFiles())
            add(file, equalIgnoringCase(file, z_.RaumDatei), [this, file] { jumpTo(file); });
    if (page_ == Page::flags)
        for (const Text& flag : flags()) add(flag, MerkerGesetzt(z_, flag), [this, flag] { toggleFlag(flag); });
    if (page_ == Page::items)
        for (const Text& file : probe::itemFiles(comforts_.platform().files, z_.PfadItems))
            add(story::itemName(file), carries(file), [this, file] { toggleItem(file); });
    return rows;
}

}  // namespace zentrox::author
