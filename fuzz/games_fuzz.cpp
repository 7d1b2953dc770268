// The files of the games from anywhere: questions that can be put, and digits that can be typed.
#include "fuzz/file_fuzz.h"
#include "games/pi/pispiel.h"
#include "games/quiz/fragen.h"
#include "platform/values/error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentrox;
    static const fuzz::File file("spiel.txt");
    static const Files files = file.files();
    file.hold(data, size);
    try {
        Random random(1);
        const auto fragen = FragenLaden(files, file.name());
        for (int nummer = 1; nummer < 9; ++nummer) {
            const Aufgabe aufgabe = AufgabeStellen(random, fragen, nummer);
            if (aufgabe.richtigePos < 0 || aufgabe.richtigePos >= Antwortfelder) std::abort();
        }
    } catch (const DataError&) {
        // No question in it.
    }
    try {
        const Text zeichen = PiLesen(files, file.name());
        if (zeichen.empty() || zeichen.size() > piZeichen) std::abort();
    } catch (const DataError&) {
        // No character in it.
    }
    return 0;
}
