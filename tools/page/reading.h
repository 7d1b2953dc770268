// What a page is made of: a story compiled, and its sources as their author wrote them.
#pragma once

#include "tools/prove/endings.h"
#include "tools/story/datafiles.h"
#include "tools/story/finding.h"
#include "tools/story/names.h"

namespace zentrox::page {

struct Reading {
    story::Story story;
    story::Findings findings;            // of reading and of the check, settled
    std::vector<story::Source> sources;  // the statements of each source
    story::Names names;
    std::vector<std::string> texts;  // whole files, by their numbers in the story; empty for those that only know
    std::vector<std::string> files;  // their names on the page: below the directory of the first
    prove::Marks endings;
    std::unique_ptr<story::DataFiles> data;  // null if nothing lies beside the sources
    std::filesystem::path root;              // where `data` lies
    std::string title;
};

// `words` are sources, directories of them, or a data directory, whose sources are then made up. `data` may be
// empty. Throws `story::WrongCall`.
Reading read(const std::vector<std::string>& words, const std::filesystem::path& data);
// The same for sources from anywhere else, without data and check.
Reading read(const std::vector<std::filesystem::path>& sources, story::SourceFiles& files);

}  // namespace zentrox::page
