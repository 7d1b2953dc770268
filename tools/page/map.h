// The map of a story: its rooms and the ways between them, those with the same two ends as one line.
#pragma once

#include "tools/page/layout.h"
#include "tools/page/ways.h"

namespace zentrox::page {

struct RoomMap {
    struct Box {
        enum class Kind { room, ending, bag, missing };
        Kind kind = Kind::room;
        int room = -1;
        std::string name;  // UTF-8
    };
    struct Line {
        std::size_t from = 0;
        std::size_t to = 0;
        std::vector<std::size_t> ways;
        bool both = false;                // free in both directions
        std::vector<std::string> labels;  // what has to be, where no way of it is free
    };
    std::vector<Box> boxes;
    std::vector<Line> lines;
    Drawing drawing;
};

RoomMap mapOf(const Reading& reading, const std::vector<Way>& ways);

}  // namespace zentrox::page
