// The room window: the one window in which the adventure is played. It owns the picture surfaces, the three timers
// of the room view and the keyboard, and it opens the first room. All that follows is an answer to an event.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <vector>

#include "engine/interpreter/interpreter.h"
#include "media/medien.h"
#include "platform/platform.h"
#include "platform/window/surface.h"

namespace zentrox {

class Form1 : public Window, public Raumfenster {
public:
    // All of these must outlive it. `kommandozeile` names the first room, if it is not empty; `beobachter` may be
    // null.
    Form1(Platform& platform, Zustand& zustand, Medien& medien, const Spieltabelle& spiele, Text kommandozeile,
          Beobachter* beobachter = nullptr);

    // Starts sound, shows the window, opens the first room and serves the queue from then on. Leaves only by the
    // end of the process.
    [[noreturn]] void Zeigen();

    void Lade(TextView Name) override;
    void BildLaden(TextView Bild) override;
    void ZeigText(TextView argument) override;
    void WegText(TextView argument) override;
    int TextHöhe(TextView text) override { return Picture1.textHeight(text); }
    void ZoomIN(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) override;
    void ZoomOUT(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) override;
    void BlendWeiß() override;
    void BlendWeißOut() override;
    void RahmenAuf() override;
    void RahmenZu() override;
    void Portrait(bool links, TextView Bild) override;
    void FilmBild() override;
    void FilmEnde() override;
    void GegenständeLaden() override;
    void ZeigeLeiste();
    void VersteckeLeiste() override;
    void ZeigerAuffrischen() override;
    void ZeigerLaden(TextView Pfad) override;
    void ZeigerEigen() override;
    void ZeigerStandard() override;
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
    void onKeyDown(int code) override { Form_KeyDown(code); }
    void onKeyUp(int /*code*/) override { z_.TastenCode = 0; }
    void onHeldLost() override;

    void Form_Load();
    void Form_Resize();
    void Form_KeyDown(int code);
    [[noreturn]] void Form_QueryUnload();
    void CountDown_Timer();
    void Timer1_Timer();
    void Hintergrund_MouseMove();
    void Picture1_MouseDown(Button Taste, float X, float Y);
    void Picture1_MouseMove(float X, float Y);
    void Picture1_MouseUp(Button Taste, float X, float Y);

    // --- start
    void tonStarten();
    void ThrowError(TextView Message);
    Text ersterRaum() const;

    // --- pointer
    enum class Zeigerart { pfeil, frage, eigen };
    Zeigerart zeigerart() const;
    void zeigerFrage();
    // What shows over nothing: the held item, or the arrow.
    void zeigerÜberNichts();
    void zeigerHeiß();
    void zeigerFürObjekt(const RaumObjekt& objekt);
    void bewegtInLeiste(int X, int Y);
    void bewegtImRaum(int X, int Y);
    void bewegtInAuswahl(float Y);
    void auswahlWählen(float Y);
    void invertiere(int zeile);
    // The choice line at a height, -1 for none.
    int auswahlZeileBei(float Y) const;
    void losInLeiste(int slot);
    void losImRaum(int X, int Y);
    bool inLeiste(int Y) const;
    int leisteOben() const { return Picture1.height() - z_.LeisteHöhe; }
    // The slot of `Inventar` under a point of the bar, -1 for an empty cell.
    int slotBei(int X, int Y) const;
    Text gegenstandName(int slot) const;
    Text cursor(TextView datei) const { return z_.PfadCursors + Text(datei); }

    // --- bar
    float leisteVolleHöhe() const;
    void leisteStrich();
    void gegenstandZeichnen(int slot);

    // An event that would start a script while the bar slides waits until the slide is done. One of each kind.
    enum class Ereignis { losgelassen, countDown, taste };
    bool aufschieben(Ereignis was, std::function<void()> nachher);
    void nachholen();

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
    Interpreter interpreter_;

    Surface Hintergrund;
    Panel Frame1;
    Surface Picture1;
    Surface Picture2;
    Surface Picture3;
    Surface Picture4;
    Surface Picture5;
    Timer Timer1;
    Timer RM;
    Timer CountDown;

    int AuswahlZeile = -1;
    float LeisteVoll = 0;

    Text eigenerZeiger_;             // the icon loaded last, full path
    std::set<Text> geprüfteZeiger_;  // icons that are known to be sound
    std::vector<std::pair<Ereignis, std::function<void()>>> aufgeschoben_;
};

}  // namespace zentrox
