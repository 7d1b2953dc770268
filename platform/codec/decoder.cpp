// Loads the decoder's module, which lies beside the program, in its library directory, or where the loader looks.
#include "platform/machine/decoder.h"

#include <dlfcn.h>

#include <iostream>
#include <system_error>
#include <vector>

namespace zentrox {

namespace {

constexpr const char* moduleName = "zentrox-decoder.so";

std::vector<std::filesystem::path> places() {
    std::error_code failed;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", failed).parent_path();
    if (failed) return {moduleName};
    return {program / moduleName, program.parent_path() / "lib" / "zentrox" / moduleName, moduleName};
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
