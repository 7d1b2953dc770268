// The room window: the one window in which the adventure is played. It owns the picture surfaces, the three timers
// of the room view and the keyboard, and it opens the first room. All that follows is an answer to an event.
#pragma once

#include <optional>
#include <set>
#include <vector>

#include "engine/interpreter/interpreter.h"
#include "media/medien.h"
#include "platform/platform.h"
#include "platform/values/error.h"
#include "platform/window/surface.h"
#include "room/aufschub.h"
#include "room/leiste.h"
#include "room/zeiger.h"
#include "saves/saves.h"

namespace zentrox {

class Form1 : public Window, public Raumfenster {
public:
    // All of these must outlive it. `kommandozeile` names the first room, if it is not empty.
    Form1(Platform& platform, Zustand& zustand, Medien& medien, const Spieltabelle& spiele, Text kommandozeile,
          Beobachter& beobachter, Speicherwart& speicherwart);
    ~Form1() override { beobachter_.Schließt(); }

    // Starts sound, shows the window, enters the first room and serves the queue from then on. Leaves only by the
    // end of the process.
    [[noreturn]] void Zeigen();

    void Lade(TextView Name) override;
    void BildLaden(TextView Bild) override;
    void ZeigText(TextView argument) override;
    void WegText(TextView argument) override;
    bool TextSteht() const override { return textband_.has_value(); }
    void TextSetzen(TextView argument) override;
    int TextHöhe(TextView text) override;
    void ZoomIN(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) override;
    void ZoomOUT(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) override;
    void BlendWeiß() override;
    void BlendWeißOut() override;
    void RahmenAuf() override;
    void RahmenZu() override;
    void Portrait(bool links, TextView Bild) override;
    void FilmBild() override;
    void FilmEnde() override;
    void GegenständeLaden() override { leiste_.GegenständeLaden(); }
    void ZeigeLeiste() { leiste_.Zeige(); }
    void VersteckeLeiste() override { leiste_.Verstecke(); }
    void ZeigerAuffrischen() override;
    void ZeigerLaden(TextView Pfad) override { zeiger_.Laden(Pfad); }
    void ZeigerEigen() override { zeiger_.Eigen(); }
    void ZeigerStandard() override { zeiger_.Standard(); }
    void CountDownAn(bool an) override { CountDown.setEnabled(an); }
    void CountDownPeriode(std::int64_t ms) override { CountDown.setPeriod(ms); }
    std::int64_t CountDownPeriode() const override { return CountDown.period(); }
    void Abspann() override;
    bool SpielLaden() override;
    void SpielSpeichern() override;
    [[noreturn]] void Entladen() override { Form_QueryUnload(); }

private:
    // --- events
    void onResize() override { Form_Resize(); }
    void onOpen() override { Form_Resize(); }
    bool onQueryClose() override { Form_QueryUnload(); }
    void onKeyDown(int code) override;
    void onKeyUp(int code) override;
    void onHeldLost() override;

    // A room's file has been read: shows it and runs its `Startskript`. Gives the room that this leads on to.
    std::optional<Text> betreten(Raum raum, TextView Name);
    void raumbildLaden();
    // Tells of missing data, where no script's command asked for it.
    void melden(const DataError& fehler);

    // Goes on from where a wait was left by a `Sprung`, until the process ends.
    [[noreturn]] void weiterlaufen(std::function<void()> tun);
    void aufgeben();

    void Form_Load();
    void Form_Resize();
    void Form_KeyDown(int code);
    [[noreturn]] void Form_QueryUnload(int status = 0);
    void CountDown_Timer();
    void Hintergrund_MouseMove();
    void Picture1_MouseDown(Button Taste, float X, float Y);
    void Picture1_MouseMove(float X, float Y);
    void Picture1_MouseUp(Button Taste, float X, float Y);

    // --- start
    void tonStarten();
    void ThrowError(TextView Message);
    Text ersterRaum() const;

    // --- the mouse
    void bewegtInLeiste(int X, int Y);
    void bewegtImRaum(int X, int Y);
    void bewegtInAuswahl(float Y);
    void auswahlWählen(float Y);
    void invertiere(int zeile);
    // The choice line at a height, -1 for none.
    int auswahlZeileBei(float Y) const;
    void losInLeiste(int slot);
    void losImRaum(int X, int Y);
    // What a release in the room does later acts with the item that was held then.
    void losImRaumNachher(int taste, int X, int Y, const Text& gehalten);

    // --- texts
    // The font of the texts; the surface has it for the length of a scope.
    class Textschrift;
    FontSpec textschrift() const;
    // A text with all its line ends: as it stands, or broken so that it fits in the font that the surface has.
    Text gesetzt(TextView argument) const;
    void umrandeText(TextView text);

    // --- transitions
    struct Region {
        int X1, Y1, X2, Y2;
    };
    void blendRunde(int grau);
    void blenden(bool hinein);
    Region zoomRegion(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) const;
    void zoomen(const Region& region, bool hinein);
    // The clean view takes over what stands on `Picture1`.
    void sichern() { Picture3.setPicture(Picture1.image()); }

    Platform& platform_;
    Zustand& z_;
    Medien& medien_;
    Text kommandozeile_;
    Beobachter& beobachter_;
    Speicherwart& speicherwart_;
    Interpreter interpreter_;

    Surface Hintergrund;
    Panel Frame1;
    Surface Picture1;
    Surface Picture2;
    Surface Picture3;
    Surface Picture5;
    Timer Timer1;
    Timer RM;
    Timer CountDown;

    int AuswahlZeile = -1;
    Zeiger zeiger_;
    Leiste leiste_;
    Aufschub aufschub_;
    bool druckVorLeiste_ = false;   // the button went down before the bar stood
    std::set<int> umschalter_;      // the modifier keys that are held
    int alleiniger_ = 0;            // of these the one that no other key has joined
    std::optional<Rect> textband_;  // where the text stands that was shown last
    int textProzent_ = 100;         // the size of its letters
    bool filmLäuft_ = false;
};

}  // namespace zentrox
