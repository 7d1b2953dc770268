// The stories that an editor has open: their sources as they stand in it, saved or not, and what the compiler makes
// of them.
#pragma once

#include <memory>

#include "tools/lsp/positions.h"
#include "tools/story/check.h"
#include "tools/story/parser.h"
#include "tools/story/uses.h"

namespace zentrox::lsp {

namespace fs = std::filesystem;

// Sources from the editor where they are open there, else from the disk.
class Buffers : public story::SourceFiles {
public:
    struct Buffer {
        std::string text;
        int version = 0;
    };
    std::map<fs::path, Buffer> open;  // by absolute paths

    std::optional<std::string> read(const fs::path& path) override;
    std::optional<Bitmap> picture(const fs::path& path) override;
    // The text as it was read last.
    const std::string& text(const fs::path& path);

private:
    struct Picture {
        fs::file_time_type changed;
        std::optional<Bitmap> bitmap;
    };
    std::map<fs::path, std::string> read_;
    std::map<fs::path, Picture> pictures_;
};

// A directory of sources and all that is known of it.
struct Analysis {
    fs::path directory;
    fs::path data;  // where pictures, sounds and so on lie; empty if that is not known
    story::Parsed parsed;
    story::Findings findings;  // settled, if `checked`; else those of the compiler alone
    std::vector<story::Use> uses;
    bool checked = false;

    // The number of a file in it; -1 if it has no part in this story.
    int fileNumber(const fs::path& path) const;
    fs::path file(int number) const { return fs::path(parsed.story.files[static_cast<std::size_t>(number)]); }
};

class Workspace {
public:
    // `data` is where all data lies; empty looks for it beside the sources, as the check does.
    explicit Workspace(fs::path data);

    void open(const fs::path& path, std::string text, int version);
    void change(const fs::path& path, std::string text, int version);
    void close(const fs::path& path);
    // Something on the disk may have changed.
    void forget();

    const Buffers::Buffer* buffer(const fs::path& path) const;
    const std::string& text(const fs::path& path) { return files_.text(path); }

    // The story that a source belongs to, as it stands now.
    const Analysis& storyOf(const fs::path& path);
    // The files in one of the directories of data.
    std::vector<Text> filesIn(const Analysis& story, Ordner directory) const;
    // The directories of stories that have a source open.
    std::vector<fs::path> openStories();
    const Analysis& storyIn(const fs::path& directory) { return current(directory); }
    const Analysis& checkedStory(const fs::path& directory);

private:
    fs::path directoryOf(const fs::path& path);
    Analysis& current(const fs::path& directory);
    void parse(Analysis& story);
    void check(Analysis& story);
    std::vector<fs::path> sourcesIn(const fs::path& directory) const;

    fs::path data_;
    Buffers files_;
    story::FileLooks looks_;
    std::unique_ptr<Fonts> fonts_;
    std::map<fs::path, std::unique_ptr<Analysis>> stories_;  // null where something has changed
    std::map<fs::path, fs::path> directories_;               // of stories, by their open sources
};

}  // namespace zentrox::lsp
