// All that the page shows, as one object for its script.
#pragma once

#include <nlohmann/json.hpp>

#include "tools/page/talks.h"
#include "tools/page/uses.h"
#include "tools/page/ways.h"
#include "tools/story/coverage.h"

namespace zentrox::page {

struct Additions {
    const story::Coverage* coverage = nullptr;
    const nlohmann::json* proof = nullptr;
    // The directory that the page will lie in, for links to voices.
    std::filesystem::path directory;
};

// `laidOut` is set to whether Graphviz could place maps and talks.
nlohmann::ordered_json modelOf(const Reading& reading, const Additions& additions, bool& laidOut);

// The cells of an area as paths of SVG, in pixels of the room: what is inside, and the line around it.
struct AreaPaths {
    std::string inside;
    std::string outline;
};
AreaPaths pathsOf(const Maske& mask);

}  // namespace zentrox::page
