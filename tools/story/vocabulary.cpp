#include "tools/story/vocabulary.h"

#include <array>
#include <map>
#include <vector>

#include "tools/story/grammar.h"

namespace zentrox::story {

namespace {

struct Row {
    TextView name;
    WordKind kind;
    unsigned where;
    const char* usage;
    const char* help;
};

constexpr unsigned nowhere = 0;

// clang-format off
constexpr std::array shaping{
    Row{"Raum",           WordKind::heading, stands::top,    "\"RAUM.lsd\"", "Ein Raum; er heißt wie die Datei in rooms, zu der er wird."},
    Row{"Objekt",         WordKind::heading, stands::room,   "\"NAME\" [einsteckbar GEGENSTAND [Merker MERKER]]", "Etwas im Raum, worauf der Spieler zeigen kann. Was einsteckbar ist, geht beim Klick in die Tasche und ist fort."},
    Row{"Gegenstand",     WordKind::heading, stands::top,    "\"BILD.bmp\" [heißt NAME]", "Was die Tasten auf einem Gegenstand in der Tasche tun, und wie er heißt."},
    Row{"Skriptdatei",    WordKind::heading, stands::top,    "\"DATEI.skp\"", "Eine Skriptdatei in items, die nicht nach einem Gegenstand heißt."},
    Row{"Skriptteil",     WordKind::heading, stands::top,    "NAME", "Befehle mit einem Namen, die Rufe laufen lässt."},
    Row{"Person",         WordKind::heading, stands::top,    "NAME", "Jemand, der spricht; danach ist NAME: \"...\" eine Zeile von ihm."},
    Row{"Kombiniere",     WordKind::heading, stands::top,    "GEGENSTAND GEGENSTAND ergibt \"BILD.bmp\"", "Aus zwei Gegenständen wird ein dritter, welcher auch auf den anderen gelegt wird."},
    Row{"Einbinden",      WordKind::heading, stands::top,    "\"DATEI.story\"", "Liest an dieser Stelle eine andere Quelle."},
    Row{"Bild",           WordKind::detail,  stands::room,   "\"DATEI\"", "Das Bild des Raums, eine Datei in graphics."},
    Row{"Zeiger",         WordKind::detail,  stands::object, "\"ZEIGER.ico\"", "Der Zeiger über dem Objekt, eine Datei in cursors."},
    Row{"Aktiv",          WordKind::detail,  stands::object, "", "Das Objekt ist von Anfang an da, wie auch ohne dieses Wort."},
    Row{"Inaktiv",        WordKind::detail,  stands::object, "", "Das Objekt ist nicht da, bis ObjektAn es zeigt."},
    Row{"Fläche"_t,       WordKind::detail,  stands::object, "[FORM]", "Wo das Objekt im Bild liegt; darunter stehen Rechteck, Vieleck, Maskenbild."},
    Row{"Rechteck",       WordKind::detail,  stands::object, "X1 Y1 X2 Y2", "Ein Rechteck der Fläche, in Punkten des Bildes von 640 mal 480."},
    Row{"Vieleck",        WordKind::detail,  stands::object, "X Y, X Y, X Y, ...", "Ein Vieleck der Fläche, drei Ecken oder mehr."},
    Row{"Maskenbild",     WordKind::detail,  stands::object, "\"DATEI\"", "Ein schwarzweißes Bild neben der Quelle; was darin weiß ist, gehört zur Fläche."},
    Row{"Farbe",          WordKind::detail,  stands::person, "ZIFFER", "Die Farbe der Texte dieser Person, 0 bis 9 oder A bis F."},
    Row{"Stimme",         WordKind::detail,  stands::person, "\"ANFANG\"", "Womit die Namen der Tondateien dieser Person beginnen."},
    Row{"Spieler",        WordKind::detail,  stands::person, "", "Diese Person ist die, die man spielt."},
    Row{"Start",          WordKind::script,  stands::room,   "", "Läuft jedes Mal, wenn der Raum betreten wird."},
    Row{"Countdown",      WordKind::script,  stands::room,   "", "Läuft wieder und wieder, wenn CountDownSetzen es sagt."},
    Row{"Rechts",         WordKind::script,  stands::object | stands::item, "[Aus]", "Was die rechte Taste tut: ansehen."},
    Row{"Links",          WordKind::script,  stands::object | stands::item, "[Aus]", "Was die linke Taste tut: benutzen."},
    Row{"Ablegen",        WordKind::script,  stands::object | stands::item, "[Aus]", "Was geschieht, wenn ein Gegenstand darauf abgelegt wird."},
    Row{"WennGegenstand", WordKind::block,   stands::script, "BEDINGUNG", "Läuft weiter, wenn der Gegenstand in der Tasche ist, sonst bei Sonst oder EndeWenn."},
    Row{"SonstWenn",      WordKind::block,   stands::script, "BEDINGUNG", "Fragt weiter, wenn die Bedingung darüber nicht gilt."},
    Row{"Bei",            WordKind::block,   stands::script, "GEGENSTAND ...", "In Ablegen: was mit diesen Gegenständen geschieht."},
    Row{"EndeBei",        WordKind::block,   stands::script, "", "Beendet eine Reihe von Bei."},
    Row{"Gespräch"_t,     WordKind::block,   stands::script, "", "Beginnt ein Gespräch; die Rahmen mit den Gesichtern gehen von selbst auf."},
    Row{"EndeGespräch"_t, WordKind::block,   stands::script, "", "Beendet ein Gespräch und schließt die Rahmen."},
    Row{"Frage",          WordKind::block,   stands::script, "\"FRAGE\" ...", "Eine Frage, die wiederkommt, bis eine Antwort gewählt wird, die ein Schluss ist."},
    Row{"Antwort",        WordKind::block,   stands::script, "\"ANTWORT\" ... [einmal] [wenn BEDINGUNG]", "Eine Antwort und was auf sie geschieht; danach kommt die Frage wieder."},
    Row{"Schluss",        WordKind::block,   stands::script, "\"ANTWORT\" ... [einmal] [wenn BEDINGUNG]", "Eine Antwort, nach der die Frage vorbei ist."},
    Row{"EndeFrage",      WordKind::block,   stands::script, "", "Beendet eine Frage; vor EndeGespräch darf es fehlen."},
    Row{"Option",         WordKind::block,   stands::script, "\"ANTWORT\" ...", "Eine Möglichkeit der Auswahl, hinter der nichts geschieht."},
    Row{"Rufe",           WordKind::command, stands::script, "NAME", "Lässt einen Skriptteil laufen."},
    Row{"Roh",            WordKind::command, stands::script, "BEFEHL [\"ARGUMENT\"]", "Ein Befehl mit seiner Nummer oder seinem Namen, so wie er in der Datei steht."},
};

struct Help {
    TextView name;
    const char* help;
};

constexpr std::array commandHelp{
    Help{"WennMerker",        "Läuft weiter, wenn der Merker gesetzt ist, sonst bei Sonst oder EndeWenn."},
    Help{"Ton",               "Spielt eine gesprochene Zeile an Stelle der vorigen und geht gleich weiter."},
    Help{"Text",              "Zeigt einen Text und wartet auf eine Taste."},
    Help{"SetzeMerker",       "Setzt einen Merker, oder mehrere."},
    Help{"Raumwechsel",       "Betritt einen anderen Raum; das Skript ist zu Ende."},
    Help{"ZeigBild",          "Ein anderes Bild für den Raum; ohne Datei wird es schwarz."},
    Help{"NimmGegenstand",    "Steckt einen Gegenstand in die Tasche."},
    Help{"GibGegenstand",     "Nimmt einen Gegenstand aus der Tasche, von gleichen den letzten."},
    Help{"WennParameter",     "Läuft weiter, wenn dieser Gegenstand abgelegt wurde, sonst bei Sonst oder EndeWenn."},
    Help{"Sonst",             "Beginnt, was läuft, wenn die Bedingung darüber nicht gilt."},
    Help{"EndeWenn",          "Beendet den Block einer Bedingung."},
    Help{"Film",              "Spielt einen Film bis zu seinem Ende oder bis Escape."},
    Help{"LöscheMerker"_t,    "Löscht einen Merker, oder mehrere."},
    Help{"SetzeZeiger",       "Gibt allen Objekten eines Namens einen anderen Zeiger, bis der Raum verlassen wird."},
    Help{"ZoomIN",            "Fährt in ein Rechteck des Bildes hinein."},
    Help{"ZoomOUT",           "Fährt aus einem Rechteck des Bildes wieder heraus."},
    Help{"Fehlerton",         "Spielt eine zufällige Absage."},
    Help{"ObjektAn",          "Macht alle Objekte eines Namens aktiv."},
    Help{"ObjektAus",         "Macht alle Objekte eines Namens inaktiv."},
    Help{"Musik",             "Spielt ein Stück einmal; ohne Datei hört die Musik auf."},
    Help{"RahmenAuf",         "Öffnet die beiden schwarzen Rahmen für die Gesichter."},
    Help{"RahmenZu",          "Schließt die Rahmen, der Raum wird neu gemalt."},
    Help{"BöseÄndern"_t,      "Zählt zum Bösezähler; der Merker BÖSE ist gesetzt, solange er über 0 ist."},
    Help{"Portrait",          "Malt ein Gesicht in den linken oder den rechten Rahmen. Bei einer Person: ihr Gesicht und ihr Rahmen."},
    Help{"Auswahl",           "Zeigt eine Frage mit Möglichkeiten, wartet auf einen Klick und geht zu deren Fall."},
    Help{"Fall",              "Eine Möglichkeit der Auswahl und was auf sie geschieht."},
    Help{"EndeAuswahl",       "Beendet den Block einer Auswahl."},
    Help{"Spiel",             "Spielt ein Spiel; der Merker ist gesetzt, wenn es gewonnen ist, und gelöscht, wenn nicht."},
    Help{"Springe",           "Geht hinter der Marke dieses Namens weiter."},
    Help{"Marke",             "Eine Stelle, zu der Springe gehen kann."},
    Help{"System",            "Lädt einen Spielstand, speichert, zeigt den Abspann oder schließt den Raum."},
    Help{"CountDownSetzen",   "Lässt das Skript Countdown des Raums in diesem Takt laufen; 0 hält es an."},
    Help{"Blende",            "Blendet das Bild nach weiß oder davon zurück."},
};
// clang-format on
static_assert(commandHelp.size() == OpcodeAnzahl);

constexpr const char* helpFor(const Opcode& opcode) {
    for (const Help& row : commandHelp)
        if (row.name == opcode.name) return row.help;
    return nullptr;
}
static_assert(std::all_of(Opcodes.begin(), Opcodes.end(),
                          [](const Opcode& row) { return helpFor(row) != nullptr; }));

// Conditions can have more than what the game's own command has.
std::string usageOf(const Opcode& opcode) {
    if (opcode.role == Role::opens && opcode.block == zentrox::Block::condition) return "BEDINGUNG";
    const std::string usage = formOf(opcode.arg).usage;
    return opcode.arg == Arg::flag ? usage + " ..." : usage;
}

constexpr std::array<TextView, 16> inner{
    "nicht"_t, "und"_t,         "oder"_t,   "wenn"_t, "einmal"_t, "Merker"_t, "Gegenstand"_t, "Parameter"_t,
    "heißt"_t, "einsteckbar"_t, "ergibt"_t, "Aus"_t,  "links"_t,  "rechts"_t, "weiß"_t,       "zurück"_t};

}  // namespace

std::span<const LanguageWord> languageWords() {
    static const auto words = [] {
        std::vector<LanguageWord> all;
        const auto put = [&](bool forms) {
            for (const Row& row : shaping)
                if (((row.where & stands::script) != 0) == forms)
                    all.push_back({row.name, row.kind, row.where, row.usage, row.help});
        };
        put(false);
        for (const Opcode& row : opcodes()) {
            const unsigned person = row.arg == Arg::portrait ? stands::person : nowhere;
            all.push_back({row.name, row.block == zentrox::Block::none ? WordKind::command : WordKind::block,
                           stands::script | person, usageOf(row), helpFor(row)});
        }
        put(true);
        return all;
    }();
    return words;
}

const LanguageWord* languageWord(TextView word) {
    static const auto byName = [] {
        std::map<Text, const LanguageWord*, std::less<>> names;
        for (const LanguageWord& known : languageWords()) names[normalised(known.name)] = &known;
        return names;
    }();
    const auto found = byName.find(normalised(word));
    return found == byName.end() ? nullptr : found->second;
}

std::span<const TextView> innerWords() {
    return inner;
}

}  // namespace zentrox::story
