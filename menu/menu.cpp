#include "menu/menu.h"

#include <cmath>

#include "engine/state/warten.h"
#include "menu/datensuche.h"
#include "menu/titelbild.h"
#include "menu/welle.h"
#include "platform/codec/pictures.h"
#include "platform/values/error.h"
#include "platform/values/keys.h"

namespace zentrox {

namespace {

constexpr Size Fläche{501, 397};  // pixels
constexpr Colour Gelb{255, 255, 0};
constexpr Colour Grün{0, 192, 0};
constexpr Colour Dunkelgrün{0, 128, 0};
constexpr int Zeilenmitte = 100;  // pixels; the lines are centred on it
constexpr int ErsteZeile = 40;
constexpr int Zeilenabstand = 50;
constexpr int Bonuszeile = 2;
constexpr int TicksProBild = 5;
constexpr std::int32_t Tick = 16;  // milliseconds
constexpr float Wellenschritt = 8;

constexpr std::array<TextView, 4> Hauptseite{"Spiel beginnen", "Altes Spiel laden", "Bonusmaterial",
                                             "Menü verlassen"_t};
constexpr std::array<TextView, 4> Bonusseite{"Videos", "Bilder Sessions", "Mathe-Physik-LernCD", "Zurück"_t};
constexpr std::array<TextView, 3> Bonusmaterial{"Videos", "Bilder\\index.html", "LernCD"};

// The captions of a screen, where the story has none of its own.
Text zeilentext(const Titel& titel, bool bonus, int zeile) {
    const auto i = static_cast<std::size_t>(zeile);
    if (bonus)
        return i < titel.Bonuszeilen.size() ? angegebenOder(titel.Bonuszeilen[i], Bonusseite[i])
                                            : Text(Bonusseite[i]);
    return zeile == Bonuszeile ? angegebenOder(titel.Bonus, Hauptseite[i]) : Text(Hauptseite[i]);
}

Bitmap titelbildFür(const Files& files, const Titel& titel) {
    if (titel.Titelbild.empty()) return unpacked(Titelbild);
    try {
        return loadPicture(files, files.programDirectory() + titel.Titelbild);
    } catch (const DataError&) {
        return unpacked(Titelbild);
    }
}

FontSpec zeilenschrift(bool fett) {
    return {"MS Sans Serif", 12, fett};
}

}  // namespace

Menu::Menu(Platform& platform, Zustand& zustand, const std::vector<std::filesystem::path>& wurzeln,
           std::function<void()> form1Zeigen)
    : Window(platform, "Menu", angegebenOder(zustand.Titel.Name, "Zentrox") + Text(" - Menü"_t), Fläche,
             Frame::fixed),
      z_(zustand),
      form1Zeigen_(std::move(form1Zeigen)),
      Image1(&root(), {0, 0, 501, 121}),
      Label3(&root(), {360, 88, 36, 13}, "V. " + angegebenOder(zustand.Titel.Fassung, "1.3")),
      Label2(&root(), {112, 88, 124, 13}, angegebenOder(zustand.Titel.Adresse, "www.zentrox.example")),
      Picture1(platform.fonts, &root(), {0, 120, 505, 281}),
      Label1{Label(&Picture1, {0, 0, 0, 0}), Label(&Picture1, {0, 0, 0, 0}), Label(&Picture1, {0, 0, 0, 0}),
             Label(&Picture1, {0, 0, 0, 0})},
      Picture2(platform.fonts, &Picture1, {184, 0, 257, 273}),
      Timer1(platform.queue, 10, false, [this] { Timer1_Timer(); }) {
    Image1.setPicture(titelbildFür(platform.files, z_.Titel));
    Label3.setAutoSize(!z_.Titel.Fassung.empty());
    Label2.setAutoSize(!z_.Titel.Adresse.empty());
    Label3.setColour(Grün);
    Label2.setColour(Dunkelgrün);
    Picture2.font = {"Fixedsys", 9, true};
    for (int i = 0; i < Zeilen; ++i) {
        zeile(i).setColour(Gelb);
        zeile(i).setFont(zeilenschrift(false));
        zeile(i).setAlign(Label::Align::centre);
        zeile(i).setAutoSize(true);
        zeile(i).setOnPicture(true);
        zeile(i).setText(zeilentext(z_.Titel, false, i));
        zeile(i).onClick = [this, i] { LabelAusfuehren(i); };
        zeile(i).onMove = [this, i](const PointerEvent&) { Label1_MouseMove(i); };
    }
    Form_Load(wurzeln);
}

void Menu::Form_Load(const std::vector<std::filesystem::path>& wurzeln) {
    platform().random.reseed(platform().backend.seed());
    z_.PI = 4 * std::atan(1.0F);
    CDLaufwerk = DatenSuchen(platform().files, wurzeln, z_);
    // What lies in a packed story can't be opened by another program.
    std::error_code fehler;
    const bool offen = std::filesystem::is_directory(Files("/").systemPath(CDLaufwerk), fehler);
    zeile(Bonuszeile).setVisible(!CDLaufwerk.empty() && offen);

    MenuBonusSetzen(0);
    LabelAufbau(0);
    for (int i = 0; i < Zeilen; ++i)
        zeile(i).moveTo({Zeilenmitte - zeile(i).width() / 2, ErsteZeile + Zeilenabstand * i});
    Timer1.setEnabled(true);
}

bool Menu::onQueryClose() {
    MenuSchluss = true;
    return true;
}

void Menu::Timer1_Timer() {
    Timer1.setEnabled(false);
    DoLoop();
}

void Menu::LabelAufbau(int Index) {
    for (int i = 0; i < Zeilen; ++i) zeile(i).setFont(zeilenschrift(i == Index));
}

// The captions follow the screen that is left: the first setting finds them as they are.
void Menu::MenuBonusSetzen(int Index) {
    if (MenuSeite != -1) {
        for (int i = 0; i < Zeilen; ++i) zeile(i).setText(zeilentext(z_.Titel, MenuSeite == 0, i));
        MenuPunkt = 0;
        LabelAufbau(0);
    }
    MenuSeite = Index;
}

void Menu::Label1_MouseMove(int Index) {
    if (MenuPunkt == Index) return;
    MenuPunkt = Index;
    LabelAufbau(Index);
}

// The line of the bonus material may be hidden; the first and the last one never are.
void Menu::markierungRücken(int richtung) {
    if (MenuPunkt + richtung < 0 || MenuPunkt + richtung >= Zeilen) return;
    do MenuPunkt += richtung;
    while (!zeile(MenuPunkt).visible());
    LabelAufbau(MenuPunkt);
}

void Menu::Form_KeyDown(int code) {
    switch (code) {
        case key::enter: return LabelAusfuehren(MenuPunkt);
        case key::up: return markierungRücken(-1);
        case key::down: return markierungRücken(1);
        case key::escape:
            if (MenuSeite == 0) Queue::endProgram();
            return MenuBonusSetzen(0);
        default: return;
    }
}

void Menu::LabelAusfuehren(int Index) {
    if (MenuSeite == 1) {
        if (Index == Zeilen - 1) return MenuBonusSetzen(0);
        return öffnen(Bonusmaterial[static_cast<std::size_t>(Index)]);
    }
    switch (Index) {
        case 0: return beginnen({});
        case 1: return beginnen("Laden.lsd");
        case Bonuszeile: return MenuBonusSetzen(1);
        default: Queue::endProgram();
    }
}

// This runs inside the loop that handed in the click.
void Menu::beginnen(TextView raum) {
    z_.Übergabe = Text(raum);
    MenuSchluss = true;
    close();
    form1Zeigen_();
}

// What a link on the CD leads to elsewhere, or what is no folder or page there, is nobody's bonus. What is missing
// is the desktop's to say.
void Menu::öffnen(TextView was) {
    Files cd(Files("/").systemPath(CDLaufwerk));
    cd.confine();
    const std::filesystem::path pfad = cd.systemPath(was);
    std::error_code fehler;
    const bool seite = was.ends_with(".html");
    const auto art = seite ? std::filesystem::file_type::directory : std::filesystem::file_type::regular;
    Text text = "\"" + Text(was) + Text("\" kann nicht geöffnet werden, weil "_t);
    if (pfad.empty() || std::filesystem::status(pfad, fehler).type() == art)
        text += seite ? Text("es keine Seite auf der CD ist."_t) : Text("es kein Verzeichnis auf der CD ist."_t);
    else if (platform().backend.start({"xdg-open", pfad.string()}))
        return;
    else
        text += "das Programm xdg-open fehlt.";
    showMessageBox(platform(), {"Zentrox", text, MessageBox::Icon::critical});
}

void Menu::DoLoop() {
    Schreibmaschine maschine;
    Hilfetexte MenuTexte;
    std::size_t seite = 0;
    int letzteSeite = 1;  // another one than is shown, so that the first round builds the texts
    int ticks = 0;
    Picture2.clear();
    while (!MenuSchluss) {
        if (++ticks >= TicksProBild) {
            ticks = 0;
            if (MenuSeite != letzteSeite) {
                letzteSeite = MenuSeite;
                MenuTexte = MenuTexteFür(MenuSeite == 1, z_.Titel);
                seite %= MenuTexte.size();
                maschine.Anfangen();
            }
            if (maschine.Schritt(Picture2, MenuTexte[seite]) == Schreibmaschine::Ereignis::seitenende)
                seite = (seite + 1) % MenuTexte.size();
            WelleZeichnen(Picture1, WellenPhase += Wellenschritt);
        }
        WarteFrame(z_, platform(), Tick);
    }
}

}  // namespace zentrox
