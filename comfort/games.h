// What makes the mini-games bearable for who does not play games: a pause, a calm clock, a way through after some
// defeats, and the long ends in a rush.
#pragma once

#include <functional>
#include <map>

#include "comfort/comforts.h"
#include "engine/interpreter/spieltabelle.h"

namespace zentrox {

class GameComforts {
public:
    explicit GameComforts(Comforts& comforts);
    GameComforts(const GameComforts&) = delete;
    GameComforts& operator=(const GameComforts&) = delete;

    // Puts all that the player wants of a game around it; see `Extras`.
    std::function<Spiel(const Text& name, Spiel game)> wrapper();

private:
    void play(const Text& name, const Spiel& game);
    void pause();
    void rush(bool on);
    bool letThrough();

    Comforts& comforts_;
    Text open_;                       // the game that stands, empty for none
    std::map<Text, int> lostInARow_;  // by the game's name
    bool rushes_ = false;
};

}  // namespace zentrox
