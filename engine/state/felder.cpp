#include "engine/state/felder.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace zentrox {

namespace {

bool istZiffer(char c) {
    return c >= '0' && c <= '9';
}

std::size_t ziffernBis(TextView text, std::size_t i) {
    while (i < text.size() && istZiffer(text[i])) ++i;
    return i;
}

// Where the number ends that begins with a digit, or with a point before a digit.
std::size_t zahlEnde(TextView text) {
    std::size_t ende = ziffernBis(text, 0);
    if (ende < text.size() && text[ende] == '.') ende = ziffernBis(text, ende + 1);
    std::size_t exponent = ende;
    if (exponent == text.size() || (text[exponent] != 'e' && text[exponent] != 'E')) return ende;
    ++exponent;
    if (exponent < text.size() && (text[exponent] == '-' || text[exponent] == '+')) ++exponent;
    const std::size_t danach = ziffernBis(text, exponent);
    return danach > exponent ? danach : ende;
}

struct Anfang {
    double wert = 0;
    std::size_t länge = 0;  // 0 where the text does not start with a number
};

Anfang zahlAmAnfang(TextView text) {
    const std::size_t vorzeichen = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    const TextView betrag = text.substr(vorzeichen);
    const bool zahl = !betrag.empty() &&
                      (istZiffer(betrag[0]) || (betrag[0] == '.' && betrag.size() > 1 && istZiffer(betrag[1])));
    if (!zahl) return {};
    // Not every library has `from_chars` for it. Too small becomes 0, too large is without end.
    const std::size_t länge = zahlEnde(betrag);
    const double wert = std::strtod(Text(betrag.substr(0, länge)).c_str(), nullptr);
    return {text[0] == '-' ? -wert : wert, vorzeichen + länge};
}

}  // namespace

Text Feld(TextView text, TextView trenner, int n) {
    for (int feld = 1;; ++feld) {
        const std::size_t treffer = trenner.empty() ? TextView::npos : text.find(trenner);
        if (feld == n) return Text(text.substr(0, treffer));
        if (treffer == TextView::npos) return " ";
        text.remove_prefix(treffer + trenner.size());
    }
}

Text Dateiname(TextView pfad) {
    const std::size_t schräg = pfad.rfind('\\');
    return Text(schräg == TextView::npos ? pfad : pfad.substr(schräg + 1));
}

TextView Getrimmt(TextView text) {
    const std::size_t anfang = text.find_first_not_of(' ');
    if (anfang == TextView::npos) return {};
    return text.substr(anfang, text.find_last_not_of(' ') - anfang + 1);
}

Text Trim(TextView text) {
    return Text(Getrimmt(text));
}

Text AntwortText(Text antwort) {
    std::replace_if(
        antwort.begin(), antwort.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    if (!antwort.empty() && antwort.front() == '$') antwort.erase(0, 2);
    return Trim(antwort);
}

double Val(TextView text) {
    return zahlAmAnfang(Getrimmt(text)).wert;
}

std::optional<double> Zahl(TextView text) {
    const TextView inhalt = Getrimmt(text);
    const Anfang anfang = zahlAmAnfang(inhalt);
    if (inhalt.empty() || anfang.länge != inhalt.size()) return std::nullopt;
    return anfang.wert;
}

std::int32_t Runden(double wert) {
    using Grenze = std::numeric_limits<std::int32_t>;
    if (std::isnan(wert)) return 0;
    if (wert >= Grenze::max()) return Grenze::max();
    if (wert <= Grenze::min()) return Grenze::min();
    return static_cast<std::int32_t>(std::nearbyint(wert));  // the default mode takes ties to the even one
}

}  // namespace zentrox
