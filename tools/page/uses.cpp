#include "tools/page/uses.h"

#include <algorithm>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/story/blocks.h"
#include "tools/story/names.h"

namespace zentrox::page {

namespace {

using story::ScriptView;

Text nameOf(TextView argument) {
    return upper(Getrimmt(argument));
}

class Gatherer {
public:
    void script(const ScriptView& view) {
        for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) command(view, i);
    }

    Uses finish() {
        for (auto* const all : {&uses_.flags, &uses_.items})
            for (auto& [name, list] : *all) settle(list);
        return std::move(uses_);
    }

private:
    static void settle(std::vector<Use>& list) {
        std::sort(list.begin(), list.end());
        list.erase(std::unique(list.begin(), list.end()), list.end());
    }

    void command(const ScriptView& view, std::size_t i) {
        const std::int32_t number = view.script.Befehl[i];
        const TextView argument = story::argumentOf(view.script, i);
        const story::Place place = view.places.argument(i);
        if (number == "SetzeMerker"_op) flag(argument, UseKind::sets, place);
        if (number == "LöscheMerker"_op) flag(argument, UseKind::clears, place);
        if (number == "WennMerker"_op) flag(argument, UseKind::tests, place);
        if (number == "Spiel"_op) flag(Feld(argument, ",", 2), UseKind::plays, place);
        if (number == "BöseÄndern"_op) flag("BÖSE"_t, Val(argument) < 0 ? UseKind::clears : UseKind::sets, place);
        if (number == "NimmGegenstand"_op) item(story::itemName(argument), UseKind::takes, place);
        if (number == "GibGegenstand"_op) item(story::itemName(argument), UseKind::gives, place);
        if (number == "WennParameter"_op && view.knowsItem()) item(argument, UseKind::drops, place);
    }

    void flag(TextView name, UseKind kind, const story::Place& place) {
        const Text key = nameOf(name);
        if (key.empty()) return;
        const auto carried = story::itemOfFlag(key);
        if (!carried) return void(uses_.flags[key].push_back({place, kind}));
        // The compiler keeps such a flag beside each command that takes or gives.
        if (kind == UseKind::tests) item(*carried, UseKind::carries, place);
    }

    void item(TextView name, UseKind kind, const story::Place& place) {
        if (!Getrimmt(name).empty()) uses_.items[nameOf(name)].push_back({place, kind});
    }

    Uses uses_;
};

}  // namespace

Uses usesOf(const story::Story& story) {
    Gatherer gatherer;
    for (const ScriptView& view : scriptsOf(story)) gatherer.script(view);
    return gatherer.finish();
}

}  // namespace zentrox::page
