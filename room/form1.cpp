#include "room/form1.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/files/raumdatei.h"
#include "engine/interpreter/sprung.h"
#include "engine/language/directories.h"
#include "engine/state/felder.h"
#include "engine/state/mangel.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr Size kleinstes{640, 483};
constexpr Size ansicht{640, 480};
constexpr Size rahmen{641, 481};
constexpr Size saubereAnsicht{643, 486};
constexpr Rect anfangPicture5{32, 16, 73, 57};
constexpr Colour gelb{255, 255, 0};
constexpr Colour blau{0, 0, 255};

constexpr Milliseconds zeigerTakt = 300;
constexpr Milliseconds musikTakt = 500;
constexpr int striche = 1001;
constexpr double strichfarben = 1231312312;

}  // namespace

Form1::Form1(Platform& platform, Zustand& zustand, Medien& medien, const Spieltabelle& spiele, Text kommandozeile,
             Beobachter& beobachter, Speicherwart& speicherwart)
    : Window(platform, "Form1", zustand.Titel.Name, kleinstes, Frame::sizable),
      platform_(platform),
      z_(zustand),
      medien_(medien),
      kommandozeile_(std::move(kommandozeile)),
      beobachter_(beobachter),
      speicherwart_(speicherwart),
      interpreter_(platform, zustand, medien, *this, spiele, beobachter),
      Hintergrund(platform.fonts, &root(), {{0, 0}, kleinstes}),
      Frame1(&root(), {{0, 0}, rahmen}),
      Picture1(platform.fonts, &Frame1, {{0, 0}, ansicht}, gelb),
      Picture2(platform.fonts, {1, 1}),
      Picture3(platform.fonts, saubereAnsicht),
      Picture5(platform.fonts, anfangPicture5.size(), blau),
      Timer1(platform.queue, zeigerTakt, true, [this] { zeiger_.Takt(); }),
      RM(platform.queue, musikTakt, false, [this] { medien_.SongPrüfen(); }),
      CountDown(platform.queue, 0, false, [this] { CountDown_Timer(); }),
      zeiger_(*this, platform, zustand),
      leiste_(platform, zustand, Picture1, Picture3, Picture5),
      aufschub_(zustand) {
    minimum = kleinstes;
    Hintergrund.name = "Hintergrund";
    Picture1.name = "Picture1";
    Hintergrund.onMove = [this](const PointerEvent&) { Hintergrund_MouseMove(); };
    Picture1.onDown = [this](const PointerEvent& e) { Picture1_MouseDown(e.button, e.x, e.y); };
    Picture1.onMove = [this](const PointerEvent& e) { Picture1_MouseMove(e.x, e.y); };
    Picture1.onUp = [this](const PointerEvent& e) { Picture1_MouseUp(e.button, e.x, e.y); };
}

void Form1::Zeigen() {
    try {
        Form_Load();
        weiterlaufen([this] {
            beobachter_.Öffnet(*this);
            Lade(z_.PfadRooms + ersterRaum());
        });
    } catch (const DataError& fehler) {
        // What can't be gone on from ends in the menu.
        try {
            showMessageBox(platform_, {"Zentrox", fehler.message(), MessageBox::Icon::critical});
        } catch (const ProgramEnd&) {
            Queue::endProgram(1);  // the box was cut off with the process
        }
    }
    Form_QueryUnload(1);
}

void Form1::weiterlaufen(std::function<void()> tun) {
    for (;;) {
        try {
            tun();
            platform_.queue.waitUntil("Form1", [] { return false; });
        } catch (Sprung& sprung) {
            tun = std::move(sprung.weiter);
        }
        aufgeben();
    }
}

// As it is between two scripts, whatever stood on the picture.
void Form1::aufgeben() {
    platform_.queue.disownHeld();
    interpreter_.Aufgeben();
    aufschub_.Verwerfen();
    leiste_.Weg();
    medien_.StimmeFrei();
    medien_.VideoStop();
    filmLäuft_ = false;
    textband_.reset();
    AuswahlZeile = -1;
    Picture1.setAutoRedraw(true);
    Picture1.setPicture(Picture3.image());
    CountDown.setEnabled(true);
    zeiger_.Standard();
    z_.ZeigerLetzter = -1;
}

void Form1::Form_Load() {
    platform_.random.reseed(platform_.backend.seed());
    z_.PI = 4.0F * std::atan(1.0F);
    // Started without the menu: everything lies in the program's directory.
    if (z_.PfadSounds.empty()) PfadeSetzen(z_, platform_.files.programDirectory());
    z_.GezogenerGegenstand = -1;
    z_.InventarLetzter = -1;
    VersteckeLeiste();
    AuswahlZeile = -1;
    tonStarten();
    open();
}

void Form1::tonStarten() {
    const Tonstart ergebnis = medien_.Start();
    if (ergebnis == Tonstart::gelungen) return;
    ThrowError(TonstartMeldung(ergebnis));
    if (ergebnis == Tonstart::keinSystem) Queue::endProgram(1);
}

void Form1::ThrowError(TextView Message) {
    const int code = medien_.FehlerCode();
    const Text text =
        Text(Message) + "\r\n\r\nError Code : " + std::to_string(code) + "\r\n" + BassFehlerText(code);
    showMessageBox(platform_, {"Error", text, MessageBox::Icon::critical});
}

Text Form1::ersterRaum() const {
    const Text* const übergeben = std::get_if<Text>(&z_.Übergabe);
    if (übergeben != nullptr && !übergeben->empty()) return Dateiname(*übergeben);
    if (!kommandozeile_.empty()) return Dateiname(kommandozeile_);
    return "Start.lsd";
}

// Rooms that lead on by their start scripts follow each other here and do not stand inside each other. A room that
// can't be read leaves the player where they are.
void Form1::Lade(TextView Name) {
    auto weiter = betreten(readRoom(platform_.files, Name), Name);
    while (weiter) {
        Raum raum;
        try {
            raum = readRoom(platform_.files, *weiter);
        } catch (const DataError& fehler) {
            return interpreter_.ImRaumBleiben(fehler);
        }
        weiter = betreten(std::move(raum), *weiter);
    }
}

std::optional<Text> Form1::betreten(Raum raum, TextView Name) {
    CountDown.setEnabled(false);
    CountDown.setPeriod(0);
    CountDown.setEnabled(true);
    aufschub_.RaumBetreten();
    z_.RaumDatei = Dateiname(Name);
    const Queue::Reason grund(platform_.queue, "Lade " + z_.RaumDatei);
    z_.AktuellerRaum = std::move(raum);
    z_.AktuellerRaum.Bild = Trim(z_.AktuellerRaum.Bild);
    raumbildLaden();
    beobachter_.Betritt(z_.RaumDatei);
    return interpreter_.RaumStarten();
}

void Form1::raumbildLaden() {
    try {
        BildLaden(z_.PfadGraphics + Dateiname(z_.AktuellerRaum.Bild));
    } catch (const DataError& fehler) {
        // Another room's picture would lie about where one is.
        for (Surface* const fläche : {&Picture1, &Picture2, &Picture3}) fläche->removePicture();
        BildLaden("\\");
        melden(fehler);
    }
}

void Form1::melden(const DataError& fehler) {
    MangelMelden(platform_, z_, fehler.message(), "Raum " + z_.RaumDatei);
}

void Form1::Form_Resize() {
    const int W = client().w;
    const int H = client().h;
    Frame1.moveTo({W / 2 - Frame1.width() / 2, H / 2 - Frame1.height() / 2});
    Hintergrund.resize({W, H});
    Hintergrund.setBack(black);
    Hintergrund.clear();
    Random& zufall = platform_.random;
    for (int i = 0; i < striche; ++i) {
        const double r1 = zufall.draw();
        const double r2 = zufall.draw();
        const double r3 = zufall.draw();
        const double r4 = zufall.draw();
        const auto farbe = static_cast<std::uint32_t>(Runden(zufall.draw() * strichfarben));
        const Colour bgr{static_cast<int>(farbe & 255U), static_cast<int>(farbe >> 8U & 255U),
                         static_cast<int>(farbe >> 16U & 255U)};
        Hintergrund.line({Runden(r1 * W), Runden(r2 * H)}, {Runden(r3 * W), Runden(r4 * H)}, bgr);
    }
}

namespace {

// Keys that are held with others, by their virtual codes: beside those with names Print, Super, and the locks.
bool istUmschalter(int code) {
    constexpr std::array alle{key::shift, key::control, key::alt, key::capsLock, 44, 91, 92, 144, 145};
    return std::find(alle.begin(), alle.end(), code) != alle.end();
}

}  // namespace

// A modifier is a key of its own only if it is let go with no other one in between.
void Form1::onKeyDown(int code) {
    alleiniger_ = istUmschalter(code) && umschalter_.empty() ? code : 0;
    if (!istUmschalter(code)) return Form_KeyDown(code);
    umschalter_.insert(code);
}

void Form1::onKeyUp(int code) {
    umschalter_.erase(code);
    z_.TastenCode = code == alleiniger_ ? static_cast<std::int16_t>(code) : std::int16_t{0};
    alleiniger_ = 0;
}

void Form1::Form_KeyDown(int code) {
    z_.TastenCode = static_cast<std::int16_t>(code);
    if (z_.SkriptLäuft) return;
    const bool lädtSkript = code == key::f1 || code == key::f2;
    if (lädtSkript && aufschub_.Halten([this, code] { Form_KeyDown(code); })) return;
    if (code == key::f2 || code == key::f1) {
        z_.SkriptLäuft = true;
        if (code == key::f2) SpielSpeichern();
        if (code == key::f1) SpielLaden();
        z_.SkriptLäuft = false;
    } else if (code == key::f7) {
        showMessageBox(platform_, {"Zentrox", std::to_string(z_.BösePunkte), MessageBox::Icon::none});
    } else if (code == key::space && !z_.LeisteBewegt) {
        z_.LeisteGewünscht = !z_.LeisteGewünscht;
        if (z_.LeisteGewünscht) {
            ZeigeLeiste();
        } else {
            VersteckeLeiste();
        }
        aufschub_.Nachholen();
    }
}

void Form1::onHeldLost() {
    z_.TastenCode = 0;
    z_.MausTaste = 0;
    umschalter_.clear();
    alleiniger_ = 0;
}

// Ticks whose runs all wait inside each other are left out before the stack is full.
void Form1::CountDown_Timer() {
    if (aufschub_.Halten([this] { CountDown_Timer(); }, true) || !interpreter_.PlatzFürLauf()) return;
    interpreter_.SkriptAusführen(z_.AktuellerRaum.CountDownSkript, -1, "");
}

void Form1::Form_QueryUnload(int status) {
    medien_.Ende();
    medien_.SongStop();
    medien_.VideoStop();
    platform_.backend.restart();
    Queue::endProgram(status);
}

}  // namespace zentrox
