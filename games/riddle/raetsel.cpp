#include "games/riddle/raetsel.h"

#include <algorithm>
#include <array>

#include "engine/state/felder.h"

namespace zentrox {

namespace {

constexpr TextView titel = "ESEL\r\n----\r\n\r\n";
constexpr TextView geschichte =
    " Es war einmal ein alter Esel, der glücklich auf einer Seite eines Flusses lebte. Eines Tages, als er wieder "
    "stoned von seinem Stammtisch zurückkehrte, sah er auf der anderen Seite ein paar goldene Äpfel herumfliegen. "
    "Da er sehr hungrig war, die Erdnüsse schon alle waren und McDonalds geschlossen hatte, wollte er irgendwie an "
    "die Äpfel ran.\r\n"_t;
constexpr TextView frage =
    " Doch leider konnte er nicht schwimmen und Hilfe war nicht in Sicht. Was TAT er, um an die fetten goldenen "
    "Äpfel heranzukommen?\r\n\r\n"_t;
constexpr TextView anleitung =
    " Dort unten den Text eingeben, mit Return bestätigen und mit 'Aufgeben' gibst du auf und du hast das Rätsel "
    "verloren!"_t;

constexpr TextView selbstlaute = "aeiou";

// One of `wörter` has to be in the attempt, and one of `dazu` where there is any.
struct Stichwort {
    std::array<TextView, 3> wörter;
    std::array<TextView, 3> dazu;
    TextView antwort;
};

// The last row that fits answers.
constexpr std::array Stichwörter{
    Stichwort{{"schnupfte"}, {}, "Ahh, das tat ihm gut!"},
    Stichwort{{"paddelte"}, {}, "Wie sollte er denn paddeln?"},
    Stichwort{{"sprang"}, {}, "So weit konnte er nicht springen!"},
    Stichwort{{"fuhr"}, {}, "Fahren, womit? Er hatte doch nix zum Fahren!"},
    Stichwort{
        {"schwam"}, {}, "Lies dir nochmal den Text durch, dann wirst du merken, dass er nicht schwimmen konnte!"},
    Stichwort{{"tauchte"}, {}, "Er war keine Wasserratte sondern ein Esel und konnte nicht die Luft anhalten!"},
    Stichwort{{"baute", "nahm"}, {}, "Es war ein Esel. Er hatte Hufe und keine Hände!"_t},
    Stichwort{{"sprach", "bat", "fragte"}, {}, "Es war ein Esel! Er konnte nicht sprechen! Nur kiffen!"},
    Stichwort{
        {"kaufte"},
        {},
        "Er gehörte zu den Franziskanern und lehnte Reichtum ab. Wenn er Geld hatte, dann wurde es versoffen!"_t},
    Stichwort{{"verkaufte"}, {}, "Niemand kaufte ihm das ab!"},
    Stichwort{{"klaute"},
              {},
              "Auch wenn er noch so gerne klauen wollte, konnte er es sich wegen seiner Vorstafen nicht erlauben!"},
    Stichwort{
        {"kiffte"},
        {},
        "1. Er hatte nix mehr zu kiffen; 2. Ihm fehlte die nötige Koordination und 3. Er hatte keine Hände!"_t},
    Stichwort{{"flog"}, {}, "Er hatte Höhenangst!"_t},
    Stichwort{{"pumpte"},
              {},
              "Es war ein ESEL! Hör auf so blöde Sachen einzugeben! So wirst du das Rätsel nie lösen, du Trottel! "
              "Man bist du blöd! Sowas blödes hab ich noch nie gesehen! Ich habe fertig!"_t},
    Stichwort{{"lieh"},
              {},
              "Niemand wollte ihm etwas leihen, da sein Alkoholgeruch nicht gerade für Vertrauen sprach!"_t},
    Stichwort{{"fällte"_t}, {}, "Es war zum Fällen nix in der Nähe!"_t},
    Stichwort{{"fressen"}, {}, "Er hatte keinen Hunger! Er wollte nur DIESEN APFEL haben!"},
    Stichwort{{"tunnel"}, {}, "Nach seiner Kiffing-Tour in den Alpen hatte er kein Vertrauen mehr in Tunnel..."},
    Stichwort{{"tat"}, {"nix", "nichts"}, "So kam er auch nicht zum Apfel!"},
    Stichwort{{"ging"},
              {"pub", "gaststätte"_t, "kneipe"},
              "Er war schon stoned und wurde schon letztes Mal wegen seines auffälligen Benehmens rausgeworfen!"_t},
};

constexpr std::array<TextView, 6> Ausreden{
    "Das ist Blödsinn!"_t,    "jaja und Velmar ist NICHT doof..",   "Hast du dir den Schund selber ausgedacht???",
    "Nee, das tat er nicht!", "Ich glaube nicht, dass er das tat!", "Gib mal was sinnvolles ein!",
};

bool enthält(TextView text, TextView wort) {
    return text.find(wort) != TextView::npos;
}

bool enthältEins(TextView text, const std::array<TextView, 3>& wörter) {
    return std::any_of(wörter.begin(), wörter.end(),
                       [text](TextView wort) { return !wort.empty() && enthält(text, wort); });
}

bool trifft(const Stichwort& stichwort, TextView text) {
    return enthältEins(text, stichwort.wörter) && (stichwort.dazu[0].empty() || enthältEins(text, stichwort.dazu));
}

Text antwortAuf(TextView eingabe, TextView klein, Random& zufall) {
    Text antwort;
    if (klein.find_first_of(selbstlaute) == Text::npos)
        antwort = "Gib mal ein deutsches Wort ein, nicht " + Trim(eingabe) + "...";
    for (const Stichwort& stichwort : Stichwörter)
        if (trifft(stichwort, klein)) antwort = stichwort.antwort;
    if (antwort.empty())
        antwort = Ausreden[static_cast<std::size_t>(zufall.below(static_cast<int>(Ausreden.size())))];
    return antwort;
}

}  // namespace

Text Rätsel::Geschichte() {
    return Text(titel) + Text(geschichte) + Text(frage) + Text(anleitung);
}

Rätselantwort Rätsel::Versuch(TextView eingabe, Random& zufall) {
    using Ausgang = Rätselantwort::Ausgang;
    const Text klein = lower(eingabe);
    if (Getrimmt(klein) == "aufgeben") return {.ausgang = Ausgang::aufgegeben};
    if (enthält(klein, "auf") && enthält(klein, "gab")) return {.ausgang = Ausgang::gelöst};
    Rätselantwort runde{.antwort = antwortAuf(eingabe, klein, zufall)};
    runde.zuwachs = "\r\n\r\nEr " + Trim(eingabe) + "\r\n" + runde.antwort;
    Verlauf += runde.zuwachs;
    return runde;
}

}  // namespace zentrox
