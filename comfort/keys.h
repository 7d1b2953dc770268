// The keys of the comforts: what each does, and how it is told of to the player. The game never sees them.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/values/text.h"
#include "platform/window/backend.h"

namespace zentrox {

struct ComfortKey {
    int code = 0;  // virtual
    bool control = false;
    TextView label;    // what stands on the key, for the player
    TextView does;     // for the player
    TextView group{};  // the title that it stands under there; empty: among those that work everywhere
    std::function<void()> down;
    std::function<void()> up{};            // if it shall be known when the key is let go
    bool nests = false;                    // it works while another one of these keys has opened a window, too
    std::function<bool()> available = {};  // where it is false, the key is the game's
};

class ComfortKeys {
public:
    void add(ComfortKey key) { keys_.push_back(std::move(key)); }
    const std::vector<ComfortKey>& all() const { return keys_; }

    // True if the input is one of these keys, which has then been done.
    bool take(const Input& input);
    // A window that a key has opened stands.
    bool busy() const { return busy_; }
    // Does something as a key does that opens a window.
    void during(const std::function<void()>& work);

private:
    bool press(const Input& input);
    bool release(const Input& input);

    std::vector<ComfortKey> keys_;
    std::optional<std::size_t> held_;  // the one that is down; its repeats and what it types belong to it
    bool busy_ = false;
};

}  // namespace zentrox
