// A match without a window: keys that a test holds, notes of what would be heard and told, and a clock of ticks.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <set>
#include <stdexcept>
#include <vector>

#include "games/pong/pongspiel.h"
#include "platform/values/keys.h"
#include "platform/values/random.h"

namespace zentrox::test {

struct Table : Pongumgebung {
    explicit Table(Pongansicht& view) : game(view, *this) { game.neuess(); }
    Table() : Table(blind_) {}

    std::set<int> held;
    std::vector<Text> heard;
    Text title;
    std::array<std::int32_t, 2> shown{-1, -1};
    bool won = false;

    std::array<std::uint8_t, 256> Tastenstand() override {
        std::array<std::uint8_t, 256> keys{};
        for (const int code : held) keys[static_cast<std::size_t>(code)] = 0x80;
        return keys;
    }
    void Klang(TextView datei) override { heard.emplace_back(datei); }
    void Titel(TextView text) override { title = text; }
    void Punkte(Seite seite, std::int32_t punkte) override { shown[seite == Seite::links ? 0 : 1] = punkte; }
    void SpielerHatGewonnen() override { won = true; }

    const Pongstand& s() const { return game.stand(); }
    // Changes the state as a test wants it.
    template <class Change>
    void set(Change change) {
        Pongstand stand = s();
        change(stand);
        game.stellen(stand);
    }
    // 16 ms of the match: each running timer ticks once, `Timer3` when its time has come.
    void tick() {
        const Takte before = s().takte;
        if (before.Timer1) game.Timer1_Timer();
        if (before.Timer2 && s().takte.Timer2) game.Timer2_Timer();
        if (before.Timer4) game.Timer4_Timer();
        if (before.Timer5) game.Timer5_Timer();
        if (before.Timer6 && s().takte.Timer6) game.Timer6_Timer();
        scoreTicks_ = s().takte.Timer3 ? scoreTicks_ + 1 : 0;
        if (scoreTicks_ * 16 >= punkteDauer) game.Timer3_Timer();
    }
    // Ticks until `done`; throws if that does not come.
    template <class Done>
    void until(Done done, int most = 5000) {
        while (!done() && most-- > 0) tick();
        if (!done()) throw std::logic_error("waits in vain");
    }
    void serve() {
        until([this] { return s().takte.Timer1; });
    }

private:
    Pongansicht blind_;

public:
    Pongspiel game;

private:
    int scoreTicks_ = 0;
};

// A player who waits `reach` pixels off the ball and swings the paddle through it, so that the ball is bent.
struct Swinger {
    int reach = 60;
    std::set<int> keys(const Pongstand& s) const {
        if (s.ballDX <= 0) return {};
        const float steps = (596 - s.ballX) / (s.ballDX + static_cast<float>(s.tempoBonus) / 5);
        const float off = s.ballY + 5 + static_cast<float>(reach) - s.spielerY;
        if (steps <= static_cast<float>(reach) / 4 || off < -4) return {key::up};
        return off > 4 ? std::set<int>{key::down} : std::set<int>{};
    }
    void hold(Table& table) const { table.held = keys(table.s()); }
};

}  // namespace zentrox::test
