#include "tools/probe/ran.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace zentrox::probe {

Ran::Key Ran::keyOf(const Skript& script, TextView room, int object) const {
    Key key{Text(room), "item", {}, {}};
    const auto count = static_cast<std::size_t>(std::clamp<std::int64_t>(
        script.Letzter + std::int64_t{1}, 0, static_cast<std::int64_t>(script.Befehl.size())));
    key.numbers.assign(script.Befehl.begin(), script.Befehl.begin() + static_cast<std::ptrdiff_t>(count));
    key.arguments = script.Argument;
    key.arguments.resize(count);
    if (&script == &state_->AktuellerRaum.Startskript) key.place = "start";
    if (&script == &state_->AktuellerRaum.CountDownSkript) key.place = "countdown";
    if (object >= 0) key.place = "object " + std::to_string(object);
    // An item is used anywhere.
    if (key.place == "item") key.room.clear();
    return key;
}

std::size_t Ran::Beginnt(const Skript& script, TextView room, int object) {
    const auto [place, isNew] = numbers_.try_emplace(keyOf(script, room, object), ran_.size());
    if (isNew) ran_.emplace_back(place->first.numbers.size());
    return place->second;
}

void Ran::Anweisung(std::size_t number, std::int32_t index) {
    // A room's own script can be exchanged while it waits; what it then runs on with is none of its own.
    if (static_cast<std::size_t>(index) < ran_[number].size()) ran_[number][static_cast<std::size_t>(index)] = true;
}

void Ran::write(std::ostream& out) const {
    auto scripts = nlohmann::json::array();
    for (const auto& [key, number] : numbers_) {
        auto instructions = nlohmann::json::array();
        for (std::size_t i = 0; i < key.numbers.size(); ++i)
            instructions.push_back({{"command", key.numbers[i]},
                                    {"argument", toUtf8(key.arguments[i])},
                                    {"ran", static_cast<bool>(ran_[number][i])}});
        scripts.push_back({{"room", toUtf8(key.room)}, {"script", key.place}, {"instructions", instructions}});
    }
    out << scripts.dump() << "\n";
}

}  // namespace zentrox::probe
