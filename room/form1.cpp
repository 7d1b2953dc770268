#include "room/form1.h"

#include <cmath>

#include "engine/files/raumdatei.h"
#include "engine/language/directories.h"
#include "engine/state/felder.h"
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
             Beobachter* beobachter)
    : Window(platform, "Form1", zustand.Titel.Name, kleinstes, Frame::sizable),
      platform_(platform),
      z_(zustand),
      medien_(medien),
      kommandozeile_(std::move(kommandozeile)),
      interpreter_(platform, zustand, medien, *this, spiele, beobachter),
      Hintergrund(platform.fonts, &root(), {{0, 0}, kleinstes}),
      Frame1(&root(), {{0, 0}, rahmen}),
      Picture1(platform.fonts, &Frame1, {{0, 0}, ansicht}, gelb),
      Picture2(platform.fonts, {1, 1}),
      Picture3(platform.fonts, saubereAnsicht),
      Picture4(platform.fonts, {ansicht.w, 1}),
      Picture5(platform.fonts, anfangPicture5.size(), blau),
      Timer1(platform.queue, zeigerTakt, true, [this] { Timer1_Timer(); }),
      RM(platform.queue, musikTakt, false, [this] { medien_.SongPrüfen(); }),
      CountDown(platform.queue, 0, false, [this] { CountDown_Timer(); }) {
    minimum = kleinstes;
    Hintergrund.name = "Hintergrund";
    Picture1.name = "Picture1";
    Hintergrund.onMove = [this](const PointerEvent&) { Hintergrund_MouseMove(); };
    Picture1.onDown = [this](const PointerEvent& e) { Picture1_MouseDown(e.button, e.x, e.y); };
    Picture1.onMove = [this](const PointerEvent& e) { Picture1_MouseMove(e.x, e.y); };
    Picture1.onUp = [this](const PointerEvent& e) { Picture1_MouseUp(e.button, e.x, e.y); };
}

void Form1::Zeigen() {
    Form_Load();
    platform_.queue.waitUntil("Form1", [] { return false; });
    Queue::endProgram();
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
    Lade(z_.PfadRooms + ersterRaum());
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

void Form1::Lade(TextView Name) {
    CountDown.setEnabled(false);
    CountDown.setPeriod(0);
    CountDown.setEnabled(true);
    z_.RaumDatei = Dateiname(Name);
    const Queue::Reason grund(platform_.queue, "Lade " + z_.RaumDatei);
    Raum& raum = z_.AktuellerRaum;
    raum = readRoom(platform_.files, Name);
    raum.Bild = Trim(raum.Bild);
    BildLaden(z_.PfadGraphics + Dateiname(raum.Bild));
    interpreter_.SkriptAusführen(raum.Startskript, -1, "");
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

void Form1::Form_KeyDown(int code) {
    z_.TastenCode = static_cast<std::int16_t>(code);
    if (z_.SkriptLäuft) return;
    const bool lädtSkript = code == key::f1 || code == key::f2;
    if (lädtSkript && aufschieben(Ereignis::taste, [this, code] { Form_KeyDown(code); })) return;
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
        nachholen();
    }
}

void Form1::onHeldLost() {
    z_.TastenCode = 0;
    z_.MausTaste = 0;
}

void Form1::CountDown_Timer() {
    if (aufschieben(Ereignis::countDown, [this] { CountDown_Timer(); })) return;
    interpreter_.SkriptAusführen(z_.AktuellerRaum.CountDownSkript, -1, "");
}

bool Form1::aufschieben(Ereignis was, std::function<void()> nachher) {
    if (!z_.LeisteBewegt || z_.SkriptLäuft) return false;
    for (const auto& [schon, handlung] : aufgeschoben_)
        if (schon == was) return true;
    aufgeschoben_.emplace_back(was, std::move(nachher));
    return true;
}

void Form1::nachholen() {
    while (!aufgeschoben_.empty() && !z_.LeisteBewegt) {
        const auto handlung = std::move(aufgeschoben_.front().second);
        aufgeschoben_.erase(aufgeschoben_.begin());
        handlung();
    }
}

void Form1::Form_QueryUnload() {
    medien_.Ende();
    medien_.SongStop();
    medien_.VideoStop();
    platform_.backend.restart();
    Queue::endProgram();
}

}  // namespace zentrox
