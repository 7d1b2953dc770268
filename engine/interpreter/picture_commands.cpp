// What a script shows: pictures, zooms, fades, and the two frames with portraits.
#include "engine/interpreter/interpreter.h"
#include "engine/state/felder.h"
#include "platform/values/error.h"

namespace zentrox {

namespace {

std::int32_t ganzeZahl(TextView argument, int feld) {
    return Runden(Val(Feld(argument, ",", feld)));
}

}  // namespace

void Interpreter::ZeigBild(Lauf& lauf) {
    raum_.BildLaden(z_.PfadGraphics + Dateiname(lauf.argument()));
}

void Interpreter::ZoomIN(Lauf& lauf) {
    const TextView a = lauf.argument();
    raum_.ZoomIN(ganzeZahl(a, 1), ganzeZahl(a, 2), ganzeZahl(a, 3), ganzeZahl(a, 4));
}

void Interpreter::ZoomOUT(Lauf& lauf) {
    const TextView a = lauf.argument();
    raum_.ZoomOUT(ganzeZahl(a, 1), ganzeZahl(a, 2), ganzeZahl(a, 3), ganzeZahl(a, 4));
}

void Interpreter::RahmenAuf(Lauf& /*lauf*/) {
    raum_.RahmenAuf();
}

void Interpreter::RahmenZu(Lauf& /*lauf*/) {
    raum_.RahmenZu();
}

void Interpreter::Portrait(Lauf& lauf) {
    const bool links = Val(Feld(lauf.argument(), ",", 1)) == 1;
    const Text datei = Dateiname(Trim(Feld(lauf.argument(), ",", 2)));
    if (datei.empty()) throw DataError("Es ist kein Bild genannt.");
    raum_.Portrait(links, z_.PfadGraphics + datei);
}

void Interpreter::Blende(Lauf& lauf) {
    const double richtung = Val(Feld(lauf.argument(), ",", 1));
    if (richtung == 1) raum_.BlendWeiß();
    if (richtung == 2) raum_.BlendWeißOut();
}

}  // namespace zentrox
