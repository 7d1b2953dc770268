#include "author/compiler.h"

#include <sstream>

#include "platform/values/text.h"
#include "tools/reasons/reasons.h"
#include "tools/story/build.h"
#include "tools/story/check.h"
#include "tools/story/datafiles.h"
#include "tools/story/inputs.h"
#include "tools/story/parser.h"

namespace zentrox::author {

namespace fs = std::filesystem;

namespace {

fs::path whole(const fs::path& path) {
    std::error_code error;
    return fs::absolute(path, error).lexically_normal();
}

Compiler::Result failed(const std::string& why) {
    return {false, {{.message = why, .inFull = why}}, {}};
}

std::vector<Compiler::Finding> listed(const story::Story& story, const story::Findings& findings) {
    std::vector<Compiler::Finding> list;
    std::istringstream lines(story::asLines(story, findings));
    std::string line;
    for (const story::Finding& one : findings.all()) {
        std::getline(lines, line);
        list.push_back({.file = whole(story.files[static_cast<std::size_t>(one.place.file)]),
                        .line = one.place.line,
                        .isError = one.severity == story::Severity::error,
                        .message = one.message,
                        .inFull = line});
    }
    return list;
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
        if (findings.hasErrors()) return {false, listed(story, findings), {}};
        Result result{true, listed(story, findings), story::writeStory(story, data_)};
        story_ = std::move(story);
        scripts_ = story::scriptsOf(story_);
        return result;
    } catch (const story::WrongCall& call) {
        return failed(call.why);
    } catch (const fs::filesystem_error& error) {
        return failed(error.path1().string() + ": " + reasonInGerman(error.code()));
    } catch (const std::exception& error) {
        return failed(error.what());
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

std::string shortly(const Compiler::Finding& finding) {
    if (finding.file.empty()) return finding.message;
    return finding.file.filename().string() + ":" + std::to_string(finding.line) + ": " + finding.message;
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
