// Text and talk: the history, the ways through texts, and what is told in another way.
#pragma once

#include "comfort/captions.h"
#include "comfort/history.h"
#include "comfort/reader.h"
#include "comfort/speech.h"

namespace zentrox {

class Talk : private Beobachter {
public:
    // Must be outlived by the comforts; `history` must outlive it.
    Talk(Comforts& comforts, const History& history);

private:
    void Öffnet(Raumfenster& /*room*/) override { open_ = true; }
    void Schließt() override { open_ = false; }

    bool wheels(const Input& input);
    void showHistory();
    bool inRoom() const;

    Comforts& comforts_;
    const History& history_;
    Reader reader_;
    Speech speech_;
    Captions captions_;
    bool open_ = false;
};

}  // namespace zentrox
