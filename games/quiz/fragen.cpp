#include "games/quiz/fragen.h"

#include "engine/state/felder.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

constexpr TextView fehlt = " ";  // what `Feld` gives for a piece that is not there
constexpr std::string_view utf8Marke = "\xEF\xBB\xBF";

struct Frageform {
    TextView davor;
    TextView danach;
};
constexpr std::array Frageformen{
    Frageform{"Wie lautet die Hauptstadt von "_t, "?"_t},
    Frageform{"Wie heißt die Hauptstadt von "_t, "?"_t},
    Frageform{"Nenne mir die Hauptstadt von "_t, "!"_t},
    Frageform{"Kannst du mir die Hauptstadt von "_t, " nennen?"_t},
};

// German text in code page 1252 is never by chance well-formed UTF-8.
bool istUtf8(std::string_view bytes) {
    while (!bytes.empty())
        if (!takeCodePoint(bytes)) return false;
    return true;
}

Text inUnsererSeite(std::string_view bytes) {
    if (!istUtf8(bytes)) return Text(bytes);
    if (bytes.starts_with(utf8Marke)) bytes.remove_prefix(utf8Marke.size());
    return fromUtf8(bytes);
}

}  // namespace

std::optional<Frage> FrageLesen(TextView zeile) {
    const Text städte = Feld(zeile, "#", 2);
    if (Feld(städte, ",", Antwortfelder) == fehlt) return std::nullopt;
    Frage frage{.Land = Trim(Feld(zeile, "#", 1)), .Antworten = {}};
    for (int i = 0; i < Antwortfelder; ++i)
        frage.Antworten[static_cast<std::size_t>(i)] = Trim(Feld(städte, ",", i + 1));
    return frage;
}

std::vector<Frage> FragenLesen(std::string_view bytes) {
    const Text text = inUnsererSeite(bytes);
    std::vector<Frage> fragen;
    for (const TextView zeile : linesOf(text))
        if (auto frage = FrageLesen(zeile)) fragen.push_back(std::move(*frage));
    return fragen;
}

std::vector<Frage> FragenLaden(const Files& files, TextView pfad) {
    auto fragen = FragenLesen(files.read(pfad, limits::tableBytes));
    if (fragen.empty())
        throw DataError(files.display(pfad) +
                        Text(": keine Zeile hat die Form \"Land#Hauptstadt,falsch,falsch,falsch\""_t));
    return fragen;
}

Aufgabe AufgabeStellen(Random& random, const std::vector<Frage>& fragen, std::int32_t nummer) {
    const Frage& frage = fragen[static_cast<std::size_t>(random.below(static_cast<int>(fragen.size())))];
    const Frageform& form =
        Frageformen[static_cast<std::size_t>(random.below(static_cast<int>(Frageformen.size())))];
    Aufgabe aufgabe{
        .Wortlaut = std::to_string(nummer) + ". Frage:\r\n" + Text(form.davor) + frage.Land + Text(form.danach),
        .Felder = frage.Antworten,
        .richtigePos = random.below(Antwortfelder)};
    std::swap(aufgabe.Felder[0], aufgabe.Felder[static_cast<std::size_t>(aufgabe.richtigePos)]);
    return aufgabe;
}

}  // namespace zentrox
