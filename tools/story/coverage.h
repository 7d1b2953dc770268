// How much of a story has been played, from what `zentrox-probe --ran` has written.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tools/story/sourcefiles.h"
#include "tools/story/story.h"

namespace zentrox::story {

class Coverage {
public:
    // `story` comes from sources and has to outlive this.
    explicit Coverage(const Story& story);

    // Takes in what one walk has run. False if this is no such record, or one of another state of the story.
    bool add(const std::string& json);

    // Percent of all lines; 100 for a story without any.
    double percent() const;
    // By file and line: whether it has run. Lines that only hold a block together are not among them.
    const std::map<std::pair<int, int>, bool>& lineStates() const { return lines_; }
    // For people, German: each line that has not run as FILE:LINE with its text, then what never ran at all, then
    // the figures of each source and of the whole.
    std::string report(SourceFiles& files) const;

private:
    struct Script {
        ScriptView view;
        bool begun = false;
    };
    struct Count {
        std::size_t ran = 0;
        std::size_t all = 0;
        std::string asPercent() const;
    };
    void take(Script& script, const std::vector<bool>& ran);
    Count lines(std::optional<int> file = std::nullopt) const;
    Count scripts() const;
    std::string missingLines(SourceFiles& files) const;
    std::string missingCommands() const;

    const Story& story_;
    // By the room's file in lower case and the name that a record has for the script; items have no room.
    std::multimap<std::pair<Text, std::string>, Script> scripts_;
    std::map<std::pair<int, int>, bool> lines_;
    std::map<std::int32_t, bool> commands_;  // those of the story: whether they have run
};

}  // namespace zentrox::story
