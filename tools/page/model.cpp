#include "tools/page/model.h"

#include <algorithm>

#include "engine/language/opcodes.h"
#include "engine/state/felder.h"
#include "tools/page/drawings.h"
#include "tools/page/pictures.h"
#include "tools/story/blocks.h"
#include "tools/story/lines.h"

namespace zentrox::page {

namespace fs = std::filesystem;

namespace {

using Json = nlohmann::ordered_json;

const char* wordOf(UseKind kind) {
    switch (kind) {
        case UseKind::sets: return "sets";
        case UseKind::clears: return "clears";
        case UseKind::tests: return "tests";
        case UseKind::plays: return "plays";
        case UseKind::takes: return "takes";
        case UseKind::gives: return "gives";
        case UseKind::drops: return "drops";
        case UseKind::carries: return "carries";
    }
    return "";
}

// As an address has it: each part of the path with what has a meaning there escaped.
std::string asAddress(const fs::path& path) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    std::string out;
    for (const char c : path.generic_string()) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                           std::string_view("/-_.~").find(c) != std::string_view::npos;
        const auto byte = static_cast<unsigned char>(c);
        out += plain ? std::string(1, c) : std::string{'%', hex[byte >> 4U], hex[byte & 0xFU]};
    }
    return out;
}

// How many different ones the rooms show.
std::size_t picturesOf(const story::Story& story) {
    std::set<Text> files;
    for (const story::StoryRoom& room : story.rooms) files.insert(lower(Dateiname(room.room.Bild)));
    for (const story::ScriptView& view : scriptsOf(story))
        for (std::size_t i = 0; i < view.script.Befehl.size(); ++i)
            if (view.script.Befehl[i] == "ZeigBild"_op)
                files.insert(lower(Dateiname(story::argumentOf(view.script, i))));
    return files.size();
}

class Modeller {
public:
    Modeller(const Reading& reading, const Additions& additions)
        : reading_(reading),
          additions_(additions),
          pictures_(reading.data.get(), picturesOf(reading.story)),
          sections_(sectionsOf(reading)),
          ways_(waysOf(reading, sections_)),
          map_(mapOf(reading, ways_)),
          talks_(talksOf(sections_)) {}

    Json make(bool& laidOut) {
        std::vector<Drawing*> drawings{&map_.drawing};
        for (Talk& talk : talks_) drawings.push_back(&talk.drawing);
        laidOut = place(drawings);
        Json model{{"title", reading_.title}};
        model["files"] = files();
        model["sections"] = sections();
        model["rooms"] = rooms();
        model["items"] = items();
        model["people"] = people();
        model["flags"] = flags();
        model["ways"] = ways();
        model["map"] = asJson(map_);
        model["talks"] = Json::array();
        for (const Talk& talk : talks_) model["talks"].push_back(asJson(talk));
        model["texts"] = texts();
        model["findings"] = findings();
        if (additions_.coverage != nullptr) model["coverage"] = coverage();
        if (additions_.proof != nullptr) model["proof"] = *additions_.proof;
        model["pictures"] = pictures_.all();
        return model;
    }

private:
    static void put(Json& to, const story::Place& place) {
        to["f"] = place.file;
        to["l"] = place.line;
    }

    Json files() const {
        Json list = Json::array();
        for (std::size_t i = 0; i < reading_.files.size(); ++i)
            list.push_back({{"n", reading_.files[i]}, {"t", reading_.texts[i]}});
        return list;
    }

    Json sections() const {
        Json list = Json::array();
        for (const Section& section : sections_) {
            Json one{{"w", page::wordOf(section.kind)},
                     {"n", toUtf8(section.name)},
                     {"r", section.room},
                     {"o", section.object},
                     {"i", upper8(section.item)}};
            put(one, section.head);
            one["e"] = section.lastLine;
            list.push_back(std::move(one));
        }
        return list;
    }
    // What items are known by on the page.
    static std::string upper8(const Text& picture) {
        return picture.empty() ? "" : toUtf8(upper(story::itemName(picture)));
    }

    // --- rooms

    Json rooms() {
        Json list = Json::array();
        for (std::size_t i = 0; i < reading_.story.rooms.size(); ++i) {
            const story::StoryRoom& room = reading_.story.rooms[i];
            Json one{{"file", toUtf8(room.file)}, {"n", nameOf(room.file)}};
            put(one, room.head);
            one["pic"] = pictures_.graphics(room.room.Bild);
            one["pics"] = otherPictures(room);
            one["objects"] = objects(room);
            list.push_back(std::move(one));
        }
        return list;
    }

    // As it is spelled, without its extension.
    static std::string nameOf(const Text& file) { return toUtf8(file.substr(0, file.find_last_of('.'))); }

    // Those that its scripts show.
    Json otherPictures(const story::StoryRoom& room) {
        Json list = Json::array();
        std::set<std::string> known{pictures_.graphics(room.room.Bild)};
        for (const story::ScriptView& view : scriptsOf(room))
            for (std::size_t i = 0; i < view.script.Befehl.size(); ++i) {
                if (view.script.Befehl[i] != "ZeigBild"_op) continue;
                const Text file = Dateiname(story::argumentOf(view.script, i));
                const std::string name = pictures_.graphics(file);
                if (name.empty() || !known.insert(name).second) continue;
                Json one{{"pic", name}, {"n", toUtf8(file)}};
                put(one, view.places.commands[i].command);
                list.push_back(std::move(one));
            }
        return list;
    }

    static Json objects(const story::StoryRoom& room) {
        Json list = Json::array();
        for (std::size_t i = 0; i < room.room.Objekte.size(); ++i) {
            const RaumObjekt& object = room.room.Objekte[i];
            const AreaPaths paths = pathsOf(object.Maske);
            Json one{{"n", toUtf8(object.Name)},
                     {"active", object.Aktiv},
                     {"pointer", toUtf8(object.Zeiger)},
                     {"in", paths.inside},
                     {"out", paths.outline}};
            put(one, room.objects[i].name);
            list.push_back(std::move(one));
        }
        return list;
    }

    // --- people, items, flags

    Json people() {
        Json list = Json::array();
        for (const auto& [key, person] : reading_.names.people) {
            Json one{{"n", toUtf8(person.name)},
                     {"pic", pictures_.graphics(person.portrait)},
                     {"voice", toUtf8(person.voice)},
                     {"player", person.player}};
            put(one, person.place);
            list.push_back(std::move(one));
        }
        return list;
    }

    static Json usesIn(const std::vector<Use>& uses) {
        Json list = Json::array();
        for (const Use& use : uses)
            list.push_back({wordOf(use.kind), use.place.file, use.place.line, use.place.column});
        return list;
    }

    Json items() {
        std::map<Text, Text> pictures;  // by upper base name
        for (const auto& [base, file] : reading_.names.pictures) pictures.emplace(base, file);
        for (const story::Story::Item& item : reading_.story.items)
            pictures.emplace(upper(story::itemName(item.picture)), item.picture);
        for (const auto& [base, uses] : uses_.items) pictures.emplace(base, base + ".bmp");
        std::map<Text, Text> declared;
        for (const auto& [name, base] : reading_.names.spelled) declared.emplace(upper(base), name);
        Json list = Json::array();
        for (const auto& [base, picture] : pictures) {
            const auto name = declared.find(base);
            const auto uses = uses_.items.find(base);
            list.push_back({{"key", toUtf8(base)},
                            {"n", toUtf8(name == declared.end() ? base : name->second)},
                            {"pic", pictures_.item(picture)},
                            {"file", toUtf8(picture)},
                            {"uses", uses == uses_.items.end() ? Json::array() : usesIn(uses->second)}});
        }
        return list;
    }

    Json flags() const {
        Json list = Json::array();
        for (const auto& [name, uses] : uses_.flags) list.push_back({{"n", toUtf8(name)}, {"uses", usesIn(uses)}});
        return list;
    }

    // --- ways

    Json term(const story::Term& term) const {
        const bool flag = term.kind == story::Term::Kind::flag;
        const Text key = flag ? upper(term.name.value) : reading_.names.baseNameOf(term.name);
        return {{"k", flag                                   ? "flag"
                      : term.kind == story::Term::Kind::item ? "item"
                                                             : "drop"},
                {"n", toUtf8(key)},
                {"not", term.negated}};
    }

    Json need(const Need& need) const {
        if (need.when.empty()) return {{"answer", toUtf8(need.answer)}};
        Json any = Json::array();
        for (const auto& terms : need.when) {
            Json all = Json::array();
            for (const story::Term& one : terms) all.push_back(term(one));
            any.push_back(std::move(all));
        }
        return {{"not", need.negated}, {"any", any}};
    }

    Json ways() const {
        Json list = Json::array();
        for (const Way& way : ways_) {
            Json needs = Json::array();
            for (const Need& one : way.needs) needs.push_back(need(one));
            Json one{{"from", way.from},     {"to", way.to},     {"target", toUtf8(way.target)},
                     {"ending", way.ending}, {"s", way.section}, {"needs", needs}};
            put(one, way.place);
            list.push_back(std::move(one));
        }
        return list;
    }

    // --- texts, findings, what has run

    Json texts() const {
        Json list = Json::array();
        for (const story::TextLine& line : textsOf(reading_.story)) {
            Json one{{"key", line.key}, {"who", toUtf8(line.speaker)}, {"t", toUtf8(line.text)}};
            put(one, line.place);
            if (!line.voice.empty()) one["voice"] = toUtf8(line.voice);
            const Text file =
                reading_.data && !line.voice.empty() ? reading_.data->soundFor(Dateiname(line.voice)) : Text();
            if (!file.empty()) one["at"] = address(story::DataFiles::path(Ordner::sounds, file));
            list.push_back(std::move(one));
        }
        return list;
    }
    std::string address(const Text& path) const {
        const fs::path file = fs::absolute(reading_.data->files().systemPath(path)).lexically_normal();
        return asAddress(file.lexically_relative(additions_.directory));
    }

    Json findings() const {
        Json list = Json::array();
        for (const story::Finding& finding : reading_.findings.all()) {
            Json one{{"s", finding.severity == story::Severity::error ? "error" : "warning"},
                     {"code", finding.code},
                     {"t", finding.message}};
            put(one, finding.place);
            list.push_back(std::move(one));
        }
        return list;
    }

    Json coverage() const {
        Json out = Json::object();
        for (const auto& [line, ran] : additions_.coverage->lineStates())
            out[std::to_string(line.first)][std::to_string(line.second)] = ran ? 1 : 0;
        return out;
    }

    const Reading& reading_;
    const Additions& additions_;
    Pictures pictures_;
    std::vector<Section> sections_;
    std::vector<Way> ways_;
    RoomMap map_;
    std::vector<Talk> talks_;
    Uses uses_ = usesOf(reading_.story);
};

}  // namespace

Json modelOf(const Reading& reading, const Additions& additions, bool& laidOut) {
    return Modeller(reading, additions).make(laidOut);
}

}  // namespace zentrox::page
