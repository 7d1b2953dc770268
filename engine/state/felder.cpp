#include "engine/state/felder.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace zentrox {

namespace {

bool istZiffer(char c) {
    return c >= '0' && c <= '9';
}

struct Anfang {
    double wert = 0;
    std::size_t länge = 0;  // 0 where the text does not start with a number
};

// A number beyond what a double holds: too small is 0, too large is without end.
double außerhalb(TextView ziffern) {
    const auto exponent = ziffern.find_first_of("eE");
    const bool klein = exponent != TextView::npos && exponent + 1 < ziffern.size() && ziffern[exponent + 1] == '-';
    return klein ? 0.0 : std::numeric_limits<double>::infinity();
}

Anfang zahlAmAnfang(TextView text) {
    const std::size_t vorzeichen = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    const TextView betrag = text.substr(vorzeichen);
    const bool zahl = !betrag.empty() &&
                      (istZiffer(betrag[0]) || (betrag[0] == '.' && betrag.size() > 1 && istZiffer(betrag[1])));
    if (!zahl) return {};
    double wert = 0;
    const auto [ende, fehler] = std::from_chars(betrag.data(), betrag.data() + betrag.size(), wert);
    const auto länge = static_cast<std::size_t>(ende - betrag.data());
    if (fehler == std::errc::result_out_of_range) wert = außerhalb(betrag.substr(0, länge));
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
