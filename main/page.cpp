#include "main/page.h"

#include <cstdio>
#include <memory>
#include <utility>

#include "main/spiel.h"
#include "platform/codec/zip.h"
#include "platform/web/page.h"
#include "platform/web/sound.h"

namespace zentrox {

int playPage(const std::vector<std::string>& arguments, const std::function<void(Platform*, Zustand*)>& watch) {
    try {
        Text commandLine = fromUtf8(arguments.at(0));
        const Files files = openStory(arguments.at(1));
        for (;;) {
            web::Page page(files);
            const auto fonts = makeFonts();
            const auto sound = web::pageSound(files);
            Platform platform(page, *fonts, *sound, files);
            platform.roots.assign(arguments.begin() + 2, arguments.end());
            const auto zustand = std::make_unique<Zustand>();
            if (watch) watch(&platform, zustand.get());
            const int status = Spielen(platform, *zustand, std::exchange(commandLine, {}));
            if (watch) watch(nullptr, nullptr);
            if (!page.restartWanted()) return status;
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zentrox: %s\n", error.what());
        return 1;
    }
}

}  // namespace zentrox
