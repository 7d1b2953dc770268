// What the interpreter asks of a room window. `Form1` implements it.
#pragma once

#include <cstdint>

#include "platform/values/text.h"

namespace zentrox {

class Raumfenster {
public:
    virtual ~Raumfenster() = default;

    // Loads a room file, full path, and runs its `Startskript`, then the rooms that this one leads on to. Throws
    // `DataError`, with nothing changed, where the room can't be read.
    virtual void Lade(TextView Name) = 0;
    virtual void BildLaden(TextView Bild) = 0;
    virtual void ZeigText(TextView Text) = 0;
    virtual void WegText(TextView Text) = 0;
    // False when what `ZeigText` has shown last has been painted over or taken away.
    virtual bool TextSteht() const { return true; }
    // The whole of the text whose parts are measured next: its letters become no larger than fits the picture.
    virtual void TextSetzen(TextView /*Text*/) {}
    // Pixels, in the font of `Picture1`; every line end starts a further line.
    virtual int TextHöhe(TextView Text) = 0;
    virtual void ZoomIN(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) = 0;
    virtual void ZoomOUT(std::int32_t FX1, std::int32_t FY1, std::int32_t FX2, std::int32_t FY2) = 0;
    virtual void BlendWeiß() = 0;
    virtual void BlendWeißOut() = 0;
    virtual void RahmenAuf() = 0;
    virtual void RahmenZu() = 0;
    // `links`: the left frame, else the right one. `Bild` is a full path.
    virtual void Portrait(bool links, TextView Bild) = 0;
    virtual void GegenständeLaden() = 0;
    virtual void VersteckeLeiste() = 0;
    // Shows what lies under `MausX`, `MausY`, as if the pointer had moved there.
    virtual void ZeigerAuffrischen() = 0;
    // Loads an icon, full path, as the window's own pointer and shows that.
    virtual void ZeigerLaden(TextView Pfad) = 0;
    // Shows the window's own pointer, the one loaded last.
    virtual void ZeigerEigen() = 0;
    virtual void ZeigerStandard() = 0;
    virtual void CountDownAn(bool an) = 0;
    // Milliseconds; 0 switches it off.
    virtual void CountDownPeriode(std::int64_t ms) = 0;
    virtual std::int64_t CountDownPeriode() const = 0;
    // Shows the video's present picture over `Picture1`.
    virtual void FilmBild() = 0;
    // Puts back what `Picture1` showed before the video.
    virtual void FilmEnde() = 0;
    virtual void Abspann() = 0;
    // True when a saved game has been loaded and its room has been entered.
    virtual bool SpielLaden() = 0;
    virtual void SpielSpeichern() = 0;
    // Closes the room window, which ends the process; does not return.
    [[noreturn]] virtual void Entladen() = 0;
};

}  // namespace zentrox
