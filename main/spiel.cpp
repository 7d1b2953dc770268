#include "main/spiel.h"

#include <algorithm>
#include <cassert>

#include "engine/files/titeldatei.h"
#include "engine/language/games.h"
#include "games/bruhks/bruhks.h"
#include "games/fight/fight.h"
#include "games/jump/jump.h"
#include "games/memory/memory.h"
#include "games/pi/pi.h"
#include "games/pong/pong.h"
#include "games/quiz/quiz.h"
#include "games/riddle/riddle.h"
#include "media/medien.h"
#include "menu/menu.h"
#include "platform/values/error.h"
#include "room/form1.h"

namespace zentrox {

namespace {

constexpr int datenfehler = 1;

// The games of the story by their names.
Spieltabelle spiele(Platform& platform, Zustand& zustand, Medien& medien) {
    const auto zeigt = [&](void (*spiel)(Platform&, Zustand&, Medien&)) {
        return [&, spiel] { spiel(platform, zustand, medien); };
    };
    Spieltabelle tabelle{
        {"BRUHKS", zeigt(BruhksZeigen)}, {"ESEL", zeigt(Form2Zeigen)},
        {"HDW", zeigt(HDWZeigen)},       {"JUMP", zeigt(JumpZeigen)},
        {"MEMORY", zeigt(MemoryZeigen)}, {"PI", zeigt(PIZeigen)},
        {"PONG", zeigt(PongZeigen)},     {Text("PRÜGEL"_t), zeigt(PrügelZeigen)},
    };
    assert(tabelle.size() == Spiele().size() && std::all_of(Spiele().begin(), Spiele().end(), [&](auto& spiel) {
               return tabelle.contains(spiel.name);
           }));
    return tabelle;
}

int fenster(Platform& platform, Zustand& zustand, const Text& kommandozeile, Beobachter& beobachter) {
    try {
        Medien medien(platform, zustand);
        const Spieltabelle tabelle = spiele(platform, zustand, medien);
        const auto form1Zeigen = [&] {
            Form1 form(platform, zustand, medien, tabelle, kommandozeile, beobachter);
            form.Zeigen();
        };
        // A room named on the command line needs no menu.
        if (!kommandozeile.empty()) form1Zeigen();
        Menu menu(platform, zustand, platform.roots, form1Zeigen);
        menu.showModal();
        return 0;
    } catch (const ProgramEnd& end) {
        return end.status;
    }
}

// A CD that the story brings along gives way to all others, since the last one found counts.
void takeTitle(Platform& platform, Zustand& zustand) {
    zustand.Titel = TitelLesen(platform.files);
    const Text& cd = zustand.Titel.CD;
    if (!cd.empty())
        platform.roots.insert(platform.roots.begin(),
                              platform.files.systemPath(platform.files.programDirectory() + cd));
}

}  // namespace

int Spielen(Platform& platform, Zustand& zustand, const Text& kommandozeile, Beobachter* beobachter) {
    try {
        takeTitle(platform, zustand);
        Beobachter niemand;
        return fenster(platform, zustand, kommandozeile, beobachter != nullptr ? *beobachter : niemand);
    } catch (const DataError& error) {
        try {
            showMessageBox(platform, {"Zentrox", error.message(), MessageBox::Icon::critical});
        } catch (const ProgramEnd&) {
            // The box was cut off with the process.
        }
        return datenfehler;
    }
}

}  // namespace zentrox
