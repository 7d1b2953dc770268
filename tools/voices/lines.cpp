#include "tools/voices/lines.h"

#include <algorithm>
#include <array>

#include "engine/language/opcodes.h"
#include "tools/voices/spoken.h"

namespace zentrox::voices {

namespace {

TextView baseOf(TextView file) {
    const std::size_t slash = file.find_last_of("\\/");
    if (slash != TextView::npos) file.remove_prefix(slash + 1);
    return file.substr(0, file.rfind('.'));
}

// The person in the name of a sound; empty if it is no voice.
std::string personOf(TextView file) {
    const TextView base = baseOf(file);
    const std::size_t hyphen = base.find('-');
    return hyphen == TextView::npos ? std::string() : toUtf8(base.substr(0, hyphen));
}

class Finder {
public:
    Finder(const Table& table, story::Findings& findings) : table_(table), findings_(findings) {
        for (const ExtraLine& line : table.lines)
            known_[std::string(baseOf(line.file))] = {std::string(baseOf(line.file)), line.person, line.text};
    }

    void search(const story::ScriptView& view) {
        for (int i = 0; i <= view.script.Letzter; ++i) {
            if (is(view, i, "Ton"_op)) lookAtTon(view, i);
            if (is(view, i, "Text"_op)) lookAtText(view, i);
        }
    }

    std::vector<SpokenLine> lines() && {
        std::vector<SpokenLine> lines;
        for (auto& [file, line] : known_) lines.push_back(std::move(line));
        return lines;
    }

private:
    static bool is(const story::ScriptView& view, int index, std::int32_t command) {
        return index >= 0 && index <= view.script.Letzter &&
               view.script.Befehl[static_cast<std::size_t>(index)] == command;
    }
    static const Text& argument(const story::ScriptView& view, int index) {
        return view.script.Argument[static_cast<std::size_t>(index)];
    }
    static story::Place placeOf(const story::ScriptView& view, int index) {
        return view.places.argument(static_cast<std::size_t>(index));
    }

    // True if another sound begins before anything takes time.
    bool cutOff(const story::ScriptView& view, int index) const {
        const auto takesNoTime = [&](int next) {
            return std::any_of(quick_.begin(), quick_.end(),
                               [&](std::int32_t command) { return is(view, next, command); });
        };
        do ++index;
        while (takesNoTime(index));
        return is(view, index, "Ton"_op);
    }

    void lookAtTon(const story::ScriptView& view, int index) {
        if (cutOff(view, index))
            findings_.error(placeOf(view, index), "ton-verstummt",
                            "Der nächste „Ton“ folgt sofort; von diesem ist nichts zu hören.");
        const std::string person = personOf(argument(view, index));
        if (person.empty()) return;
        const auto voice = table_.voices.find(person);
        if (voice == table_.voices.end())
            return findings_.error(placeOf(view, index), "stimme-unbekannt",
                                   "„" + person + "“ hat keine Stimme in der Tabelle der Stimmen.");
        if (!is(view, index + 1, "Text"_op))
            return findings_.error(placeOf(view, index), "ton-ohne-text",
                                   "Auf diesen Ton folgt kein „Text“, der gesprochen wird.");
        const Text& text = argument(view, index + 1);
        const char colour = colourOf(text);
        if (colour != voice->second.colour)
            findings_.error(placeOf(view, index + 1), "stimme-farbe",
                            "„" + person + "“ spricht in der Farbe " + voice->second.colour + ", dieser Text hat " +
                                colour + ".");
        remember({toUtf8(baseOf(argument(view, index))), person, text}, placeOf(view, index));
    }

    void remember(SpokenLine line, story::Place place) {
        const auto [old, isNew] = known_.try_emplace(line.file, line);
        if (!isNew && old->second.text != line.text)
            findings_.error(place, "stimme-doppelt", "„" + line.file + "“ sagt an anderer Stelle etwas anderes.");
    }

    void lookAtText(const story::ScriptView& view, int index) {
        if (is(view, index - 1, "Ton"_op)) return;
        // In a talk the compiler shows the faces while a narrator speaks, too.
        const bool face =
            is(view, index - 1, "Portrait"_op) && !view.places.commands[static_cast<std::size_t>(index) - 1].made;
        if (colourOf(argument(view, index)) != '-' || face)
            findings_.error(placeOf(view, index), "text-ohne-ton",
                            "Hier spricht jemand, aber kein „Ton“ geht voraus.");
    }

    const Table& table_;
    story::Findings& findings_;
    std::map<std::string, SpokenLine> known_;
    static constexpr std::array<std::int32_t, 7> quick_{"SetzeMerker"_op,   "LöscheMerker"_op, "NimmGegenstand"_op,
                                                        "GibGegenstand"_op, "BöseÄndern"_op,   "CountDownSetzen"_op,
                                                        "Marke"_op};
};

}  // namespace

std::vector<SpokenLine> linesOf(const story::Story& story, const Table& table, story::Findings& findings) {
    Finder finder(table, findings);
    for (const story::ScriptView& view : story::scriptsOf(story)) finder.search(view);
    return std::move(finder).lines();
}

}  // namespace zentrox::voices
