#include "tools/lsp/workspace.h"

#include <algorithm>

#include "tools/story/inputs.h"

namespace zentrox::lsp {

using story::Place;

namespace {

constexpr int levelsAbove = 2;  // so far above a source the one that includes it is looked for

// Without fonts everything but the size of texts can still be looked at.
std::unique_ptr<Fonts> fontsIfAny() {
    try {
        auto fonts = makeFonts();
        fonts->get(FontSpec{});
        return fonts;
    } catch (const std::exception&) {
        return nullptr;
    }
}

fs::path plain(const fs::path& path) {
    return fs::absolute(path).lexically_normal();
}

}  // namespace

// --- sources

std::optional<std::string> Buffers::read(const fs::path& path) {
    const fs::path known = plain(path);
    const auto buffer = open.find(known);
    auto text = buffer != open.end() ? std::optional(buffer->second.text) : SourceFiles::read(known);
    if (text)
        read_[known] = *text;
    else
        read_.erase(known);
    return text;
}

std::optional<Bitmap> Buffers::picture(const fs::path& path) {
    std::error_code error;
    const auto changed = fs::last_write_time(path, error);
    const auto known = pictures_.find(path);
    if (!error && known != pictures_.end() && known->second.changed == changed) return known->second.bitmap;
    auto bitmap = SourceFiles::picture(path);
    if (!error) pictures_[path] = {changed, bitmap};
    return bitmap;
}

const std::string& Buffers::text(const fs::path& path) {
    const auto buffer = open.find(path);
    return buffer != open.end() ? buffer->second.text : read_[path];
}

int Analysis::fileNumber(const fs::path& path) const {
    const auto& files = parsed.story.files;
    const auto found = std::find(files.begin(), files.end(), path.generic_string());
    return found == files.end() ? -1 : static_cast<int>(found - files.begin());
}

// --- what an editor has open

Workspace::Workspace(fs::path data) : data_(std::move(data)), fonts_(fontsIfAny()) {}

void Workspace::open(const fs::path& path, std::string text, int version) {
    files_.open[path] = {std::move(text), version};
    directories_.erase(path);
    forget();
}

void Workspace::change(const fs::path& path, std::string text, int version) {
    files_.open[path] = {std::move(text), version};
    forget();
}

void Workspace::close(const fs::path& path) {
    files_.open.erase(path);
    directories_.erase(path);
    forget();
}

void Workspace::forget() {
    for (auto& [directory, story] : stories_) story.reset();
}

const Buffers::Buffer* Workspace::buffer(const fs::path& path) const {
    const auto found = files_.open.find(path);
    return found == files_.open.end() ? nullptr : &found->second;
}

// --- stories

// A source of a story lies beside the others, or below the one that includes it.
fs::path Workspace::directoryOf(const fs::path& path) {
    const auto known = directories_.find(path);
    if (known != directories_.end()) return known->second;
    fs::path found = path.parent_path();
    fs::path above = found;
    for (int i = 0; i < levelsAbove && above.has_relative_path(); ++i) {
        above = above.parent_path();
        if (!sourcesIn(above).empty() && current(above).fileNumber(path) >= 0) found = above;
    }
    return directories_[path] = found;
}

std::vector<fs::path> Workspace::sourcesIn(const fs::path& directory) const {
    std::set<fs::path> sources;
    try {
        for (const fs::path& path : story::sourcesOf({directory.string()})) sources.insert(plain(path));
    } catch (const story::WrongCall&) {
        // Nothing is saved there yet.
    }
    for (const auto& [path, buffer] : files_.open)
        if (path.parent_path() == directory) sources.insert(path);
    return {sources.begin(), sources.end()};
}

Analysis& Workspace::current(const fs::path& directory) {
    auto& story = stories_[directory];
    if (!story) {
        story = std::make_unique<Analysis>();
        story->directory = directory;
        parse(*story);
    }
    return *story;
}

void Workspace::parse(Analysis& story) {
    const auto sources = sourcesIn(story.directory);
    story.parsed = story::parseAll(sources, files_, story.findings);
    story.uses = story::usesOf(story.parsed.sources, story.parsed.names);
    if (!data_.empty())
        story.data = data_;
    else if (!sources.empty())
        story.data = story::dataRootOf(sources.front());
}

void Workspace::check(Analysis& story) {
    const story::Story none;
    const auto data = story.data.empty() ? nullptr : std::make_unique<story::DataFiles>(story.data);
    story::Surroundings around{&none, data.get(), fonts_.get(), &looks_};
    around.wholeGame = true;
    around.fromSources = true;
    story::check(story.parsed.story, around, story.findings);
    story.findings.settle(story.parsed.story);
    story.checked = true;
}

const Analysis& Workspace::storyOf(const fs::path& path) {
    return current(directoryOf(path));
}

const Analysis& Workspace::checkedStory(const fs::path& directory) {
    Analysis& story = current(directory);
    if (!story.checked) check(story);
    return story;
}

std::vector<Text> Workspace::filesIn(const Analysis& story, Ordner directory) const {
    if (story.data.empty()) return {};
    return story::DataFiles(story.data).names(directory);
}

std::vector<fs::path> Workspace::openStories() {
    std::set<fs::path> directories;
    for (const auto& [path, buffer] : files_.open) directories.insert(directoryOf(path));
    return {directories.begin(), directories.end()};
}

}  // namespace zentrox::lsp
