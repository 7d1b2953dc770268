// A story of 100 rooms with 30 objects each.
#pragma once

#include <sstream>
#include <string>

#include "tests/support/temp_directory.h"

namespace zentrox::bench {

inline constexpr int rooms = 100;
inline constexpr int objects = 30;

inline std::string object(int room, int index) {
    const std::string own = std::to_string(room) + "_" + std::to_string(index);
    const int x = 20 * (index % 30);
    std::ostringstream out;
    out << "    Objekt \"Ding " << index << "\"\n        Zeiger \"hand1.ico\"\n        Fläche\n"
        << "            Rechteck " << x << " 100 " << x + 90 << " 220\n"
        << "            Vieleck " << x << " 300, " << x + 60 << " 240, " << x + 120 << " 300, " << x + 60
        << " 400\n"
        << "        Rechts\n            Text \"Das ist Ding " << index << " in Raum " << room << ".\"\n"
        << "                 \"$CEs hat eine zweite Zeile.\"\n"
        << "        Links\n            WennMerker GETAN_" << own << "\n                Text \"Das war es schon.\"\n"
        << "            Sonst\n                SetzeMerker GETAN_" << own << "\n"
        << "                Auswahl \"Was nun?\"\n"
        << "                    Fall \"Weiter\"\n                        Raumwechsel \"Raum" << (room + 1) % rooms
        << ".lsd\"\n                    Fall \"Warten\"\n                        ObjektAus \"Ding "
        << (index + 1) % objects << "\"\n                    Option \"Nichts\"\n                EndeAuswahl\n"
        << "            EndeWenn\n"
        << "        Ablegen\n            WennParameter RING\n                GibGegenstand \"ring.bmp\"\n"
        << "            Sonst\n                Fehlerton\n            EndeWenn\n";
    return out.str();
}

// The sources, with the files that they name, in a directory of their own.
inline const test::TempDirectory& bigStory() {
    static const test::TempDirectory directory;
    static const bool made = [] {
        for (int room = 0; room < rooms; ++room) {
            std::string source = "Raum \"Raum" + std::to_string(room) +
                                 ".lsd\"\n    Bild \"bild.jpg\"\n    Start\n        NimmGegenstand \"ring.bmp\"\n";
            for (int index = 0; index < objects; ++index) source += object(room, index);
            directory.write("story/raum" + std::to_string(room) + ".story", source);
        }
        for (const char* name : {"graphics/bild.jpg", "cursors/hand1.ico", "items/ring.bmp"})
            directory.write(name, "x");
        return true;
    }();
    static_cast<void>(made);
    return directory;
}

}  // namespace zentrox::bench
