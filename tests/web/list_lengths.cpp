// Writes how long the sounds and films below some directories last, for the engine that can't decode them.
#include <iostream>

#include "tools/web/gather.h"
#include "tools/web/media.h"

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const auto root = std::filesystem::absolute(argv[i]).lexically_normal();
        for (const auto& [file, path] : zentrox::web::gather(root, root.string())) {
            const auto facts = zentrox::web::factsOf(file);
            if (facts.kind != zentrox::web::Media::none)
                std::cout << facts.sound << ' ' << facts.film << ' ' << path << '\n';
        }
    }
}
