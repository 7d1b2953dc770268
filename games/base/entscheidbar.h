// A game that somebody can bring to its end without playing it: a walk that must not hang on chance.
#pragma once

namespace zentrox {

class Entscheidbar {
public:
    virtual ~Entscheidbar() = default;
    // The game goes to its end as if it had just been won or lost; its own closing steps still run. False, and
    // nothing happens, as long as it has not begun and once it is decided.
    virtual bool Entscheiden(bool sieg) = 0;
    // What a person does to leave a game whose closing steps go on for ever; nothing for one that ends by itself.
    virtual void Verlassen() {}
};

}  // namespace zentrox
