#include "room/abspann.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "engine/state/mangel.h"
#include "engine/state/schreibmaschine.h"
#include "engine/state/warten.h"
#include "platform/codec/pictures.h"

namespace zentrox {

namespace {

constexpr std::int32_t Tick = 16;  // milliseconds
constexpr int TicksProZeichen = 5;
constexpr int PixelProTick = 51;
constexpr std::size_t Nachlauf = 20;  // blanks behind a page
constexpr TextView Lied = "GMNUTRAC.MID";

struct Bildplatz {
    TextView datei;
    Point ort;  // on `Picture1`
};

// In the order in which the marks of the pages call them.
constexpr std::array Bilder{
    Bildplatz{"Titel.jpg", {0, 350}}, Bildplatz{"2.jpg", {470, 100}},
    Bildplatz{"k1.jpg", {530, 2}},    Bildplatz{"k2.jpg", {560, 30}},
    Bildplatz{"k3.jpg", {520, 60}},   Bildplatz{"k4.jpg", {570, 90}},
    Bildplatz{"k5.jpg", {525, 120}},  Bildplatz{"k6.jpg", {580, 150}},
    Bildplatz{"k7.jpg", {550, 180}},  Bildplatz{"Begeisterung.jpg", {338, 295}},
};

// A picture that appears pixel by pixel, in a random order.
class Auflösung {
public:
    // The picture is the one in `quelle`.
    void Vorbereiten(Surface& ziel, const Surface& quelle, Point ort, Random& zufall) {
        ort_ = ort;
        breite_ = quelle.width();
        ziel.outline(ort - Point{1, 1}, ort + Point{quelle.width(), quelle.height()}, black);
        pixel_.resize(static_cast<std::size_t>(quelle.width()) * static_cast<std::size_t>(quelle.height()));
        std::iota(pixel_.begin(), pixel_.end(), 0);
        mischen(zufall);
        nächstes_ = 0;
    }

    void Schritt(Surface& ziel, const Surface& quelle) {
        if (nächstes_ >= pixel_.size()) return;
        const std::size_t ende = std::min(nächstes_ + PixelProTick, pixel_.size());
        for (; nächstes_ < ende; ++nächstes_) {
            const int nummer = pixel_[nächstes_];
            const Point p{nummer % breite_, nummer / breite_};
            ziel.setPixel(ort_ + p, Colour(static_cast<std::uint32_t>(quelle.pixel(p))));
        }
        if (nächstes_ == pixel_.size()) ziel.copy(quelle.image(), quelle.image().bounds(), ort_);
    }

private:
    void mischen(Random& zufall) {
        const int anzahl = static_cast<int>(pixel_.size());
        if (anzahl == 0) return;
        const auto eines = [&] { return static_cast<std::size_t>(zufall.below(anzahl)); };
        for (std::int64_t i = 0; i <= 10 * static_cast<std::int64_t>(anzahl); ++i) {
            const std::size_t a = eines();
            std::swap(pixel_[a], pixel_[eines()]);
        }
    }

    std::vector<std::int32_t> pixel_;
    std::size_t nächstes_ = 0;
    Point ort_;
    int breite_ = 1;
};

// The run of all pages and pictures on the two surfaces.
class Ablauf {
public:
    Ablauf(Platform& platform, Zustand& z, Surface& ziel, Surface& quelle)
        : platform_(platform),
          z_(z),
          ziel_(ziel),
          quelle_(quelle),
          seiten_(AbspannTexte(z.BösePunkte, z.Titel)) {
        for (Text& seite : seiten_) seite.append(Nachlauf, ' ');
    }

    bool Fertig() const { return seite_ == seiten_.size(); }

    void Ticken() {
        if (++ticks_ >= TicksProZeichen) {
            ticks_ = 0;
            tippen();
        }
        auflösung_.Schritt(ziel_, quelle_);
    }

private:
    void tippen() {
        switch (maschine_.Schritt(ziel_, seiten_[seite_])) {
            case Schreibmaschine::Ereignis::nichts: return;
            case Schreibmaschine::Ereignis::marke: return bildVorbereiten();
            case Schreibmaschine::Ereignis::seitenende: ++seite_; return;
        }
    }

    void bildVorbereiten() {
        if (bild_ == Bilder.size()) return;
        const Bildplatz& platz = Bilder[bild_++];
        try {
            quelle_.takePicture(loadPicture(platform_.files, z_.PfadGraphics + Text(platz.datei)));
        } catch (const DataError& fehler) {
            return MangelMelden(platform_, z_, fehler.message(), "Abspann");
        }
        auflösung_.Vorbereiten(ziel_, quelle_, platz.ort, platform_.random);
    }

    Platform& platform_;
    Zustand& z_;
    Surface& ziel_;
    Surface& quelle_;
    std::vector<Text> seiten_;
    Schreibmaschine maschine_;
    Auflösung auflösung_;
    std::size_t seite_ = 0;
    std::size_t bild_ = 0;
    int ticks_ = 0;
};

void schriftSetzen(Surface& fläche, TextView familie, bool fett) {
    fläche.font.family = familie;
    fläche.font.bold = fett;
}

}  // namespace

void AbspannZeigen(Platform& platform, Zustand& z, Medien& medien, Surface& Picture1, Surface& Picture5,
                   Timer& RM) {
    const Queue::Reason grund(platform.queue, "Abspann");
    Ablauf ablauf(platform, z, Picture1, Picture5);
    medien.SongStart(z.PfadMusics + Text(Lied));
    RM.setEnabled(true);
    schriftSetzen(Picture1, "Fixedsys", true);
    Picture1.setBack(black);
    Picture1.clear();
    while (!ablauf.Fertig()) {
        ablauf.Ticken();
        WarteFrame(z, platform, Tick);
    }
    schriftSetzen(Picture1, "MS Sans Serif", false);
    RM.setEnabled(false);
    medien.SongStop();
}

}  // namespace zentrox
