// What the tests of the story compiler share.
#pragma once

#include <gtest/gtest.h>

#include <map>

#include "tools/story/check.h"
#include "tools/story/parser.h"
#include "tools/story/writer.h"

namespace zentrox::story::test {

// Sources and pictures that are only in memory.
class MemoryFiles : public SourceFiles {
public:
    std::map<std::string, std::string> sources;
    std::map<std::string, Bitmap> pictures;

    std::optional<std::string> read(const std::filesystem::path& path) override {
        const auto found = sources.find(path.generic_string());
        return found == sources.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<Bitmap> picture(const std::filesystem::path& path) override {
        const auto found = pictures.find(path.generic_string());
        return found == pictures.end() ? std::nullopt : std::optional(found->second);
    }
};

// A story compiled from one source as `build` would; what it finds is a failure of the test.
inline Story compiled(std::string_view source, MemoryFiles files = {}) {
    Findings findings;
    Story story = parseSource(source, "probe.story", files, findings);
    checkForBuild(story, findings);
    findings.settle(story);
    EXPECT_EQ(asLines(story, findings), "") << source;
    return story;
}

inline bool same(const Skript& a, const Skript& b) {
    return a.Letzter == b.Letzter && a.Befehl == b.Befehl && a.Argument == b.Argument;
}

// Files that `compiled` gives for a story, by name.
inline std::map<Text, std::string> filesOf(const Story& story) {
    std::map<Text, std::string> files;
    for (const StoryRoom& room : story.rooms) files[room.file] = writeRoom(room.room);
    for (const StoryScript& script : story.scripts) files[script.file] = writeScript(script.script);
    return files;
}

}  // namespace zentrox::story::test
