// One observer that hands on to several.
#pragma once

#include <functional>
#include <vector>

#include "engine/interpreter/beobachter.h"

namespace zentrox {

class Verteiler : public Beobachter {
public:
    // They must outlive it; told in this order.
    void Dazu(Beobachter& beobachter) { alle_.push_back(&beobachter); }

    std::size_t Beginnt(const Skript& skript, TextView raum, int objekt) override {
        std::vector<std::size_t> nummern;
        for (Beobachter* const einer : alle_) nummern.push_back(einer->Beginnt(skript, raum, objekt));
        offene_.push_back(std::move(nummern));
        return offene_.size() - 1;
    }
    void Anweisung(std::size_t nummer, std::int32_t zeiger) override {
        for (std::size_t i = 0; i < alle_.size(); ++i) alle_[i]->Anweisung(offene_[nummer][i], zeiger);
    }
    void Endet(std::size_t nummer) override {
        const std::vector<std::size_t> nummern = std::move(offene_[nummer]);
        offene_.resize(nummer);
        for (std::size_t i = 0; i < alle_.size(); ++i) alle_[i]->Endet(nummern[i]);
    }
    void Ruht() override {
        offene_.clear();
        allen(&Beobachter::Ruht);
    }
    void Öffnet(Raumfenster& raum) override { allen(&Beobachter::Öffnet, raum); }
    void Schließt() override { allen(&Beobachter::Schließt); }
    void Betritt(TextView raum) override { allen(&Beobachter::Betritt, raum); }
    void Handelt(int objekt, int aktion, TextView gegenstand) override {
        allen(&Beobachter::Handelt, objekt, aktion, gegenstand);
    }
    void HandeltInLeiste(TextView gegenstand, int aktion, TextView mit) override {
        allen(&Beobachter::HandeltInLeiste, gegenstand, aktion, mit);
    }
    void Zeigt(TextView text) override { allen(&Beobachter::Zeigt, text); }
    void Gelesen() override { allen(&Beobachter::Gelesen); }
    void Fragt(const std::vector<Text>& texte) override { allen(&Beobachter::Fragt, texte); }
    void Gewählt(int option) override { allen(&Beobachter::Gewählt, option); }
    void Klingt(TextView datei) override { allen(&Beobachter::Klingt, datei); }
    void Film(TextView datei) override { allen(&Beobachter::Film, datei); }
    void FilmEndet() override { allen(&Beobachter::FilmEndet); }
    void SpielBeginnt(TextView name) override { allen(&Beobachter::SpielBeginnt, name); }
    void SpielEndet(TextView name, bool sieg) override { allen(&Beobachter::SpielEndet, name, sieg); }

private:
    template <class Hook, class... Werte>
    void allen(Hook hook, Werte&&... werte) {
        for (Beobachter* const einer : alle_) (einer->*hook)(werte...);
    }

    std::vector<Beobachter*> alle_;
    std::vector<std::vector<std::size_t>> offene_;  // what each of them calls the runs that stand inside each other
};

}  // namespace zentrox
