// The game in a browser. Its command line is the program's directory and the roots to search for the CD.
#include <cstdio>
#include <memory>

#include "main/spiel.h"
#include "platform/codec/zip.h"
#include "platform/web/page.h"
#include "platform/web/sound.h"

namespace {

using namespace zentrox;

// One life of the program; gives its exit status.
int live(const Files& files, const std::vector<std::filesystem::path>& places, web::Page& page) {
    const auto fonts = makeFonts();
    const auto sound = web::pageSound(files);
    Platform platform(page, *fonts, *sound, files);
    platform.roots.assign(places.begin() + 1, places.end());
    const auto zustand = std::make_unique<Zustand>();
    return Spielen(platform, *zustand, {});
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::filesystem::path> places(argv + 1, argv + argc);
    if (places.empty()) return 2;
    const Files files = openStory(places.front());
    for (;;) {
        web::Page page(files);
        try {
            const int status = live(files, places, page);
            if (!page.restartWanted()) return status;
        } catch (const std::exception& error) {
            std::fprintf(stderr, "zentrox: %s\n", error.what());
            return 1;
        }
    }
}
