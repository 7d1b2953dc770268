// A match without a window: keys that a test holds, notes of what would be heard, and a clock of ticks. A picture
// may watch.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <set>
#include <stdexcept>
#include <vector>

#include "games/pong/pongbild.h"
#include "platform/values/keys.h"

namespace zentrox::test {

struct Table {
    explicit Table(Pongbild* view = nullptr) : view_(view) { start(); }

    Pongspiel game;
    std::set<int> held;
    std::vector<Text> heard;

    const Pongspiel& s() const { return game; }
    std::array<std::int32_t, 2> score() const { return {game.punkteGegner, game.punkteSpieler}; }
    // Changes the state as a test wants it.
    template <class Change>
    void set(Change change) {
        change(game);
    }
    void start() {
        game.neuess();
        if (view_ != nullptr) view_->NeuesFeld(game);
    }
    // 16 ms of the match: each running timer ticks once, `Timer3` when its time has come.
    void tick() {
        const Takte before = game.takte;
        if (before.Timer1) play();
        if (before.Timer2 && game.takte.Timer2)
            step([](Pongspiel& g) { return g.Timer2_Timer(); }, &Pongbild::Timer2_Timer);
        if (view_ != nullptr && (before.Timer4 || before.Timer5))
            view_->Endbild(before.Timer4 ? Seite::links : Seite::rechts);
        if (before.Timer6 && game.takte.Timer6) drop();
        scoreTicks_ = game.takte.Timer3 ? scoreTicks_ + 1 : 0;
        if (scoreTicks_ * 16 >= punkteDauer)
            step([](Pongspiel& g) { return g.Timer3_Timer(); }, &Pongbild::Timer3_Timer);
    }
    void play() {
        step([this](Pongspiel& g) { return g.Timer1_Timer(keys()); }, &Pongbild::Timer1_Timer);
    }
    void drop() {
        step([](Pongspiel& g) { return g.Timer6_Timer(); }, &Pongbild::Timer6_Timer);
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
    Tasten keys() const {
        Tasten keys{};
        for (const int code : held) keys[static_cast<std::size_t>(code)] = 0x80;
        return keys;
    }
    template <class Tick>
    void step(Tick tick, void (Pongbild::*show)(const Pongzug&)) {
        const Pongspiel before = game;
        const Pongtick t = tick(game);
        for (const TextView sound : t.Klänge) heard.emplace_back(sound);
        if (view_ != nullptr) (view_->*show)({before, t, game});
    }

    Pongbild* view_;
    int scoreTicks_ = 0;
};

// A player who waits `reach` pixels off the ball and swings the paddle through it, so that the ball is bent.
struct Swinger {
    int reach = 60;
    std::set<int> keys(const Pongspiel& s) const {
        if (s.ballDX <= 0) return {};
        const float steps = (596 - s.ballX) / (s.ballDX + static_cast<float>(s.tempoBonus) / 5);
        const float off = s.ballY + 5 + static_cast<float>(reach) - s.spielerY;
        if (steps <= static_cast<float>(reach) / 4 || off < -4) return {key::up};
        return off > 4 ? std::set<int>{key::down} : std::set<int>{};
    }
    void hold(Table& table) const { table.held = keys(table.s()); }
};

}  // namespace zentrox::test
