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
#include "menu/datensuche.h"
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

int windows(Platform& platform, Zustand& zustand, const Text& kommandozeile, const Extras& extras) {
    Beobachter nobody;
    Speicherwart plain;
    Beobachter& observer = extras.observer != nullptr ? *extras.observer : nobody;
    Speicherwart& saves = extras.saves != nullptr ? *extras.saves : plain;
    try {
        Medien medien(platform, zustand);
        Spieltabelle table = spiele(platform, zustand, medien);
        for (auto& [name, game] : table)
            if (extras.aroundGame) game = extras.aroundGame(name, std::move(game));
        const auto showRoom = [&] {
            Form1 form(platform, zustand, medien, table, kommandozeile, observer, saves);
            form.Zeigen();
        };
        if (extras.withoutMenu) DatenSuchen(platform.files, platform.roots, zustand);
        // A room named on the command line needs no menu.
        if (extras.withoutMenu || !kommandozeile.empty()) showRoom();
        Menu menu(platform, zustand, platform.roots, showRoom);
        if (extras.menuStands) extras.menuStands([&menu] { menu.beginnen({}); });
        menu.showModal();
        if (extras.menuStands) extras.menuStands(nullptr);
        return 0;
    } catch (const ProgramEnd& end) {
        if (extras.menuStands) extras.menuStands(nullptr);
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

int Spielen(Platform& platform, Zustand& zustand, const Text& kommandozeile, const Extras& extras) {
    platform.files.confine();
    try {
        takeTitle(platform, zustand);
        return windows(platform, zustand, kommandozeile, extras);
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
