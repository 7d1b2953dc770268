#include "tools/page/map.h"

#include <algorithm>
#include <map>

#include "tools/page/words.h"

namespace zentrox::page {

namespace {

constexpr std::size_t longestLabel = 26;  // characters
constexpr std::size_t mostLabels = 3;
// Pixels, as the page writes it.
constexpr double roomWidth = 168;
constexpr double roomHeight = 152;
constexpr double wordWidth = 132;
constexpr double wordHeight = 40;
constexpr double lineHeight = 15;
constexpr double margin = 8;

class MapMaker {
public:
    MapMaker(const Reading& reading, const std::vector<Way>& ways) : reading_(reading), ways_(ways) {}

    RoomMap make() {
        for (std::size_t i = 0; i < reading_.story.rooms.size(); ++i)
            map_.boxes.push_back({RoomMap::Box::Kind::room, static_cast<int>(i),
                                  toUtf8(story::stemOf(reading_.story.rooms[i].file))});
        for (std::size_t i = 0; i < ways_.size(); ++i) take(i);
        std::erase_if(map_.lines, [](const RoomMap::Line& line) { return line.from == line.to; });
        for (RoomMap::Line& line : map_.lines) label(line);
        joinFree();
        measure();
        return std::move(map_);
    }

private:
    std::size_t boxFor(RoomMap::Box::Kind kind, const std::string& name) {
        const auto found = std::find_if(map_.boxes.begin(), map_.boxes.end(), [&](const RoomMap::Box& box) {
            return box.kind == kind && box.name == name;
        });
        if (found != map_.boxes.end()) return static_cast<std::size_t>(found - map_.boxes.begin());
        map_.boxes.push_back({kind, -1, name});
        return map_.boxes.size() - 1;
    }

    void take(std::size_t i) {
        const Way& way = ways_[i];
        const std::string target = toUtf8(way.target);
        const std::size_t from =
            way.from != -1 ? static_cast<std::size_t>(way.from) : boxFor(RoomMap::Box::Kind::bag, "Tasche");
        const std::size_t to = way.ending     ? boxFor(RoomMap::Box::Kind::ending, target)
                               : way.to != -1 ? static_cast<std::size_t>(way.to)
                                              : boxFor(RoomMap::Box::Kind::missing, target);
        const auto line = std::find_if(map_.lines.begin(), map_.lines.end(), [&](const RoomMap::Line& known) {
            return known.from == from && known.to == to;
        });
        if (line != map_.lines.end()) return line->ways.push_back(i);
        map_.lines.push_back({from, to, {i}, false, {}});
    }

    void label(RoomMap::Line& line) const {
        const auto easiest = *std::min_element(
            line.ways.begin(), line.ways.end(),
            [&](std::size_t a, std::size_t b) { return ways_[a].needs.size() < ways_[b].needs.size(); });
        for (const Need& need : ways_[easiest].needs) {
            if (line.labels.size() == mostLabels) {
                line.labels.back() = "…";
                break;
            }
            line.labels.push_back(shortened(inWords(need), longestLabel));
        }
    }

    void joinFree() {
        std::vector<RoomMap::Line> joined;
        for (RoomMap::Line& line : map_.lines) {
            const auto other = std::find_if(joined.begin(), joined.end(), [&](const RoomMap::Line& known) {
                return known.from == line.to && known.to == line.from && known.labels.empty() &&
                       line.labels.empty();
            });
            if (other == joined.end()) {
                joined.push_back(std::move(line));
            } else {
                other->both = true;
                other->ways.insert(other->ways.end(), line.ways.begin(), line.ways.end());
            }
        }
        map_.lines = std::move(joined);
    }

    void measure() {
        for (const RoomMap::Box& box : map_.boxes) {
            const bool room = box.kind == RoomMap::Box::Kind::room;
            map_.drawing.boxes.push_back({room ? roomWidth : wordWidth, room ? roomHeight : wordHeight, 0, 0});
        }
        for (const RoomMap::Line& line : map_.lines) {
            Drawing::Line drawn;
            drawn.from = line.from;
            drawn.to = line.to;
            for (const std::string& text : line.labels)
                drawn.labelWidth = std::max(drawn.labelWidth, widthOf(text) + margin);
            drawn.labelHeight = static_cast<double>(line.labels.size()) * lineHeight + 4;
            map_.drawing.lines.push_back(drawn);
        }
    }

    const Reading& reading_;
    const std::vector<Way>& ways_;
    RoomMap map_;
};

}  // namespace

RoomMap mapOf(const Reading& reading, const std::vector<Way>& ways) {
    return MapMaker(reading, ways).make();
}

}  // namespace zentrox::page
