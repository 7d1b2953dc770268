// What is wrong with a story, in the words of its author.
#pragma once

#include <string>
#include <vector>

#include "tools/story/story.h"

namespace zentrox::story {

enum class Severity { error, warning };

struct Finding {
    Place place;
    Severity severity = Severity::error;
    std::string code;     // short, the same for all findings of a kind
    std::string message;  // German, UTF-8: what is wrong, and what would be right
    bool fixed = false;   // no comment silences it, since nothing can be compiled from such a source
};

class Findings {
public:
    // What keeps a source from being compiled at all.
    void broken(Place place, std::string_view code, const std::string& message);
    void error(Place place, std::string_view code, const std::string& message);
    void warning(Place place, std::string_view code, const std::string& message);

    // Takes out what comments of the story silence, sorts by file and place, and drops repetitions.
    void settle(const Story& story);

    const std::vector<Finding>& all() const { return findings_; }
    bool empty() const { return findings_.empty(); }
    bool hasErrors() const;
    // Whether there is anything that could not be compiled.
    bool hasBroken() const;

private:
    std::vector<Finding> findings_;
};

// One line each: FILE:LINE:COLUMN: error [CODE]: MESSAGE
std::string asLines(const Story& story, const Findings& findings);
// An array of objects with file, line, column, severity, code and message.
std::string asJson(const Story& story, const Findings& findings);

// For messages: a text of the game between quotes, control characters made visible.
std::string shown(TextView text);
// The candidate that resembles `word` most, as a phrase to end a message with; empty if none comes near.
std::string perhaps(TextView word, const std::vector<Text>& candidates);

}  // namespace zentrox::story
