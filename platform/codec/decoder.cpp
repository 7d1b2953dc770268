// Loads the decoder's module, which lies beside the program, in its library directory, or where the loader looks.
#include "platform/machine/decoder.h"

#include <dlfcn.h>

#include <iostream>
#include <vector>

#include "platform/machine/system.h"

namespace zentrox {

namespace {

constexpr const char* moduleName = "zentrox-decoder.so";

std::vector<std::filesystem::path> places() {
    const auto program = programDirectory();
    return {program / moduleName, libraryDirectoryFor(program) / moduleName, moduleName};
}

MediaDecoder* load() {
    for (const auto& place : places()) {
        void* module = dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (module == nullptr) continue;
        if (void* entry = dlsym(module, "zentroxMediaDecoder"))
            return reinterpret_cast<MediaDecoder* (*)()>(entry)();
    }
    std::cerr << "zentrox: " << moduleName << " can't be loaded: no videos, and no music but MIDI\n";
    return nullptr;
}

}  // namespace

MediaDecoder* mediaDecoder() {
    static MediaDecoder* const decoder = load();
    return decoder;
}

}  // namespace zentrox
