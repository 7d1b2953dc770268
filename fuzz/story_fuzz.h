// What the fuzz targets of the story compiler share: whatever a reader makes of its bytes has to survive the
// checks, and has to come back from its own source.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/support/fake_fonts.h"
#include "tools/story/check.h"
#include "tools/story/parser.h"
#include "tools/story/source.h"
#include "tools/story/writer.h"

namespace zentrox::story::fuzz {

// There are no files but the one that is handed in.
class NoFiles : public SourceFiles {
public:
    std::optional<std::string> read(const std::filesystem::path& /*path*/) override { return std::nullopt; }
    std::optional<Bitmap> picture(const std::filesystem::path& /*path*/) override { return std::nullopt; }
};

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

inline std::string bytesOf(const Story& story) {
    std::string bytes;
    for (const StoryRoom& room : story.rooms) bytes += toUtf8(room.file) + "\n" + writeRoom(room.room);
    for (const StoryScript& script : story.scripts)
        bytes += toUtf8(script.file) + "\n" + writeScript(script.script);
    return bytes;
}

inline void lookOver(const Story& story, Findings& findings) {
    static const DataFiles nothing("nowhere");
    static zentrox::test::FakeFonts fonts;
    check(story, {.data = &nothing, .fonts = &fonts, .wholeGame = true}, findings);
    findings.settle(story);
    if (asLines(story, findings).empty() != findings.empty()) std::abort();
    asJson(story, findings);
}

// The story's own source compiles to the same story.
inline void comesBack(const Story& story) {
    std::string source;
    for (const auto& [name, text] : sourceFiles(story, {})) source += text + "\n";
    NoFiles files;
    Findings findings;
    const Story again = parseSource(source, "again.story", files, findings);
    checkForBuild(again, findings);
    if (findings.hasErrors() || bytesOf(again) != bytesOf(story)) {
        std::fputs((asLines(again, findings) + source).c_str(), stderr);
        std::abort();
    }
}

}  // namespace zentrox::story::fuzz
