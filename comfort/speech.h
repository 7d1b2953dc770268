// For who hears better than sees: what is shown, and what the pointer is over, goes to the speech of the machine or
// to the clipboard, for a screen reader that watches it.
#pragma once

#include "comfort/comforts.h"

namespace zentrox {

class Speech : public Beobachter {
public:
    // Must be outlived by the comforts, whose observers it joins.
    explicit Speech(Comforts& comforts);
    Speech(const Speech&) = delete;
    Speech& operator=(const Speech&) = delete;

    void Öffnet(Raumfenster& /*room*/) override { open_ = true; }
    void Schließt() override { open_ = false; }
    void Zeigt(TextView text) override { say(text); }
    void Gelesen() override { hush(); }
    void Fragt(const std::vector<Text>& texts) override;
    void Gewählt(int /*option*/) override { hush(); }

private:
    // How the settings count it.
    enum Way { none = 0, aloud = 1, clipboard = 2 };

    void apply();
    void say(TextView text);
    void hush();
    void lookUnderPointer();
    // What the pointer is over, for the player; empty for nothing.
    Text underPointer() const;

    Comforts& comforts_;
    Timer look_;
    bool open_ = false;
    bool speaking_ = false;
    bool works_ = true;  // the machine has speech
    Text under_;
};

}  // namespace zentrox
