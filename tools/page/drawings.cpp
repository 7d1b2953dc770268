#include "tools/page/drawings.h"

#include <cmath>

namespace zentrox::page {

namespace {

using Json = nlohmann::ordered_json;

const char* wordOf(RoomMap::Box::Kind kind) {
    switch (kind) {
        case RoomMap::Box::Kind::room: return "room";
        case RoomMap::Box::Kind::ending: return "ending";
        case RoomMap::Box::Kind::bag: return "bag";
        case RoomMap::Box::Kind::missing: return "missing";
    }
    return "";
}

const char* wordOf(TalkBox::Kind kind) {
    switch (kind) {
        case TalkBox::Kind::says: return "says";
        case TalkBox::Kind::tests: return "tests";
        case TalkBox::Kind::asks: return "asks";
        case TalkBox::Kind::answer: return "answer";
        case TalkBox::Kind::leaves: return "leaves";
    }
    return "";
}

const char* wordOf(TalkBox::Line::Kind kind) {
    using Kind = TalkBox::Line::Kind;
    switch (kind) {
        case Kind::speech: return "speech";
        case Kind::text: return "text";
        case Kind::question: return "question";
        case Kind::answer: return "answer";
        case Kind::command: return "command";
        case Kind::condition: return "condition";
    }
    return "";
}

Json number(double value) {
    return std::lround(value);
}

Json drawn(const Drawing& drawing) {
    return {{"placed", drawing.placed}, {"w", number(drawing.width)}, {"h", number(drawing.height)}};
}
void put(Json& to, const Drawing::Box& box) {
    to["x"] = number(box.x);
    to["y"] = number(box.y);
    to["w"] = number(box.width);
    to["h"] = number(box.height);
}
void put(Json& to, const Drawing::Line& line) {
    to["d"] = line.path;
    to["x"] = number(line.labelX);
    to["y"] = number(line.labelY);
    to["w"] = number(line.labelWidth);
}

Json box(const Talk& talk, std::size_t i) {
    Json lines = Json::array();
    for (const TalkBox::Line& line : talk.boxes[i].lines)
        lines.push_back({{"k", wordOf(line.kind)}, {"t", line.text}, {"p", line.prefix}});
    Json one{{"k", wordOf(talk.boxes[i].kind)}, {"t", lines}};
    one["f"] = talk.boxes[i].place.file;
    one["l"] = talk.boxes[i].place.line;
    put(one, talk.drawing.boxes[i]);
    return one;
}

}  // namespace

Json asJson(const RoomMap& map) {
    Json out = drawn(map.drawing);
    out["boxes"] = Json::array();
    out["lines"] = Json::array();
    for (std::size_t i = 0; i < map.boxes.size(); ++i) {
        Json one{{"k", wordOf(map.boxes[i].kind)}, {"r", map.boxes[i].room}, {"n", map.boxes[i].name}};
        put(one, map.drawing.boxes[i]);
        out["boxes"].push_back(std::move(one));
    }
    for (std::size_t i = 0; i < map.lines.size(); ++i) {
        const RoomMap::Line& line = map.lines[i];
        Json one{{"a", line.from}, {"b", line.to}, {"ways", line.ways}, {"both", line.both}, {"t", line.labels}};
        put(one, map.drawing.lines[i]);
        out["lines"].push_back(std::move(one));
    }
    return out;
}

Json asJson(const Talk& talk) {
    Json out = drawn(talk.drawing);
    out["s"] = talk.section;
    out["boxes"] = Json::array();
    out["lines"] = Json::array();
    for (std::size_t i = 0; i < talk.boxes.size(); ++i) out["boxes"].push_back(box(talk, i));
    for (std::size_t i = 0; i < talk.lines.size(); ++i) {
        const TalkLine& line = talk.lines[i];
        Json one{{"a", line.from}, {"b", line.to}, {"t", line.label}, {"back", line.back}};
        put(one, talk.drawing.lines[i]);
        out["lines"].push_back(std::move(one));
    }
    return out;
}

}  // namespace zentrox::page
