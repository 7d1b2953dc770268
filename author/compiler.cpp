#include "author/compiler.h"

#include <sstream>

#include "platform/values/text.h"
#include "tools/story/build.h"
#include "tools/story/check.h"
#include "tools/story/datafiles.h"
#include "tools/story/german.h"
#include "tools/story/inputs.h"
#include "tools/story/parser.h"

namespace zentrox::author {

namespace fs = std::filesystem;

namespace {

fs::path whole(const fs::path& path) {
    std::error_code error;
    return fs::absolute(path, error).lexically_normal();
}

std::vector<std::string> linesIn(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

}  // namespace

Compiler::Result Compiler::compile() {
    try {
        directories_.insert(whole(fs::is_directory(sources_) ? sources_ : sources_.parent_path()));
        const auto sources = story::sourcesOf({sources_.string()});
        story::SourceFiles files;
        story::Findings findings;
        story::Story story = story::parseSources(sources, files, findings, story::neighboursOf(sources));
        note(story);
        story::checkForBuild(story, findings);
        findings.settle(story);
        if (findings.hasErrors()) return {linesIn(story::asLines(story, findings)), {}};
        Result result;
        result.changed = story::writeStory(story, data_);
        story_ = std::move(story);
        return result;
    } catch (const story::WrongCall& call) {
        return {{call.why}, {}};
    } catch (const fs::filesystem_error& error) {
        return {{error.path1().string() + ": " + story::inGerman(error.code())}, {}};
    } catch (const std::exception& error) {
        return {{error.what()}, {}};
    }
}

void Compiler::note(const story::Story& story) {
    for (const std::string& name : story.files) {
        const fs::path path = whole(name);
        files_.insert(path);
        directories_.insert(path.parent_path());
    }
}

fs::path Compiler::fileOf(const story::Place& place) const {
    const auto file = static_cast<std::size_t>(place.file);
    return file < story_.files.size() ? whole(story_.files[file]) : fs::path();
}

bool Compiler::isSource(const fs::path& file) const {
    return files_.contains(file) || lower(file.extension().native()) == ".story";
}

fs::path dataOf(const fs::path& sources) {
    try {
        const auto all = story::sourcesOf({sources.string()});
        return story::dataRootOf(all.front());
    } catch (const story::WrongCall&) {
        return {};
    }
}

}  // namespace zentrox::author
