#include "comfort/history.h"

#include <algorithm>
#include <utility>

#include "engine/state/felder.h"
#include "engine/state/textzeilen.h"

namespace zentrox {

void History::add(TextView text, bool chosen) {
    Spoken spoken{{}, std::exchange(voice_, {}), chosen};
    for (const Textzeile& line : TextzeilenVon(text))
        if (!Getrimmt(line.Inhalt).empty()) spoken.lines.push_back({line.Farbe, Trim(line.Inhalt)});
    if (spoken.lines.empty()) return;
    spoken_.push_back(std::move(spoken));
    if (spoken_.size() > most) spoken_.pop_front();
}

void History::Zeigt(TextView text) {
    add(text, false);
}

void History::Gewählt(int option) {
    if (asked_.empty()) return;
    add(asked_.front(), false);
    const auto chosen = static_cast<std::size_t>(std::max(option, 0));
    if (chosen > 0 && chosen < asked_.size()) add(asked_[chosen], true);
    asked_.clear();
}

std::vector<Text> History::lastLines(std::size_t count) const {
    std::vector<Text> lines;
    for (auto spoken = spoken_.rbegin(); spoken != spoken_.rend() && lines.size() < count; ++spoken)
        for (auto line = spoken->lines.rbegin(); line != spoken->lines.rend() && lines.size() < count; ++line)
            lines.push_back(line->text);
    std::reverse(lines.begin(), lines.end());
    return lines;
}

}  // namespace zentrox
