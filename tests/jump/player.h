// A player of Jump: looks at the level and its enemies, thinks ahead with copies of the game, and finds keys that
// win.
#pragma once

#include <algorithm>
#include <memory>
#include <queue>
#include <set>
#include <tuple>
#include <vector>

#include "games/jump/jumpspiel.h"
#include "platform/values/keys.h"

namespace zentrox::test {

// The keys held during one tick.
using Keys = std::vector<int>;

inline Tasten pressed(const Keys& keys) {
    Tasten bytes{};
    for (const int code : keys) bytes[static_cast<std::size_t>(code)] = 128;
    return bytes;
}

class Player {
public:
    // The keys of each tick from the start to the goal; empty if none were found. The most promising game is always
    // played on first: the one that has come farthest in the least time.
    std::vector<Keys> plan() {
        add(-1, {}, std::make_shared<Jumpspiel>());
        while (!open_.empty()) {
            const Open best = open_.top();
            open_.pop();
            for (const Keys& keys : {Keys{key::right}, Keys{key::right, key::space}, Keys{key::space}, Keys{},
                                     Keys{key::left, key::space}, Keys{key::left}}) {
                auto game = std::make_shared<Jumpspiel>(*best.game);
                for (int i = 0; i < stretch && game->TotZaehler == 0; ++i) game->Tick(pressed(keys), chance_);
                if (game->TotZaehler > 0 || !isNew(*game, best.node)) continue;
                add(best.node, keys, game);
                if (game->SiegZaehler > 0) return path();
            }
        }
        return {};
    }

private:
    static constexpr int stretch = 8;  // ticks for which keys are held

    struct Node {
        int parent;
        int depth;
        Keys keys;
    };
    struct Open {
        float hope;
        int node;
        std::shared_ptr<Jumpspiel> game;
        bool operator<(const Open& other) const { return hope < other.hope; }
    };

    void add(int parent, const Keys& keys, std::shared_ptr<Jumpspiel> game) {
        const int depth = parent < 0 ? 0 : at(parent).depth + 1;
        nodes_.push_back({parent, depth, keys});
        const float hope = game->SpielerX - 2.0F * static_cast<float>(stretch * depth);
        open_.push({hope, static_cast<int>(nodes_.size()) - 1, std::move(game)});
    }

    // A place at a time, in coarse steps: what did not lead on from there need not be tried again.
    bool isNew(const Jumpspiel& game, int parent) {
        return seen_
            .insert({static_cast<int>(game.SpielerX) / 12, static_cast<int>(game.SpielerY) / 12,
                     at(parent).depth / 2, game.AmBoden, game.SpielerVY > 0})
            .second;
    }

    std::vector<Keys> path() const {
        std::vector<Keys> keys;
        for (int i = static_cast<int>(nodes_.size()) - 1; at(i).parent >= 0; i = at(i).parent)
            keys.insert(keys.end(), stretch, at(i).keys);
        std::reverse(keys.begin(), keys.end());
        return keys;
    }
    const Node& at(int i) const { return nodes_[static_cast<std::size_t>(i)]; }

    Random chance_{1};
    std::vector<Node> nodes_;
    std::priority_queue<Open> open_;
    std::set<std::tuple<int, int, int, int, bool>> seen_;
};

}  // namespace zentrox::test
