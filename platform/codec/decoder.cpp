// Opens files and has them decoded, by workers where there are any. The decoder's module lies beside the program,
// in its library directory, or where the loader looks.
#include "platform/machine/decoder.h"

#include <dlfcn.h>

#include <iostream>
#include <vector>

#include "platform/codec/apart/media.h"
#include "platform/codec/filedecoder.h"
#include "platform/machine/system.h"

namespace zentrox {

namespace {

constexpr const char* moduleName = "zentrox-decoder.so";

std::vector<std::filesystem::path> places() {
    const auto program = programDirectory();
    return {program / moduleName, libraryDirectoryFor(program) / moduleName, moduleName};
}

FileDecoder* load() {
    for (const auto& place : places()) {
        void* module = dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (module == nullptr) continue;
        if (void* entry = dlsym(module, "zentroxFileDecoder")) return reinterpret_cast<FileDecoder* (*)()>(entry)();
    }
    return nullptr;
}

using apart::Job;

class Decoder final : public MediaDecoder {
public:
    std::unique_ptr<AudioReader> openAudio(const std::filesystem::path& path) override {
        const OpenFile file = open(path);
        if (!file.file) return nullptr;
        if (auto worker = apart::workerFor(Job::sound, file)) return apart::soundFrom(std::move(worker));
        return loadedDecoder() != nullptr ? loadedDecoder()->openAudio(file) : nullptr;
    }
    std::unique_ptr<VideoReader> openVideo(const std::filesystem::path& path) override {
        const OpenFile file = open(path);
        if (!file.file) return nullptr;
        if (auto worker = apart::workerFor(Job::film, file)) return apart::filmFrom(std::move(worker));
        return loadedDecoder() != nullptr ? loadedDecoder()->openVideo(file) : nullptr;
    }
    std::int64_t audioLength(const std::filesystem::path& path) override {
        const OpenFile file = open(path);
        if (!file.file) return 0;
        if (auto* const worker = apart::residentFor(Job::lengths))
            return apart::lengthFrom(*worker, apart::Length::ofSound, file);
        return loadedDecoder() != nullptr ? loadedDecoder()->audioLength(file) : 0;
    }
    std::int64_t videoLength(const std::filesystem::path& path) override {
        const OpenFile file = open(path);
        if (!file.file) return 0;
        if (auto* const worker = apart::residentFor(Job::lengths))
            return apart::lengthFrom(*worker, apart::Length::ofFilm, file);
        return loadedDecoder() != nullptr ? loadedDecoder()->videoLength(file) : 0;
    }

private:
    static OpenFile open(const std::filesystem::path& path) {
        return {sharedForReading(path), path.filename().string()};
    }
};

bool canDecode() {
    apart::Apart* const apart = apart::Apart::standing();
    if ((apart != nullptr && apart->prepared(Job::film)) || loadedDecoder() != nullptr) return true;
    std::cerr << "zentrox: " << moduleName << " can't be loaded: no videos, and no music but MIDI\n";
    return false;
}

}  // namespace

FileDecoder* loadedDecoder() {
    static FileDecoder* const decoder = load();
    return decoder;
}

MediaDecoder* mediaDecoder() {
    static Decoder decoder;
    static const bool can = canDecode();
    return can ? &decoder : nullptr;
}

}  // namespace zentrox
