#include "room/abspann.h"

namespace zentrox {

namespace {

constexpr TextView Glückwunsch =
    "  #  Die letzte Stunde  |"
    "=================  | |"
    "Herzlichen Glückwunsch! Die CD ist wieder in der  |"
    "Aula, die Feier kann beginnen, und Frau Orlix hat  |"
    "nur dreimal \"Ein Wunder!\" gerufen.  | |"
    "#  Neun Jahre Bramhof Gymnasium sind vorbei.  |"
    "Wir wissen jetzt, wie viele Stellen von Pi in ein  |"
    "Schulheft passen, dass Bruhks nicht stubenrein  |"
    "sind, und wo Herr Grobbel seine Schlüssel hinlegt.  | |"
    "Der Rest steht auf der Rückseite der Zeugnisse.  |"_t;

// Behind the number of points.
constexpr TextView Dank =
    " Bosheits-Punkte gesammelt! Nicht schlecht! Hätte ich   |"
    "dir gar nicht zugetraut. Übrigens kann dieser Abend auch  |"
    "ganz anders ausgehen. Du müsstest nur einmal ein  |"
    "anderer Mensch sein.  | |"
    "Wir danken  |"
    " dem Bramhof Gymnasium für die Räume,  |"
    " der Mathe-AG für das Schloss an der Kellertür,  |"
    " dem Globus für die Hauptstädte,  |"
    " Dr. Ampulla für beide Feuerlöscher,  |"
    " der Katze der Bibliothek für ihre Geduld,  |"
    " Balduin dafür, dass er aufgestanden ist,  |"
    " und dir, weil du bis hierher gespielt hast.  |"_t;

constexpr TextView Mannschaft =
    "  Wer das alles verbrochen hat  #  |"
    "============================  | |"
    "Programm        : Velmar  #  |"
    "Geschichte      : Tirsa  #  |"
    "Zeichnungen     : Kessa  #  |"
    "Musik           : Brokan  #  |"
    "Stimmen         : Frau Orlix und alle anderen  #  |"
    "Technik, Tinte  : Herr Grobbel  #  |"
    "Knall und Rauch : Dr. Ampulla  |"
    "Rätsel          : Balduin  |"
    "Rechenzeit      : Zentrox, Baujahr 1974  |"_t;

constexpr TextView Schlusswort =
    "  Ein letztes Wort  #  |"
    "===============  | |"
    "Als wir anfingen, sollte das hier ein kleines Programm  |"
    "werden, das die Fotos der Kursfahrten zeigt. Dann kam  |"
    "eine Tür dazu, dahinter ein Keller, und im Keller stand  |"
    "Zentrox. Danach war an Schlaf nicht mehr zu denken.  | |"
    "Macht es gut, und schaut ab und zu in den Keller.  | |"
    "Velmar, im Juli 2002  |"_t;

std::vector<Text> mitPunkten(std::vector<Text> seiten, std::int32_t bösePunkte) {
    for (Text& seite : seiten)
        for (std::size_t i = seite.find(Bosheitsmarke); i != Text::npos; i = seite.find(Bosheitsmarke))
            seite.replace(i, Bosheitsmarke.size(), std::to_string(bösePunkte));
    return seiten;
}

}  // namespace

std::vector<Text> AbspannTexte(std::int32_t bösePunkte, const Titel& titel) {
    if (!titel.Abspann.empty()) return mitPunkten(titel.Abspann, bösePunkte);
    return {Text(Glückwunsch), "  Du hast " + std::to_string(bösePunkte) + Text(Dank), Text(Mannschaft),
            Text(Schlusswort)};
}

}  // namespace zentrox
