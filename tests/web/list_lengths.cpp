// Writes how long the sounds and films below some directories last, for the engine that can't decode them:
// list_lengths [--films INTO] DIRECTORY... With --films it takes the films apart as well, picture by picture.
#include <fstream>
#include <iostream>
#include <string_view>
#include <vector>

#include "platform/machine/decoder.h"
#include "tools/web/gather.h"
#include "tools/web/media.h"

namespace {

using namespace zentrox;

// As platform/web/filmstrip.h says.
void takeApart(const std::filesystem::path& film, std::int64_t length, const std::filesystem::path& into) {
    const auto reader = mediaDecoder()->openVideo(film);
    if (!reader) return;
    std::filesystem::create_directories(into.parent_path());
    std::ofstream pictures(into, std::ios::binary);
    std::vector<std::uint32_t> pixels(videoWidth * videoHeight);
    for (std::int64_t at = 0; at <= length; ++at) {
        if (!reader->advance(at, pixels.data())) continue;
        pictures.write(reinterpret_cast<const char*>(&at), sizeof at);
        pictures.write(reinterpret_cast<const char*>(pixels.data()), videoWidth * videoHeight * 4L);
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> places(argv + 1, argv + argc);
    std::filesystem::path films;
    if (places.size() > 1 && places[0] == "--films") {
        films = places[1];
        places.erase(places.begin(), places.begin() + 2);
    }
    for (const std::string& place : places) {
        const auto root = std::filesystem::absolute(place).lexically_normal();
        for (const auto& [file, path] : web::gather(root, root.string())) {
            const auto facts = web::factsOf(file);
            if (facts.kind == web::Media::none) continue;
            std::cout << facts.sound << ' ' << facts.film << ' ' << path << '\n';
            if (!films.empty() && facts.film > 0)
                takeApart(file, facts.film, films / std::filesystem::path(path).relative_path());
        }
    }
}
