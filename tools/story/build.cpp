#include "tools/story/build.h"

#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <optional>

#include "engine/language/directories.h"
#include "platform/machine/files.h"
#include "tools/story/writer.h"

namespace zentrox::story {

namespace fs = std::filesystem;

namespace {

bool holds(const fs::path& path, const std::string& bytes) {
    std::error_code error;
    if (!fs::is_regular_file(path, error) || fs::file_size(path, error) != bytes.size() || error) return false;
    std::ifstream in(path, std::ios::binary);
    std::string present(bytes.size(), '\0');
    return in.read(present.data(), static_cast<std::streamsize>(present.size())) && present == bytes;
}

[[noreturn]] void fail(const fs::path& path) {
    throw fs::filesystem_error("schreiben", path, std::error_code(errno, std::generic_category()));
}

}  // namespace

bool writeIfChanged(const fs::path& path, const std::string& bytes) {
    if (holds(path, bytes)) return false;
    if (path.has_parent_path()) fs::create_directories(path.parent_path());
    fs::path beside = path;
    beside += "." + std::to_string(::getpid()) + ".neu";
    std::ofstream out(beside, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    std::error_code error;
    if (!out) {
        fs::remove(beside, error);
        fail(path);
    }
    fs::rename(beside, path, error);
    if (!error) return true;
    std::error_code ignored;
    fs::remove(beside, ignored);
    throw fs::filesystem_error("schreiben", path, error);
}

std::vector<fs::path> writeStory(const Story& story, const fs::path& into) {
    const Files files(into);
    std::vector<fs::path> changed;
    const auto write = [&](Ordner directory, const Text& file, const std::string& bytes) {
        const fs::path target = files.systemPath(Text(verzeichnis(directory)) + "\\" + file);
        if (writeIfChanged(target, bytes))
            changed.push_back(into / target.lexically_relative(fs::absolute(into).lexically_normal()));
    };
    for (const StoryRoom& room : story.rooms) write(Ordner::rooms, room.file, writeRoom(room.room));
    for (const StoryScript& script : story.scripts) write(Ordner::items, script.file, writeScript(script.script));
    return changed;
}

}  // namespace zentrox::story
