#include "comfort/games.h"

#include <algorithm>
#include <array>
#include <utility>

#include "comfort/question.h"
#include "engine/language/games.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr int defeats = 3;      // so many in a row until the player is asked
constexpr int rushPace = 2000;  // percent
constexpr int usualPace = 100;
// Those that go by the clock, and those whose end is long.
constexpr std::array calmed{TextView("JUMP"), TextView("BRUHKS"), TextView("PONG"), TextView("PI")};
constexpr std::array rushed{"PRÜGEL"_t, TextView("PI")};

template <class Names>
bool holds(const Names& names, const Text& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool isDraw(const Text& name, const Übergabewert& outcome) {
    const SpielArt* const kind = findSpiel(name);
    const Text* const text = std::get_if<Text>(&outcome);
    return kind != nullptr && kind->kenntUnentschieden && text != nullptr && *text == "U";
}

}  // namespace

GameComforts::GameComforts(Comforts& comforts) : comforts_(comforts) {
    const auto inGame = [this] { return !open_.empty(); };
    for (const int code : {key::pause, key::f4})
        comforts_.keys().add({.code = code,
                              .label = code == key::f4 ? TextView("F4, Pause") : TextView(),
                              .does = code == key::f4 ? "Pause in einem Spiel"_t : TextView(),
                              .down = [this] { pause(); },
                              .available = inGame});
    comforts_.keys().add({.code = key::f6,
                          .label = "F6 halten",
                          .does = "Kampf und Pi im Zeitraffer"_t,
                          .down = [this] { rush(true); },
                          .up = [this] { rush(false); },
                          .available = [this] { return holds(rushed, open_); }});
}

std::function<Spiel(const Text& name, Spiel game)> GameComforts::wrapper() {
    return
        [this](const Text& name, Spiel game) { return [this, name, game = std::move(game)] { play(name, game); }; };
}

void GameComforts::play(const Text& name, const Spiel& game) {
    struct Stands {
        GameComforts& all;
        Text before;
        int pace;
        ~Stands() {
            all.open_ = before;
            all.rushes_ = false;
            all.comforts_.platform().queue.setPace(pace);
        }
    };
    Queue& queue = comforts_.platform().queue;
    {
        const Stands stands{*this, std::exchange(open_, name), queue.pace()};
        if (holds(calmed, name)) queue.setPace(comforts_.settings().gamePace);
        game();
    }
    Zustand& z = comforts_.zustand();
    if (isDraw(name, z.Übergabe)) return;
    int& lost = lostInARow_[name];
    lost = Gewonnen(name, z.Übergabe) ? 0 : lost + 1;
    if (lost < defeats || !comforts_.settings().letThrough || !letThrough()) return;
    lost = 0;
    const SpielArt* const kind = findSpiel(name);
    if (kind != nullptr && kind->kenntUnentschieden)
        z.Übergabe = Text("W");
    else
        z.Übergabe = true;
}

bool GameComforts::letThrough() {
    bool yes = false;
    comforts_.pausedDuring([&] {
        yes = ask(comforts_.platform(),
                  "Dreimal verloren. Soll die Geschichte weitergehen,\nals hättest du dieses Spiel gewonnen?"_t,
                  "Ja, weiter"_t, "Nein, es bleibt dabei"_t);
    });
    return yes;
}

void GameComforts::pause() {
    if (comforts_.platform().queue.stands()) return;
    comforts_.pausedDuring([this] {
        showMessageBox(comforts_.platform(), {"Pause", Text("Das Spiel steht still. Weiter mit Enter."_t)});
    });
}

void GameComforts::rush(bool on) {
    if (on == rushes_) return;
    rushes_ = on;
    const int pace = holds(calmed, open_) ? comforts_.settings().gamePace : usualPace;
    comforts_.platform().queue.setPace(on ? rushPace : pace);
}

}  // namespace zentrox
