// What the tests of the page share.
#pragma once

#include <gtest/gtest.h>

#include "tools/page/model.h"

namespace zentrox::page::test {

class MemoryFiles : public story::SourceFiles {
public:
    std::map<std::string, std::string> sources;
    std::optional<std::string> read(const std::filesystem::path& path) override {
        const auto found = sources.find(path.generic_string());
        return found == sources.end() ? std::nullopt : std::optional(found->second);
    }
};

inline Reading readStory(const std::map<std::string, std::string>& sources) {
    MemoryFiles files;
    files.sources = sources;
    std::vector<std::filesystem::path> paths;
    for (const auto& [name, text] : sources)
        if (name.ends_with(".story")) paths.emplace_back(name);
    Reading reading = read(paths, files);
    EXPECT_EQ(asLines(reading.story, reading.findings), "");
    return reading;
}

inline std::string at(const Reading& reading, const story::Place& place) {
    return reading.files[static_cast<std::size_t>(place.file)] + ":" + std::to_string(place.line);
}

}  // namespace zentrox::page::test
