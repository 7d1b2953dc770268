// A room window without a window: it notes what the interpreter asks of it.
#pragma once

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "engine/interpreter/raumfenster.h"
#include "engine/state/zustand.h"
#include "platform/window/queue.h"

namespace zentrox::test {

class FakeRaumfenster : public Raumfenster {
public:
    std::vector<Text> notes;
    std::int64_t countDown = 0;
    bool countDownOn = false;
    Text pointer = "arrow";  // "arrow", "own", or with a file while that is new: "own taste1.ico"

    // What else happens in a call, where a test wants more than the note.
    std::function<void(TextView)> onLade, onZeigText;
    std::function<void()> onWegText, onVersteckeLeiste, onFilmBild;
    std::function<bool()> onSpielLaden;

    void Lade(TextView Name) override {
        note("Lade", Name);
        if (onLade) onLade(Name);
    }
    void BildLaden(TextView Bild) override { note("BildLaden", Bild); }
    void ZeigText(TextView Text) override {
        note("ZeigText", Text);
        if (onZeigText) onZeigText(Text);
    }
    void WegText(TextView Text) override {
        note("WegText", Text);
        if (onWegText) onWegText();
    }
    // 16 pixels a line.
    int TextHöhe(TextView Text) override {
        return 16 * (1 + static_cast<int>(std::count(Text.begin(), Text.end(), '\n')));
    }
    void ZoomIN(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) override {
        note("ZoomIN", numbers({FX1, FY1, FX2, FY2}));
    }
    void ZoomOUT(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) override {
        note("ZoomOUT", numbers({FX1, FY1, FX2, FY2}));
    }
    void BlendWeiß() override { note("BlendWeiss"); }
    void BlendWeißOut() override { note("BlendWeissOut"); }
    void RahmenAuf() override { note("RahmenAuf"); }
    void RahmenZu() override { note("RahmenZu"); }
    void Portrait(bool links, TextView Bild) override { note(links ? "Portrait left" : "Portrait right", Bild); }
    void GegenständeLaden() override { note("GegenstaendeLaden"); }
    void VersteckeLeiste() override {
        note("VersteckeLeiste");
        if (onVersteckeLeiste) onVersteckeLeiste();
    }
    void ZeigerAuffrischen() override { note("ZeigerAuffrischen"); }
    void ZeigerLaden(TextView Pfad) override {
        pointer = "own " + Text(Pfad);
        note("ZeigerLaden", Pfad);
    }
    void ZeigerEigen() override { pointer = "own"; }
    void ZeigerStandard() override { pointer = "arrow"; }
    void CountDownAn(bool an) override {
        countDownOn = an;
        note(an ? "CountDown on" : "CountDown off");
    }
    void CountDownPeriode(std::int64_t ms) override {
        countDown = ms;
        note("CountDown", std::to_string(ms));
    }
    std::int64_t CountDownPeriode() const override { return countDown; }
    void FilmBild() override {
        note("FilmBild");
        if (onFilmBild) onFilmBild();
    }
    void FilmEnde() override { note("FilmEnde"); }
    void Abspann() override { note("Abspann"); }
    bool SpielLaden() override {
        note("SpielLaden");
        return onSpielLaden && onSpielLaden();
    }
    void SpielSpeichern() override { note("SpielSpeichern"); }
    [[noreturn]] void Entladen() override {
        note("Entladen");
        Queue::endProgram();
    }

    // The notes since the last call, without those of the opening and closing steps of a run.
    std::vector<Text> commandNotes() {
        std::vector<Text> kept;
        for (const Text& n : std::exchange(notes, {}))
            if (n != "CountDown on" && n != "CountDown off" && n != "VersteckeLeiste" && n != "ZeigerAuffrischen" &&
                !n.starts_with("ZeigerLaden"))
                kept.push_back(n);
        return kept;
    }

private:
    void note(TextView what, TextView with = {}) {
        notes.push_back(with.empty() ? Text(what) : Text(what) + " " + Text(with));
    }
    static Text numbers(const std::vector<std::int32_t>& values) {
        Text all;
        for (const auto value : values) all += (all.empty() ? "" : " ") + std::to_string(value);
        return all;
    }
};

}  // namespace zentrox::test
