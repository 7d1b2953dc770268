// Places boxes and the lines between them by Graphviz.
#pragma once

#include <string>
#include <vector>

namespace zentrox::page {

// Lengths in pixels, from the left upper corner.
struct Drawing {
    struct Box {
        double width = 0;
        double height = 0;
        double x = 0;  // of its middle
        double y = 0;
    };
    struct Line {
        std::size_t from = 0;
        std::size_t to = 0;
        double labelWidth = 0;  // 0: no label
        double labelHeight = 0;
        bool back = false;  // to something above, which does not order the boxes
        double labelX = 0;  // of its middle
        double labelY = 0;
        std::string path;  // as SVG has it
    };
    bool sideways = false;
    double width = 0;
    double height = 0;
    std::vector<Box> boxes;
    std::vector<Line> lines;
    bool placed = false;
};

// All at once, as starting Graphviz takes longer than its work. False if it is not there or fails; nothing is
// placed then.
bool place(const std::vector<Drawing*>& drawings);

}  // namespace zentrox::page
