#include "tools/story/filelooks.h"

#include "platform/codec/pictures.h"
#include "platform/machine/decoder.h"
#include "platform/machine/midi.h"
#include "platform/values/error.h"

namespace zentrox::story {

namespace {

FileLook pictureLook(const Files& files, const Text& path) {
    try {
        return {true, false, loadPicture(files, path).size()};
    } catch (const DataError&) {
        return {false, false, {}};
    }
}

bool isIcon(const Files& files, const Text& path) {
    try {
        loadIcon(files, path);
        return true;
    } catch (const DataError&) {
        return false;
    }
}

bool isAudible(const std::filesystem::path& file) {
    if (const auto midi = readMidi(file)) return midiLength(*midi).has_value();
    MediaDecoder* const decoder = mediaDecoder();
    return decoder == nullptr || decoder->audioLength(file) > 0;
}

bool isFilm(const std::filesystem::path& file) {
    MediaDecoder* const decoder = mediaDecoder();
    return decoder == nullptr || decoder->videoLength(file) > 0;
}

FileLook freshLook(const Files& files, Ordner directory, const Text& path, const std::filesystem::path& file) {
    switch (directory) {
        case Ordner::graphics:
        case Ordner::items: return pictureLook(files, path);
        case Ordner::cursors: return {isIcon(files, path), false, {}};
        case Ordner::sounds:
        case Ordner::musics: return {isAudible(file), false, {}};
        case Ordner::movies: return {isFilm(file), false, {}};
        default: return {};
    }
}

}  // namespace

FileLook FileLooks::look(const DataFiles& data, Ordner directory, TextView file) {
    const Text path = data.path(directory, file);
    const auto there = data.files().systemPath(path);
    std::error_code error;
    const auto bytes = std::filesystem::file_size(there, error);
    const auto changed = std::filesystem::last_write_time(there, error);
    if (!error && bytes == 0) return {false, true, {}};
    const auto known = known_.find(there);
    if (known != known_.end() && !error && known->second.bytes == bytes && known->second.changed == changed)
        return known->second.look;
    const FileLook look = freshLook(data.files(), directory, path, there);
    if (!error) known_[there] = {changed, bytes, look};
    return look;
}

}  // namespace zentrox::story
